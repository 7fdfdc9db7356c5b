// Rich text as other programs put it on the clipboard, and as this one does.

#include "worksheet/pasted_rtf.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/rtf_tools.h"
#include "worksheet/rtf_writer.h"

namespace brindlepage {
namespace {

using rtf_tools::File;
using rtf_tools::RunsOf;
using rtf_tools::Sheet;
using rtf_tools::TextOf;

constexpr int kColumn = 10800;  // twips

// What is pasted into an empty sheet; "refused" if it is.
std::string Pasted(std::string_view bytes, std::u32string_view words) {
  const auto stretch = PastedRtf(bytes, words, kColumn);
  if (!stretch) return "refused";
  Sheet sheet;
  sheet.SelContent(*stretch);
  return RunsOf(sheet);
}
std::string PastedText(std::string_view body, std::u32string_view words) {
  const auto stretch = PastedRtf(File(body), words, kColumn);
  if (!stretch) return "refused";
  Sheet sheet;
  sheet.SelContent(*stretch);
  return TextOf(sheet);
}

// A PNG's data don't matter here.
std::string Picture(int width, int height) {
  return "{\\pict\\pngblip\\picwgoal" + std::to_string(width) + "\\pichgoal" +
         std::to_string(height) + " 89504e470d0a1a0a}";
}

// As a word processor copies it: tables of which most is of no use, groups around every piece.
constexpr char kCopied[] =
    "{\\rtf1\\ansi\\deff3\\adeflang1025\n"
    "{\\fonttbl{\\f0\\froman\\fprq2\\fcharset0 Times New Roman;}"
    "{\\f3\\fswiss\\fprq2\\fcharset0 Liberation Sans{\\*\\falt Arial};}"
    "{\\f4\\fnil\\fprq2\\fcharset0 DejaVu Sans;}}\n"
    "{\\colortbl;\\red0\\green0\\blue0;\\red201\\green33\\blue30;}\n"
    "{\\stylesheet{\\s0\\snext0\\ql\\f0\\fs24 Normal;}"
    "{\\s16\\sbasedon0\\snext16\\qc\\f3\\fs56\\b Title;}}\n"
    "{\\*\\generator An office of some kind}{\\info{\\creatim\\yr2024\\mo5\\dy4}{\\author Ann}}\n"
    "\\pard\\plain \\s16\\qc\\f3\\fs56\\b{\\loch\nVolcanoes}\n"
    "\\par \\pard\\plain \\s0\\ql\\f0\\fs24{\\loch\nHot }{\\cf2\\i\\ul\\loch\nlava}{\\loch\n, "
    "na\\'efve \\u8211\\'96 {\\*\\bkmkstart here}ash{\\*\\bkmkend here}}\n"
    "\\par \\pard\\plain \\s0\\qr\\f4\\fs19{\\loch\nright}}";

TEST(PastedRtf, BringsFontsSizesStylesColoursAndAlignmentsAlong) {
  EXPECT_EQ(Pasted(kCopied, U"Volcanoes\nHot lava, na\u00EFve \u2013 ash\nright"),
            "paragraph centre\n"
            "run \"Liberation Sans\" 28 b-- 000000 \"Volcanoes\\n\"\n"
            "paragraph left\n"
            "run \"Times New Roman\" 12 --- 000000 \"Hot \"\n"
            "run \"Times New Roman\" 12 -iu C9211E \"lava\"\n"
            "run \"Times New Roman\" 12 --- 000000 \", na\u00EFve \u2013 ash\\n\"\n"
            "paragraph right\n"
            "run \"DejaVu Sans\" 9.5 --- 000000 \"right\"\n");
}

TEST(PastedRtf, ThePlainWordsTellWhetherTheLastParagraphsEndWasCopied) {
  EXPECT_EQ(PastedText("ash\\par", U"ash"), "ash");
  EXPECT_EQ(PastedText("ash\\par", U"ash\n"), "ash\n");
  EXPECT_EQ(PastedText("ash\\par", U"ash\r\n"), "ash\n");
  EXPECT_EQ(PastedText("ash\\par\\par", U"ash\n"), "ash\n\n");
  EXPECT_EQ(PastedText("ash", U"ash\n"), "ash");
  EXPECT_EQ(PastedText("ash\\par\\pard\\ql{}", U"ash\n"), "ash\n");
}

TEST(PastedRtf, WithoutPlainWordsTheParagraphsEndCounts) {
  EXPECT_EQ(PastedText("ash\\par", U""), "ash\n");
  EXPECT_EQ(PastedText("ash", U""), "ash");
}

TEST(PastedRtf, PicturesWiderThanTheColumnAreShownAsWideAsThat) {
  const auto size = [](int width, int height) {
    const auto stretch = PastedRtf(File("a" + Picture(width, height)), U"a", kColumn);
    const auto& picture = stretch->formats.back().picture;
    return std::pair(picture->width, picture->height);
  };
  EXPECT_EQ(size(10800, 5000), std::pair(10800, 5000));
  EXPECT_EQ(size(21600, 5000), std::pair(10800, 2500));
  EXPECT_EQ(size(100000, 1), std::pair(10800, 1));
  EXPECT_EQ(size(300, 40000), std::pair(300, 40000));
}

TEST(PastedRtf, APictureAloneIsSomethingToShow) {
  EXPECT_EQ(Pasted(File(Picture(1500, 750)), U""), "paragraph left\npicture png 1500 750\n");
}

TEST(PastedRtf, BlanksAloneAreNothingToShow) {
  EXPECT_EQ(PastedText("", U"ash"), "refused");
  EXPECT_EQ(PastedText("\\par\\par", U"ash"), "refused");
  EXPECT_EQ(PastedText(" \\tab\\~\\line", U"ash"), "refused");
  EXPECT_EQ(PastedText("{\\v hidden}", U"ash"), "refused");
  EXPECT_EQ(PastedText("{\\pict\\macpict 0011}", U""), "refused");
}

TEST(PastedRtf, WhatIsNoRichTextIsRefused) {
  EXPECT_EQ(Pasted("", U"ash"), "refused");
  EXPECT_EQ(Pasted("ash", U"ash"), "refused");
  EXPECT_EQ(Pasted("<b>ash</b>", U"ash"), "refused");
  EXPECT_EQ(Pasted(std::string(100000, '{'), U"ash"), "refused");
  const std::string deep = std::string(1000, '{').append("ash").append(1000, '}');
  EXPECT_EQ(Pasted(File(deep), U""), "refused");
  EXPECT_EQ(Pasted(File("{\\pict\\pngblip\\bin999999999 ab}"), U"ash"), "refused");
}

TEST(PastedRtf, CutAnywhereItIsRefused) {
  const std::string whole = kCopied;
  for (std::size_t length = 0; length < whole.size(); ++length) {
    ASSERT_EQ(Pasted(whole.substr(0, length), U"ash"), "refused") << length;
  }
}

TEST(PastedRtf, WhatStandsBehindTheEndIsLeftOut) {
  EXPECT_EQ(Pasted(File("ash") + '\0' + "more", U"ash"), Pasted(File("ash"), U"ash"));
}

// --- What this program copies

std::string Copied(const RichText& sheet, int start, int count) {
  return WriteRtfStretch(sheet.Content(start, count));
}

TEST(WriteRtfStretch, LeavesTheLastParagraphOpen) {
  Sheet sheet;
  sheet.SelText("lava\nash");
  EXPECT_TRUE(Copied(sheet, 0, 4).ends_with(" lava}"));
  EXPECT_TRUE(Copied(sheet, 0, 5).ends_with(" lava\\par\n}"));
  EXPECT_TRUE(Copied(sheet, 0, 8).ends_with(" lava\\par\nash}"));
}

TEST(WriteRtfStretch, IsReadBackAsTheSameStretchWhereverItIsCut) {
  Sheet sheet(File("\\qc\\fs40\\b Title\\par\\pard\\ql\\b0\\fs19\\cf1 red\\u8211? " +
                   Picture(1500, 750) + "\\par\\par\\qr\\i\\f1 end\\par"));
  for (int start = 0; start < sheet.Length(); ++start) {
    for (int count = 1; start + count <= sheet.Length(); ++count) {
      const RichContent stretch = sheet.Content(start, count);
      std::u32string words = stretch.text;
      std::erase(words, U'\uFFFC');
      const auto read = PastedRtf(WriteRtfStretch(stretch), words, kColumn);
      if (!read) {
        ASSERT_EQ(stretch.text.find_first_not_of(U" \n"), std::u32string::npos);
        continue;
      }
      Sheet one, other;
      one.Load(stretch);
      other.Load(*read);
      ASSERT_EQ(RunsOf(one), RunsOf(other)) << start << ' ' << count;
    }
  }
}

}  // namespace
}  // namespace brindlepage
