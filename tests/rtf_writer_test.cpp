#include "worksheet/rtf_writer.h"

#include <gtest/gtest.h>

#include <memory>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "fuzz/rtf_check.h"
#include "tests/rtf_tools.h"

namespace brindlepage {
namespace {

using namespace std::string_literals;
using rtf_tools::RunsOf;
using rtf_tools::Sheet;
using rtf_tools::TextOf;

constexpr char kFonts[] = "{\\rtf1\\ansi\\ansicpg1252\\uc1\\deff0\n{\\fonttbl";
constexpr char kCourierNew[] = "{\\f0\\fmodern\\fprq1\\fcharset0 Courier New;}";
constexpr char kPage[] =
    "\\paperw12240\\paperh15840\\margl720\\margr720\\margt1080\\margb1080\\dntblnsbdb\n\\pard\\plai"
    "n";

// The whole file of a text in the box's own font.
std::string File(std::string_view text) {
  return kFonts + std::string(kCourierNew) + "}\n{\\colortbl;}\n" + kPage +
         "\\f0\\fs20\\fstwips195" + std::string(text) + "}";
}

std::string Body(const RichText& sheet) {
  const std::string file = WriteRtf(sheet);
  const std::size_t start = file.find(kPage);
  return start == file.npos ? file : file.substr(start + sizeof kPage - 1);
}

void ExpectComesBack(const RichText& sheet) {
  const std::string saved = WriteRtf(sheet);
  RichText again("Times New Roman", 14.25);
  ReadRtf(saved, again);
  EXPECT_TRUE(SameDocument(sheet, again)) << RunsOf(sheet) << RunsOf(again) << saved;
  EXPECT_EQ(WriteRtf(again), saved);
}

TEST(RtfWriter, AnEmptyDocumentIsAnEmptyParagraph) {
  EXPECT_EQ(WriteRtf(Sheet()),
            kFonts + std::string(kCourierNew) + "}\n{\\colortbl;}\n" + kPage + "\\par\n}");
  ExpectComesBack(Sheet());
}

TEST(RtfWriter, AnEmptyDocumentIsTheSameInEveryBox) {
  EXPECT_EQ(WriteRtf(RichText("Times New Roman", 14.25)), WriteRtf(Sheet()));
}

TEST(RtfWriter, EveryParagraphEndsWithPar) {
  Sheet sheet;
  sheet.Text("lava");
  EXPECT_EQ(WriteRtf(sheet), File(" lava\\par\n"));
  sheet.Text("lava\nash\n");
  EXPECT_EQ(WriteRtf(sheet), File(" lava\\par\nash\\par\n\\par\n"));
  ExpectComesBack(sheet);
  sheet.Text("\n\n");
  EXPECT_EQ(WriteRtf(sheet), File("\\par\n\\par\n\\par\n"));
  ExpectComesBack(sheet);
}

TEST(RtfWriter, FontsTellTheirFamilyAndPitch) {
  Sheet sheet;
  for (const char* font : {"Times New Roman", "courier new", "Courrier New", "Arial",
                           "Comic Sans MS", "Aardvark", "Times New Roman"}) {
    sheet.SelFontName(font);
    sheet.SelText("x");
  }
  const std::string file = WriteRtf(sheet);
  EXPECT_EQ(file.substr(0, file.find("\n{\\colortbl")),
            kFonts +
                "{\\f0\\froman\\fprq2\\fcharset0 Times New Roman;}"
                "{\\f1\\fmodern\\fprq1\\fcharset0 courier new;}"
                "{\\f2\\fmodern\\fprq1\\fcharset0 Courrier New{\\*\\falt Courier New};}"
                "{\\f3\\fswiss\\fprq2\\fcharset0 Arial;}"
                "{\\f4\\fscript\\fprq2\\fcharset0 Comic Sans MS;}"
                "{\\f5\\fnil\\fcharset0 Aardvark;}}"s);
  EXPECT_EQ(Body(sheet), "\\f0\\fs20\\fstwips195 x\\f1 x\\f2 x\\f3 x\\f4 x\\f5 x\\f0 x\\par\n}");
  ExpectComesBack(sheet);
}

TEST(RtfWriter, FontNamesMayHoldAnything) {
  for (const char* font : {"", " ", " Blank ", "a;b", "{\\b}", "Caf\xE9", "\x81\x80", "a\nb\tc"}) {
    Sheet sheet;
    sheet.SelFontName(font);
    sheet.SelText("x");
    ExpectComesBack(sheet);
  }
}

TEST(RtfWriter, FontNamesThatDifferBeyondTheirLongestAreOne) {
  Sheet sheet;
  for (const char* end : {"a", "b"}) {
    sheet.SelFontName(std::string(128, 'F') + end);
    sheet.SelText("x");
  }
  const std::string saved = WriteRtf(sheet);
  EXPECT_EQ(WriteRtf(Sheet(saved)), saved);
}

TEST(RtfWriter, SizesAreTheNearestHalfPointsAndExactBesides) {
  Sheet sheet;
  for (const double points : {10.0, 9.75, 14.25, 14.5, 1.0, 1.05, 1638.0}) {
    sheet.SelFontSize(points);
    sheet.SelText("x");
  }
  EXPECT_EQ(Body(sheet),
            "\\f0\\fs20 x\\fs20\\fstwips195 x\\fs29\\fstwips285 x\\fs29 x\\fs2 x"
            "\\fs2\\fstwips21 x\\fs3276 x\\par\n}");
  ExpectComesBack(sheet);
}

TEST(RtfWriter, LooksAreWrittenWhereTheyChange) {
  Sheet sheet;
  sheet.SelFontSize(12);
  sheet.SelBold(true);
  sheet.SelText("bold\n");
  sheet.SelItalic(true);
  sheet.SelUnderline(true);
  sheet.SelText("all");
  sheet.SelBold(false);
  sheet.SelItalic(false);
  sheet.SelUnderline(false);
  sheet.SelColor(0x0000FF);
  sheet.SelText("red");
  sheet.SelColor(0xFF8000);
  sheet.SelText("sky");
  sheet.SelColor(0);
  sheet.SelText("black");
  const std::string file = WriteRtf(sheet);
  EXPECT_NE(file.find("{\\colortbl;\\red255\\green0\\blue0;\\red0\\green128\\blue255;}\n"),
            file.npos);
  EXPECT_EQ(
      Body(sheet),
      "\\f0\\fs24\\b bold\\par\n\\i\\ul all\\cf1\\b0\\i0\\ul0 red\\cf2 sky\\cf0 black\\par\n}");
  ExpectComesBack(sheet);
}

TEST(RtfWriter, AlignmentStandsInFrontOfItsParagraphs) {
  Sheet sheet;
  sheet.SelAlignment(Alignment::Centre);
  sheet.SelText("a\nb\n");
  sheet.SelAlignment(Alignment::Right);
  sheet.SelText("c\n");
  sheet.SelAlignment(Alignment::Left);
  EXPECT_EQ(WriteRtf(sheet),
            kFonts + std::string(kCourierNew) + "}\n{\\colortbl;}\n" + kPage +
                "\\qc\\f0\\fs20\\fstwips195 a\\par\nb\\par\n\\qr c\\par\n\\ql\\par\n}");
  ExpectComesBack(sheet);
}

TEST(RtfWriter, LineEndsHaveLooksToo) {
  Sheet sheet;
  sheet.SelText("a");
  sheet.SelBold(true);
  sheet.SelText("\n");
  sheet.SelBold(false);
  sheet.SelText("b");
  EXPECT_EQ(Body(sheet), "\\f0\\fs20\\fstwips195 a\\b\\par\n\\b0 b\\par\n}");
  ExpectComesBack(sheet);
}

TEST(RtfWriter, CharactersOfTheCodePageAreBytesAndOthersUnicode) {
  Sheet sheet;
  sheet.SelUnicode(U"{a\\b}\t\u00E9\u20AC 1\u03B1\u4E2D\uF0B7\U0001F600\u00A0\u00AD\u2011-");
  EXPECT_EQ(Body(sheet),
            "\\f0\\fs20\\fstwips195\\{a\\\\b\\}\\tab\\'e9\\'80 1\\u945?\\u20013?\\u-3913?"
            "\\u-10179?\\u-8704?\\~\\-\\_-\\par\n}");
  ExpectComesBack(sheet);
}

TEST(RtfWriter, EveryCharacterComesBack) {
  std::u32string all;
  for (char32_t c = 1; c < 0x3100; ++c) all.push_back(c);
  for (char32_t c = 0xD700; c < 0x10100; ++c) all.push_back(c);
  for (char32_t c = 0x10000; c < 0x110000; c += 0x3FF) all.push_back(c);
  Sheet sheet;
  sheet.SelUnicode(all);
  ExpectComesBack(sheet);
}

// --- Pictures

std::shared_ptr<const RichPicture> Picture(std::string format, std::string bytes) {
  return std::make_shared<const RichPicture>(
      RichPicture{std::move(format), std::move(bytes), 300, 150});
}

std::string PictureBody(std::string format, std::string bytes) {
  Sheet sheet;
  sheet.SelText("a");
  sheet.InsertPicture(Picture(std::move(format), std::move(bytes)));
  sheet.SelText("b");
  ExpectComesBack(sheet);
  return Body(sheet).substr("\\f0\\fs20\\fstwips195 "s.size());
}

// Two colours, one dot: 40 bytes of head, a palette, a row.
std::string BitmapData() {
  std::string data(40, '\0');
  data[0] = 40;
  data[4] = data[8] = data[12] = data[14] = 1;
  return data + "\0\0\0\0\xFF\xFF\xFF\0\x80\0\0\0"s;
}
std::string BitmapDataInFile() {
  return "28000000010000000100000001000100000000000000000000000000000000000000000000000000"
         "00000000FFFFFF0080000000";
}
std::string Lines(const std::string& digits) {
  std::string lines;
  for (std::size_t i = 0; i < digits.size(); i += 128) {
    for (const char digit : digits.substr(i, 128)) {
      lines += digit >= 'A' ? static_cast<char>(digit + 32) : digit;
    }
    lines += '\n';
  }
  return lines;
}

TEST(RtfWriter, PicturesAreInLinesOfHexadecimalDigits) {
  EXPECT_EQ(
      PictureBody("png", "\x89PNG" + std::string(62, 'x')),
      "a{\\pict\\pngblip\\picw20\\pich10\\picwgoal300\\pichgoal150\n89504e47" +
          [] {
            std::string digits;
            for (int i = 0; i < 60; ++i) digits += "78";
            return digits;
          }() +
          "\n7878\n}b\\par\n}");
}

TEST(RtfWriter, PicturesTellTheirKind) {
  EXPECT_EQ(PictureBody("jpg", "\xFF\xD8"),
            "a{\\pict\\jpegblip\\picw20\\pich10\\picwgoal300\\pichgoal150\nffd8\n}b\\par\n}");
  EXPECT_EQ(PictureBody("emf", "\x01"),
            "a{\\pict\\emfblip\\picw529\\pich264\\picwgoal300\\pichgoal150\n01\n}b\\par\n}");
  EXPECT_EQ(
      PictureBody("gif", "GIF89a"),
      "a{\\pict\\gifblip\\picw20\\pich10\\picwgoal300\\pichgoal150\n474946383961\n}b\\par\n}");
}

TEST(RtfWriter, ABitmapIsWithoutTheHeaderOfItsFile) {
  const std::string header = "BM\x42\0\0\0\0\0\0\0\x3E\0\0\0"s;
  EXPECT_EQ(PictureBody("bmp", header + BitmapData()),
            "a{\\pict\\dibitmap0\\picw20\\pich10\\picwgoal300\\pichgoal150\n" +
                Lines(BitmapDataInFile()) + "}b\\par\n}");
}

TEST(RtfWriter, AHeaderThatDoesNotFollowStandsBeside) {
  // The file's length is told as 0.
  const std::string header = "BM\0\0\0\0\0\0\0\0\x3E\0\0\0"s;
  EXPECT_EQ(PictureBody("bmp", header + BitmapData()),
            "a{\\pict\\dibitmap0\\picw20\\pich10\\picwgoal300\\pichgoal150"
            "{\\*\\fileheader 424d000000000000000" +
                "03e000000\n}\n"s + Lines(BitmapDataInFile()) + "}b\\par\n}");
  // No header at all.
  EXPECT_EQ(PictureBody("bmp", BitmapData()),
            "a{\\pict\\dibitmap0\\picw20\\pich10\\picwgoal300\\pichgoal150{\\*\\fileheader }\n" +
                Lines(BitmapDataInFile()) + "}b\\par\n}");
}

TEST(RtfWriter, AMetafileIsWithoutItsPlaceableHeader) {
  const std::string placeable =
      "\xD7\xCD\xC6\x9A\0\0\0\0\0\0\x2C\x01\x96\0\xA0\x05\0\0\0\0\x0B\x53"s;
  const std::string data = "\x01\0\x09\0\0\x03"s;
  EXPECT_EQ(PictureBody("wmf", placeable + data),
            "a{\\pict\\wmetafile8\\picw529\\pich264\\picwgoal300\\pichgoal150\n"
            "010009000003\n}b\\par\n}");
  EXPECT_EQ(PictureBody("wmf", data),
            "a{\\pict\\wmetafile8\\picw529\\pich264\\picwgoal300\\pichgoal150{\\*\\fileheader }\n"
            "010009000003\n}b\\par\n}");
}

TEST(RtfWriter, BrokenPicturesComeBackAsTheyAre) {
  for (const char* format : {"png", "jpg", "bmp", "wmf", "emf", "gif"}) {
    for (const std::string& bytes :
         {""s, "B"s, "BM"s, "BM000000000000"s, "BM00000000000000"s, "\xD7\xCD\xC6\x9A"s,
          "\xD7\xCD\xC6\x9A"s + std::string(30, 'x'), "\x28\0\0\0"s, std::string(100, '\xFF'),
          "BM000000000000\x0C\0\0\0"s}) {
      PictureBody(format, bytes);
    }
  }
}

TEST(RtfWriter, PicturesSideBySideStaySeparate) {
  Sheet sheet;
  const auto picture = Picture("png", "one");
  sheet.InsertPicture(picture);
  sheet.InsertPicture(picture);
  sheet.InsertPicture(Picture("png", "two"));
  sheet.SelBold(true);
  sheet.InsertPicture(picture);
  ExpectComesBack(sheet);
  const Sheet again(WriteRtf(sheet));
  EXPECT_EQ(again.FormatAt(1).picture->bytes, "one");
  EXPECT_EQ(again.FormatAt(2).picture->bytes, "two");
  EXPECT_TRUE(again.FormatAt(3).bold);
}

TEST(RtfWriter, WhatADocumentCanNotShowIsWrittenAsFarAsItCan) {
  Sheet sheet;
  CharFormat format = sheet.DesignFormat();
  format.size = 0;
  format.color = 0xFF0000FF;
  sheet.Replace(0, 0, U"x", format);
  sheet.SelStart(1);
  sheet.InsertPicture(std::make_shared<const RichPicture>(RichPicture{"png", "x", -5, 2000000}));
  const std::string saved = WriteRtf(sheet);
  const Sheet again(saved);
  EXPECT_EQ(RunsOf(again),
            "paragraph left\nrun \"Courier New\" 1 --- FF0000 \"x\"\npicture png 1 100000\n");
  EXPECT_EQ(WriteRtf(again), saved);
}

// --- Any document

class Draws {
 public:
  explicit Draws(unsigned seed) : engine_(seed) {}

