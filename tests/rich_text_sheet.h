#pragma once

#include <initializer_list>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "toolkit/run_time_error.h"
#include "worksheet/rich_text.h"

namespace brindlepage {

using Strings = std::vector<std::string>;

inline constexpr Alignment kLeft = Alignment::Left;
inline constexpr Alignment kRight = Alignment::Right;
inline constexpr Alignment kCentre = Alignment::Centre;

struct Sheet : RichText {
  Sheet() : RichText("Courier New", 9.75) {}
};

inline CharFormat Design() {
  CharFormat format;
  format.font = "Courier New";
  format.size = 195;
  return format;
}

inline CharFormat Bold() {
  CharFormat format = Design();
  format.bold = true;
  return format;
}

inline CharFormat Italic() {
  CharFormat format = Design();
  format.italic = true;
  return format;
}

inline std::shared_ptr<const RichPicture> Picture() {
  return std::make_shared<const RichPicture>(RichPicture{"png", "bytes", 3000, 2000});
}

inline CharFormat With(CharFormat format, std::shared_ptr<const RichPicture> picture) {
  format.picture = std::move(picture);
  return format;
}

// The document's plain text, for texts of ASCII.
inline std::string Plain(const RichText& sheet) {
  const std::u32string text = sheet.PlainText();
  return {text.begin(), text.end()};
}

// A letter for each paragraph: l, r or c.
inline std::string Alignments(const RichText& sheet) {
  std::string letters;
  for (const RichText::Paragraph& paragraph : sheet.Paragraphs()) {
    letters += "lrc"[static_cast<int>(paragraph.alignment)];
  }
  return letters;
}

// A letter for each character: b where it is bold, else a dot.
inline std::string Bolds(const RichText& sheet) {
  std::string letters;
  for (int i = 0; i < sheet.Length(); ++i) letters += sheet.FormatAt(i).bold ? 'b' : '.';
  return letters;
}

// "plain BOLD plain" with the middle word bold; the caret at the end.
inline void WriteWithBoldMiddle(RichText& sheet) {
  sheet.SelText("plain ");
  sheet.SelBold(true);
  sheet.SelText("BOLD");
  sheet.SelBold(false);
  sheet.SelText(" plain");
}

template <class Action>
int FaultNumber(Action action) {
  try {
    action();
  } catch (const RunTimeError& error) {
    return error.Number();
  }
  return 0;
}

// Writes down what it is told.
struct Diary : RichTextObserver {
  Strings lines;
  void Replaced(int position, int removed, int inserted) override {
    Add("replaced", {position, removed, inserted});
  }
  void Reformatted(int position, int count) override { Add("reformatted", {position, count}); }
  void ParagraphsAligned(int position, int count) override { Add("aligned", {position, count}); }
  void CaretMoved() override { Add("caret", {}); }
  void Add(std::string line, std::initializer_list<int> numbers) {
    for (const int number : numbers) line += " " + std::to_string(number);
    lines.push_back(line);
  }
};

}  // namespace brindlepage
