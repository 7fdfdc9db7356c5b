#include "worksheet/rtf_fonts.h"

#include <algorithm>
#include <iterator>
#include <string>

#include "toolkit/code_page.h"

namespace brindlepage {

namespace {

constexpr RtfFontKind kFixed{"\\fmodern\\fprq1", ""};
constexpr RtfFontKind kRoman{"\\froman\\fprq2", ""};
constexpr RtfFontKind kSwiss{"\\fswiss\\fprq2", ""};
constexpr RtfFontKind kScript{"\\fscript\\fprq2", ""};
constexpr RtfFontKind kUnknown{"\\fnil", ""};

struct Known {
  std::string_view name;  // in small letters
  RtfFontKind kind;
};

constexpr Known kFonts[] = {
    {"courier new", kFixed},
    {"courrier new", {kFixed.words, "Courier New"}},
    {"courier", kFixed},
    {"consolas", kFixed},
    {"lucida console", kFixed},
    {"liberation mono", kFixed},
    {"dejavu sans mono", kFixed},
    {"monospace", kFixed},
    {"times new roman", kRoman},
    {"times", kRoman},
    {"liberation serif", kRoman},
    {"dejavu serif", kRoman},
    {"georgia", kRoman},
    {"garamond", kRoman},
    {"cambria", kRoman},
    {"book antiqua", kRoman},
    {"bookman old style", kRoman},
    {"century schoolbook", kRoman},
    {"palatino linotype", kRoman},
    {"serif", kRoman},
    {"arial", kSwiss},
    {"helvetica", kSwiss},
    {"liberation sans", kSwiss},
    {"dejavu sans", kSwiss},
    {"calibri", kSwiss},
    {"century gothic", kSwiss},
    {"segoe ui", kSwiss},
    {"tahoma", kSwiss},
    {"trebuchet ms", kSwiss},
    {"verdana", kSwiss},
    {"sans serif", kSwiss},
    {"comic sans ms", kScript},
};

}  // namespace

RtfFontKind RtfKindOfFont(std::string_view name) {
  const std::string small = code_page::LowerCase(name);
  const auto* const known = std::find_if(std::begin(kFonts), std::end(kFonts),
                                         [&](const Known& font) { return font.name == small; });
  return known == std::end(kFonts) ? kUnknown : known->kind;
}

}  // namespace brindlepage
