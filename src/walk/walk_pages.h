#pragma once

#include <ostream>

#include "toolkit/printer_pages.h"

namespace brindlepage::walk {

// Letter paper that writes down what is drawn on it, a line for each thing.
class WalkPages : public PrinterPages {
 public:
  explicit WalkPages(std::ostream& out) : out_(out) {}

  Size PageSize() const override { return {12240, 15840}; }
  // 1.2 times the font's size.
  int LineHeight(const PrinterFont& font) const override {
    return static_cast<int>(font.points * 24);
  }
  void DrawText(std::string_view text, int left, int top, const PrinterFont& font) override;
  void DrawLine(int left, int top, int right, int bottom) override;
  void DrawBox(const Area& area) override;
  void DrawPicture(const FormPicture& picture, int left, int top) override;
  void NewPage() override;
  void EndDoc() override;

 private:
  std::ostream& out_;
};

}  // namespace brindlepage::walk