  int Upto(int count) { return static_cast<int>(engine_() % static_cast<unsigned>(count)); }
  bool Often() { return Upto(3) == 0; }

 private:
  std::mt19937 engine_;
};

char32_t RandomCharacter(Draws& draws) {
  switch (draws.Upto(12)) {
    case 0:
      return U'\n';
    case 1:
      return U"\\{}\t\u00A0\u00AD\u2011;*'-?"[draws.Upto(12)];
    case 2:
      return static_cast<char32_t>(1 + draws.Upto(0xFF));
    case 3:
      return static_cast<char32_t>(1 + draws.Upto(0x10FFFF));
    default:
      return static_cast<char32_t>('a' + draws.Upto(26));
  }
}

std::shared_ptr<const RichPicture> RandomPicture(Draws& draws) {
  static constexpr const char* kFormats[] = {"png", "jpg", "bmp", "wmf", "emf", "gif"};
  RichPicture picture;
  picture.format = kFormats[draws.Upto(6)];
  if (draws.Often()) picture.bytes = "BM" + std::string(12, '\0');
  if (draws.Often()) picture.bytes = "\xD7\xCD\xC6\x9A" + std::string(18, '\0');
  if (draws.Often()) picture.bytes += BitmapData();
  if (draws.Often()) picture.bytes += "\x01\0\x09\0"s;
  const int more = draws.Upto(200);
  for (int i = 0; i < more; ++i) picture.bytes += static_cast<char>(draws.Upto(256));
  picture.width = 1 + draws.Upto(20000);
  picture.height = 1 + draws.Upto(20000);
  return std::make_shared<const RichPicture>(std::move(picture));
}

void WriteSomething(Draws& draws, RichText& sheet) {
  static constexpr const char* kFontNames[] = {"Times New Roman", "Courrier New", "Caf\xE9; {x}",
                                               "Arial"};
  if (draws.Often()) sheet.SelFontName(kFontNames[draws.Upto(4)]);
  if (draws.Often()) sheet.SelFontSize(1 + draws.Upto(400) / 20.0);
  if (draws.Often()) sheet.SelBold(draws.Often());
  if (draws.Often()) sheet.SelItalic(draws.Often());
  if (draws.Often()) sheet.SelUnderline(draws.Often());
  if (draws.Often()) sheet.SelColor(static_cast<std::uint32_t>(draws.Upto(0x1000000)));
  if (draws.Often()) sheet.SelAlignment(static_cast<Alignment>(draws.Upto(3)));
  if (draws.Upto(8) == 0) sheet.InsertPicture(RandomPicture(draws));
  std::u32string text;
  for (int i = draws.Upto(30); i > 0; --i) text += RandomCharacter(draws);
  sheet.SelUnicode(text);
  if (draws.Often()) sheet.SelStart(draws.Upto(sheet.Length() + 1));
}

TEST(RtfWriter, AnyDocumentComesBackAndIsWrittenTheSameAgain) {
  for (unsigned seed = 0; seed < 1500; ++seed) {
    SCOPED_TRACE(seed);
    Draws draws(seed);
    Sheet sheet;
    for (int i = draws.Upto(30); i > 0; --i) WriteSomething(draws, sheet);
    ExpectComesBack(sheet);
    if (HasFailure()) return;
  }
}

}  // namespace
}  // namespace brindlepage
