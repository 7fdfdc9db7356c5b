#include "walk/walk_pages.h"

#include <initializer_list>
#include <string>

#include "walk/print.h"

namespace brindlepage::walk {

namespace {

std::string Numbers(std::initializer_list<int> numbers) {
  std::string text;
  for (const int number : numbers) text += ' ' + std::to_string(number);
  return text;
}

}  // namespace

void WalkPages::DrawText(std::string_view text, int left, int top, const PrinterFont& font) {
  const std::string style = {font.bold ? 'b' : '-', '-', font.underline ? 'u' : '-'};
  Say(out_, "page-text" + Numbers({left, top}) + ' ' + QuotedBytes(font.name) + ' ' +
                PrintedNumber(font.points) + ' ' + style + ' ' + QuotedBytes(text));
}

void WalkPages::DrawLine(int left, int top, int right, int bottom) {
  Say(out_, "page-line" + Numbers({left, top, right, bottom}));
}

void WalkPages::DrawBox(const Area& area) {
  Say(out_, "page-box" + Numbers({area.left, area.top, area.width, area.height}));
}

void WalkPages::DrawPicture(const FormPicture& picture, int left, int top) {
  Say(out_, "page-picture" + Numbers({left, top}) + ' ' + picture.format +
                Numbers({picture.width, picture.height}));
}

void WalkPages::NewPage() { Say(out_, "page-new"); }

void WalkPages::EndDoc() { Say(out_, "pages-printed"); }

}  // namespace brindlepage::walk
