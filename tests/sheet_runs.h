#pragma once

#include <string>
#include <vector>

#include "worksheet/rich_text.h"

namespace brindlepage {

// A document as its runs, each "font size style alignment|text", the size in twentieths of a
// point: "Times New Roman 240 b-- c|Directions\n".
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
      for (int i = run.start; i < run.start + run.length; ++i) {
        line += static_cast<char>(box.CharacterAt(i));
      }
      runs.push_back(line);
    }
  }
  return runs;
}

// The text of a document without characters beyond the first 256, a line end as one '\n'.
inline std::string PlainText(const RichText& box) {
  std::string text;
  for (const char32_t c : box.PlainText()) text += static_cast<char>(c);
  return text;
}

}  // namespace brindlepage
