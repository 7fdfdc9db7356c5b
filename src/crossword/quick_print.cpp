#include "crossword/quick_print.h"

#include "toolkit/code_page.h"
#include "toolkit/platform.h"
#include "worksheet/compose.h"

namespace brindlepage {

namespace {

constexpr int kTitleCharacter = 250;  // twips, about as wide as a character of the title
constexpr int kAbovePicture = 400;    // twips, from the picture to the clues
constexpr char kNameLine[] =
    "              Name_______________________________                Date____________________";

// A pen that writes line by line down the pages.
struct Writer {
  PrinterPages& pages;
  PrinterFont font;
  int x = 0;
  int y = 0;

  void PrintLine(std::string_view text) {
    const int height = pages.LineHeight(font);
    if (y + height > pages.PageSize().height) {
      pages.NewPage();
      y = 0;
    }
    if (!text.empty()) pages.DrawText(text, x, y, font);
    x = 0;
    y += height;
  }

  void PrintLines(std::string_view text) {
    while (!text.empty()) {
      const auto end = text.find('\n');
      PrintLine(text.substr(0, end));
      text.remove_prefix(end == text.npos ? text.size() : end + 1);
    }
  }
};

void WriteName(Writer& writer) {
  writer.PrintLine("");
  writer.PrintLine(kNameLine);
  writer.font.points = 8;
  writer.PrintLine("");
}

void WriteTitle(Writer& writer, const std::string& title) {
  writer.x = (writer.pages.PageSize().width - kTitleCharacter * static_cast<int>(title.size())) / 2;
  writer.font.points = 16;
  writer.font.bold = true;
  writer.PrintLine(title);
  writer.font.points = 10;
}

void WriteClues(Writer& writer, const char* heading, const RichText& clues) {
  writer.font.bold = true;
  writer.font.underline = true;
  writer.PrintLine(heading);
  writer.font.bold = false;
  writer.font.underline = false;
  writer.PrintLines(code_page::FromUnicode(clues.PlainText()));
}

}  // namespace

void PrintCrossword(Platform& platform, CrossWordFill& fill, const std::string& title) {
  const FormPicture picture = platform.PictureOf(fill);
  const auto pages = platform.StartPages();
  pages->DrawPicture(picture, 0, 0);
  Writer writer{*pages, {compose::kTimes, 12}};
  WriteName(writer);
  WriteTitle(writer, title);
  writer.y = fill.Picture2.Height + kAbovePicture;
  WriteClues(writer, "Across", fill.ClueBox);
  WriteClues(writer, "Down", fill.ClueBox2);
  pages->EndDoc();
}

void PrintPicture(Platform& platform, Form& form) {
  const FormPicture picture = platform.PictureOf(form);
  const auto pages = platform.StartPages();
  pages->DrawPicture(picture, 0, 0);
  pages->EndDoc();
}

}  // namespace brindlepage
