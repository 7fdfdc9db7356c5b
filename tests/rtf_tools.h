#pragma once

#include <sstream>
#include <string>
#include <string_view>

#include "toolkit/code_page.h"
#include "walk/print.h"
#include "worksheet/rich_text.h"
#include "worksheet/rtf_reader.h"
#include "worksheet/rtf_writer.h"

// Documents and rich text files as tests ask for them.
namespace brindlepage::rtf_tools {

struct Sheet : RichText {
  Sheet() : RichText("Courier New", 9.75) {}
  explicit Sheet(std::string_view file) : Sheet() { ReadRtf(file, *this); }
};

// The text in UTF-8, a line end as one '\n'.
inline std::string TextOf(const RichText& document) {
  return code_page::UnicodeToUtf8(document.PlainText());
}

// Paragraphs and runs, as a walk prints them.
inline std::string RunsOf(const RichText& document) {
  std::ostringstream out;
  walk::PrintRuns(out, document);
  return out.str();
}

// A file with Arial, Courier New and Symbol as fonts 0 to 2, red and blue as colours 1 and 2.
inline std::string File(std::string_view body) {
  return "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fswiss\\fcharset0 Arial;}"
         "{\\f1\\fmodern\\fcharset0 Courier New;}{\\f2\\froman\\fcharset2 Symbol;}}"
         "{\\colortbl;\\red255\\green0\\blue0;\\red0\\green0\\blue255;}\n" +
         std::string(body) + "}";
}

inline std::string ReadText(std::string_view body) { return TextOf(Sheet(File(body))); }
inline std::string ReadRuns(std::string_view body) { return RunsOf(Sheet(File(body))); }

}  // namespace brindlepage::rtf_tools
