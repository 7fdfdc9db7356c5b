#include "worksheet/rtf_words.h"

#include <array>
#include <cstddef>

#include "worksheet/rich_text.h"

namespace brindlepage {

namespace {

struct Named {
  std::string_view name;
  RtfWord word;
};

constexpr Named Of(std::string_view name, RtfEffect effect, int value = 0) {
  return {name, {effect, value}};
}
constexpr Named Of(std::string_view name, RtfDestination destination) {
  return {name, {RtfEffect::Destination, static_cast<int>(destination)}};
}
constexpr Named Of(std::string_view name, Alignment alignment) {
  return {name, {RtfEffect::Align, static_cast<int>(alignment)}};
}
constexpr Named Of(std::string_view name, char32_t character) {
  return {name, {RtfEffect::Character, static_cast<int>(character)}};
}

using enum RtfEffect;
using D = RtfDestination;

constexpr Named kWords[] = {
    Of("tab", U'\t'),
    Of("emdash", U'\u2014'),
    Of("endash", U'\u2013'),
    Of("emspace", U'\u2003'),
    Of("enspace", U'\u2002'),
    Of("qmspace", U'\u2005'),
    Of("bullet", U'\u2022'),
    Of("lquote", U'\u2018'),
    Of("rquote", U'\u2019'),
    Of("ldblquote", U'\u201C'),
    Of("rdblquote", U'\u201D'),
    Of("zwj", U'\u200D'),
    Of("zwnj", U'\u200C'),
    Of("zwbo", U'\u200B'),
    Of("zwnbo", U'\u2060'),
    Of("ltrmark", U'\u200E'),
    Of("rtlmark", U'\u200F'),

    Of("par", Paragraph),
    Of("line", Line),
    Of("lbr", Line),
    Of("softline", Line),
    Of("page", Break),
    Of("sect", Break),
    Of("column", Break),
    Of("softpage", Break),
    Of("cell", Cell),
    Of("nestcell", Cell),
    Of("row", Row),
    Of("nestrow", Row),
    Of("u", Unicode),
    Of("uc", UnicodeCount),

    Of("plain", Plain),
    Of("f", Font),
    Of("fs", Size),
    Of("fstwips", ExactSize),
    Of("b", Bold),
    Of("i", Italic),
    Of("ul", Underline),
    Of("uld", Underline),
    Of("uldb", Underline),
    Of("ulw", Underline),
    Of("ulth", Underline),
    Of("uldash", Underline),
    Of("uldashd", Underline),
    Of("uldashdd", Underline),
    Of("ulwave", Underline),
    Of("ulhwave", Underline),
    Of("ululdbwave", Underline),
    Of("ulthd", Underline),
    Of("ulthdash", Underline),
    Of("ulthdashd", Underline),
    Of("ulthdashdd", Underline),
    Of("ulldash", Underline),
    Of("ulthldash", Underline),
    Of("ulnone", NoUnderline),
    Of("v", Hidden),
    Of("deleted", Hidden),
    Of("cf", Color),

    Of("pard", PlainParagraph),
    Of("ql", Alignment::Left),
    Of("qj", Alignment::Left),
    Of("qd", Alignment::Left),
    Of("qr", Alignment::Right),
    Of("qc", Alignment::Centre),
    Of("s", Style),
    Of("cs", CharacterStyle),
    Of("ts", TableStyle),
    Of("ds", TableStyle),
    Of("sbasedon", BasedOn),

    Of("ansi", CodePage, 1252),
    Of("mac", CodePage, 10000),
    Of("pc", CodePage, 437),
    Of("pca", CodePage, 850),
    Of("ansicpg", CodePage),
    Of("deff", DefaultFont),
    Of("fcharset", Charset),
    Of("cpg", FontCodePage),
    Of("red", Red),
    Of("green", Green),
    Of("blue", Blue),

    Of("pngblip", PictureKind, 0),
    Of("jpegblip", PictureKind, 1),
    Of("dibitmap", PictureKind, 2),
    Of("wmetafile", PictureKind, 3),
    Of("emfblip", PictureKind, 4),
    Of("gifblip", PictureKind, 5),
    Of("picw", PictureWidth),
    Of("pich", PictureHeight),
    Of("picwgoal", GoalWidth),
    Of("pichgoal", GoalHeight),
    Of("picscalex", ScaleWidth),
    Of("picscaley", ScaleHeight),

    Of("fonttbl", D::FontTable),
    Of("colortbl", D::ColorTable),
    Of("stylesheet", D::StyleSheet),
    Of("pict", D::Picture),
    Of("fileheader", D::PictureHeader),
    Of("upr", D::Alternatives),
    Of("ud", D::UnicodeText),
    Of("shppict", D::PictureShown),
    Of("nonshppict", D::PictureFallback),
    Of("shpinst", D::Shape),
    Of("shptxt", D::ShapeText),
    Of("nesttableprops", D::Transparent),

    Of("annotation", D::Skipped),
    Of("aftncn", D::Skipped),
    Of("aftnsep", D::Skipped),
    Of("aftnsepc", D::Skipped),
    Of("bkmkend", D::Skipped),
    Of("bkmkstart", D::Skipped),
    Of("colorschememapping", D::Skipped),
    Of("datastore", D::Skipped),
    Of("docvar", D::Skipped),
    Of("filetbl", D::Skipped),
    Of("fldinst", D::Skipped),
    Of("footer", D::Skipped),
    Of("footerf", D::Skipped),
    Of("footerl", D::Skipped),
    Of("footerr", D::Skipped),
    Of("footnote", D::Skipped),
    Of("ftncn", D::Skipped),
    Of("ftnsep", D::Skipped),
    Of("ftnsepc", D::Skipped),
    Of("generator", D::Skipped),
    Of("header", D::Skipped),
    Of("headerf", D::Skipped),
    Of("headerl", D::Skipped),
    Of("headerr", D::Skipped),
    Of("info", D::Skipped),
    Of("latentstyles", D::Skipped),
    Of("listoverridetable", D::Skipped),
    Of("listpicture", D::Skipped),
    Of("listtable", D::Skipped),
    Of("nonesttables", D::Skipped),
    Of("objalias", D::Skipped),
    Of("objclass", D::Skipped),
    Of("objdata", D::Skipped),
    Of("objname", D::Skipped),
    Of("objsect", D::Skipped),
    Of("pgptbl", D::Skipped),
    Of("pn", D::Skipped),
    Of("private", D::Skipped),
    Of("revtbl", D::Skipped),
    Of("rsidtbl", D::Skipped),
    Of("rxe", D::Skipped),
    Of("shprslt", D::Skipped),
    Of("tc", D::Skipped),
    Of("template", D::Skipped),
    Of("themedata", D::Skipped),
    Of("userprops", D::Skipped),
    Of("xe", D::Skipped),
    Of("xmlnstbl", D::Skipped),
};

// An open hash table, filled by the compiler.
constexpr std::size_t kSlots = 512;
static_assert(std::size(kWords) * 2 < kSlots);

constexpr std::size_t Slot(std::string_view name) {
  std::size_t hash = name.size();
  for (const char letter : name) hash = hash * 31 + static_cast<unsigned char>(letter);
  return (hash ^ hash >> 9) % kSlots;
}

constexpr auto kTable = [] {
  std::array<Named, kSlots> table{};
  for (const Named& word : kWords) {
    std::size_t slot = Slot(word.name);
    while (!table[slot].name.empty()) slot = (slot + 1) % kSlots;
    table[slot] = word;
  }
  return table;
}();

constexpr std::size_t kLongest = 18;

// Names are too short for the ways of the library to be worth their while.
bool AreEqual(std::string_view left, std::string_view right) {
  if (left.size() != right.size()) return false;
  std::size_t i = 0;
  while (i < left.size() && left[i] == right[i]) ++i;
  return i == left.size();
}

}  // namespace

RtfWord FindRtfWord(std::string_view name) {
  if (name.size() > kLongest) return {};
  for (std::size_t slot = Slot(name); !kTable[slot].name.empty(); slot = (slot + 1) % kSlots) {
    if (AreEqual(kTable[slot].name, name)) return kTable[slot].word;
  }
  return {};
}

}  // namespace brindlepage
