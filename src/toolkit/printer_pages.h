#pragma once

#include <string>
#include <string_view>

#include "toolkit/geometry.h"
#include "toolkit/picture.h"

namespace brindlepage {

struct PrinterFont {
  std::string name;  // Windows-1252
  double points = 0;
  bool bold = false;
  bool underline = false;
};

// Paper to draw on, page by page, each place in twips from the page's upper left corner. What is
// drawn beyond an edge is cut off. A printer that fails throws RunTimeError 57.
class PrinterPages {
 public:
  virtual ~PrinterPages() = default;

  virtual Size PageSize() const = 0;
  virtual int LineHeight(const PrinterFont& font) const = 0;

  // One line, its upper left corner at that place.
  virtual void DrawText(std::string_view text, int left, int top, const PrinterFont& font) = 0;
  virtual void DrawLine(int left, int top, int right, int bottom) = 0;
  virtual void DrawBox(const Area& area) = 0;
  // As large as the picture is on paper.
  virtual void DrawPicture(const FormPicture& picture, int left, int top) = 0;
  virtual void NewPage() = 0;
  // Sends the pages to the printer. Pages that go without it may be lost.
  virtual void EndDoc() = 0;
};

}  // namespace brindlepage
