#pragma once

#include <string>
#include <vector>

#include "toolkit/code_page.h"
#include "worksheet/rich_text.h"

namespace brindlepage {

// A document as its runs: "font size style alignment|text", the size in twentieths of a point.
inline std::vector<std::string> Runs(const RichText& box) {
  std::vector<std::string> runs;
  for (const auto& paragraph : box.Paragraphs()) {
    for (const auto& run : box.Runs(paragraph)) {
      const CharFormat& format = *run.format;
      std::string line = format.font + " " + std::to_string(format.size) + " ";
      line += format.bold ? 'b' : '-';
      line += format.italic ? 'i' : '-';
      line += format.underline ? 'u' : '-';
      line += std::string(" ") + "lrc"[static_cast<int>(paragraph.alignment)] + "|";
      const std::u32string text = box.PlainText();
      line += code_page::FromUnicode(
          text.substr(static_cast<std::size_t>(run.start), static_cast<std::size_t>(run.length)));
      runs.push_back(line);
    }
  }
  return runs;
}

inline std::string PlainBytes(const RichText& box) {
  return code_page::FromUnicode(box.PlainText());
}

// The narrow name line.
inline const std::string kNarrow = "Name_____________________________     Date_______________";

}  // namespace brindlepage
