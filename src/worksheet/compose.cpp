#include "worksheet/compose.h"

namespace brindlepage::compose {

std::string NameAndDate(NameLine width) {
  const std::size_t blanks = width == NameLine::Narrow ? 5 : width == NameLine::Wide ? 28 : 36;
  return "Name" + std::string(29, '_') + std::string(blanks, ' ') + "Date" + std::string(15, '_');
}

void CaretToEnd(RichText& box) { box.SelStart(box.TextLength()); }

void AppendRun(RichText& box, std::string_view text) { box.SelText(text); }

void WriteNameDateLine(RichText& box, NameLine width) {
  AppendRun(box, kLineFeed + NameAndDate(width) + kLineFeed);
}

void WriteTitleBlock(RichText& box, std::string_view title) {
  box.SelFontSize(18);
  box.SelBold(true);
  AppendRun(box, kLineFeed + std::string(title) + kLineFeed);
}

void WriteCentredLine(RichText& box, std::string_view text) {
  box.SelAlignment(Alignment::Centre);
  AppendRun(box, std::string(text) + kLineFeed);
  box.SelAlignment(Alignment::Right);
}

void BeginSheet(RichText& box, NameLine width, std::string_view title) {
  box.Text("");
  box.SelFontSize(10);
  box.SelFontName(kTimes);
  box.SelAlignment(Alignment::Centre);
  WriteNameDateLine(box, width);
  WriteTitleBlock(box, title);
  CaretToEnd(box);
  box.SelFontSize(12);
  box.SelBold(false);
}

void WriteDirections(RichText& box, std::string_view run) {
  box.SelBold(true);
  box.SelItalic(true);
  AppendRun(box, run);
  CaretToEnd(box);
  box.SelItalic(false);
  box.SelBold(false);
}

void BeginKey(RichText& box, std::string_view title) {
  box.Text("");
  box.SelFontSize(16);
  box.SelAlignment(Alignment::Centre);
  AppendRun(box, kLineFeed + std::string(title) + kLineFeed);
  box.SelUnderline(true);
  box.SelFontSize(14);
  AppendRun(box, "Answer Key\n\n");
  box.SelAlignment(Alignment::Left);
  box.SelUnderline(false);
}

}  // namespace brindlepage::compose
