#pragma once

#include <QPainter>

#include "toolkit/printer_pages.h"

class QPrinter;

namespace brindlepage {

// Pages on a printer, upright and in colour.
class QtPages : public PrinterPages {
 public:
  explicit QtPages(QPrinter& printer);
  ~QtPages() override;

  Size PageSize() const override;
  int LineHeight(const PrinterFont& font) const override;
  void DrawText(std::string_view text, int left, int top, const PrinterFont& font) override;
  void DrawLine(int left, int top, int right, int bottom) override;
  void DrawBox(const Area& area) override;
  void DrawPicture(const FormPicture& picture, int left, int top) override;
  void NewPage() override;
  void EndDoc() override;

 private:
  void UseTwips();

  QPrinter& printer_;
  QPainter painter_;
};

}  // namespace brindlepage
