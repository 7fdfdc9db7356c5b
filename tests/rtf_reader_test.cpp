#include "worksheet/rtf_reader.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "tests/rtf_tools.h"

namespace brindlepage {
namespace {

using namespace std::string_literals;
using rtf_tools::File;
using rtf_tools::ReadRuns;
using rtf_tools::ReadText;
using rtf_tools::RunsOf;
using rtf_tools::Sheet;
using rtf_tools::TextOf;

// --- Paragraphs and lines

TEST(RtfReader, AParagraphEndThatIsTheLastThingBeginsNoParagraph) {
  EXPECT_EQ(ReadText("lava"), "lava");
  EXPECT_EQ(ReadText("lava\\par"), "lava");
  EXPECT_EQ(ReadText("lava\\par\\par"), "lava\n");
  EXPECT_EQ(ReadText("lava\\par {\\b\\fs20}\n"), "lava");
  EXPECT_EQ(ReadText("lava\\line"), "lava\n");
  EXPECT_EQ(ReadText("\\par"), "");
  EXPECT_EQ(ReadText(""), "");
}

TEST(RtfReader, LinesPagesAndSectionsEndALine) {
  EXPECT_EQ(ReadText("a\\line b\\page c\\sect d\\column e"), "a\nb\nc\nd\ne");
  EXPECT_EQ(ReadText("a\\\nb\\\r\nc"), "a\nb\nc");
}

TEST(RtfReader, ANewPageAtTheStartOfALineAddsNone) {
  EXPECT_EQ(ReadText("\\page a\\par\\page b\\par\\sect\\page c"), "a\nb\nc");
}

TEST(RtfReader, AlignmentIsThatInForceAtTheEndOfTheParagraph) {
  EXPECT_EQ(ReadRuns("\\qc a\\par b\\qr\\par\\pard c\\par\\qj d\\par"),
            "paragraph centre\nrun \"Arial\" 12 --- 000000 \"a\\n\"\n"
            "paragraph right\nrun \"Arial\" 12 --- 000000 \"b\\n\"\n"
            "paragraph left\nrun \"Arial\" 12 --- 000000 \"c\\n\"\n"
            "paragraph left\nrun \"Arial\" 12 --- 000000 \"d\"\n");
}

TEST(RtfReader, AnEmptyLastParagraphHasItsAlignment) {
  EXPECT_EQ(ReadRuns("a\\par\\qr\\par"),
            "paragraph left\nrun \"Arial\" 12 --- 000000 \"a\\n\"\nparagraph right\n");
}

TEST(RtfReader, TheCaretIsAtTheStartInTheFormatThere) {
  Sheet sheet;
  sheet.SelStart(12);
  ReadRtf(File("\\b lava"), sheet);
  EXPECT_EQ(sheet.SelStart(), 0);
  EXPECT_EQ(sheet.SelLength(), 0);
  EXPECT_EQ(sheet.SelBold(), true);
  EXPECT_EQ(sheet.SelFontName(), "Arial");
}

// --- Looks

TEST(RtfReader, LooksChangeFromWordToWordAndEndWithTheirGroup) {
  EXPECT_EQ(ReadRuns("{\\b\\fs28 a{\\i\\ul b}}c\\f1\\cf1 d\\plain e"),
            "paragraph left\n"
            "run \"Arial\" 14 b-- 000000 \"a\"\n"
            "run \"Arial\" 14 biu 000000 \"b\"\n"
            "run \"Arial\" 12 --- 000000 \"c\"\n"
            "run \"Courier New\" 12 --- FF0000 \"d\"\n"
            "run \"Arial\" 12 --- 000000 \"e\"\n");
}

TEST(RtfReader, LooksEndByZeroToo) {
  EXPECT_EQ(ReadRuns("\\b\\i\\ul a\\b0\\i0\\ulnone b\\uldb c\\ul0 d"),
            "paragraph left\n"
            "run \"Arial\" 12 biu 000000 \"a\"\n"
            "run \"Arial\" 12 --- 000000 \"b\"\n"
            "run \"Arial\" 12 --u 000000 \"c\"\n"
            "run \"Arial\" 12 --- 000000 \"d\"\n");
}

TEST(RtfReader, ALineEndHasTheLooksOfItsPlace) {
  EXPECT_EQ(ReadRuns("a\\b\\par b"),
            "paragraph left\n"
            "run \"Arial\" 12 --- 000000 \"a\"\n"
            "run \"Arial\" 12 b-- 000000 \"\\n\"\n"
            "paragraph left\n"
            "run \"Arial\" 12 b-- 000000 \"b\"\n");
}

TEST(RtfReader, SizesAreHalfPointsAndStayWithinADocumentsRange) {
  EXPECT_EQ(Sheet(File("\\fs19 x")).FormatAt(0).size, 190);
  EXPECT_EQ(Sheet(File("\\fs x")).FormatAt(0).size, 240);
  EXPECT_EQ(Sheet(File("\\fs0 x")).FormatAt(0).size, 20);
  EXPECT_EQ(Sheet(File("\\fs-8 x")).FormatAt(0).size, 20);
  EXPECT_EQ(Sheet(File("\\fs9999999 x")).FormatAt(0).size, 32760);
}

TEST(RtfReader, AnExactSizeStandsBesideTheHalfPoints) {
  EXPECT_EQ(Sheet(File("\\fs20\\fstwips195 x")).FormatAt(0).size, 195);
  EXPECT_EQ(Sheet(File("\\fs20\\fstwips195\\fs24 x")).FormatAt(0).size, 240);
  EXPECT_EQ(Sheet(File("\\fstwips0 x")).FormatAt(0).size, 20);
  EXPECT_EQ(Sheet(File("\\fstwips99999 x")).FormatAt(0).size, 32760);
}

TEST(RtfReader, ColoursOutsideTheTableAreBlack) {
  EXPECT_EQ(Sheet(File("\\cf2 x")).FormatAt(0).color, 0xFF0000U);
  EXPECT_EQ(Sheet(File("\\cf3 x")).FormatAt(0).color, 0U);
  EXPECT_EQ(Sheet(File("\\cf-1 x")).FormatAt(0).color, 0U);
  EXPECT_EQ(Sheet(File("\\cf2147483647 x")).FormatAt(0).color, 0U);
}

TEST(RtfReader, ColoursAreCutToAByteEach) {
  EXPECT_EQ(Sheet("{\\rtf1{\\colortbl;\\red300\\green-5\\blue7;}\\cf1 x}").FormatAt(0).color,
            0x0700FFU);
}

TEST(RtfReader, HiddenTextIsDropped) {
  EXPECT_EQ(ReadText("a{\\v hidden\\par\\tab}b\\v c\\v0 d\\v e\\plain f{\\deleted g}"), "abdf");
}

// --- Fonts

TEST(RtfReader, FontsMayStandInTheirTableWithoutGroups) {
  EXPECT_EQ(RunsOf(Sheet("{\\rtf1\\deff1{\\fonttbl\\f0\\fswiss Helvetica;\\f1\\fmodern Menlo;}"
                         "a\\f0 b}")),
            "paragraph left\n"
            "run \"Menlo\" 12 --- 000000 \"a\"\n"
            "run \"Helvetica\" 12 --- 000000 \"b\"\n");
}

TEST(RtfReader, WhatElseStandsInAFontIsNotItsName) {
  EXPECT_EQ(Sheet("{\\rtf1{\\fonttbl{\\f7\\froman\\fprq2{\\*\\panose 02020603050405020304} "
                  "Times\nNew Roman{\\*\\falt Times};}}\\f7 x}")
                .FormatAt(0)
                .font,
            "TimesNew Roman");
}

TEST(RtfReader, AFontThatTheTableLacksIsTheDefaultFont) {
  EXPECT_EQ(Sheet(File("\\f99 x")).FormatAt(0).font, "Arial");
  EXPECT_EQ(Sheet(File("\\f2147483647 x")).FormatAt(0).font, "Arial");
}

TEST(RtfReader, WithoutAFontTableTheTextIsInTimes) {
  EXPECT_EQ(Sheet("{\\rtf1 x}").FormatAt(0).font, "Times New Roman");
}

TEST(RtfReader, FontNamesAreCutAtAHundredAndTwentyEightCharacters) {
  const std::string name(300, 'F');
  EXPECT_EQ(Sheet("{\\rtf1{\\fonttbl{\\f0 " + name + ";}}x}").FormatAt(0).font,
            std::string(128, 'F'));
}

TEST(RtfReader, FontNamesMayHoldOtherThanLetters) {
  EXPECT_EQ(Sheet("{\\rtf1{\\fonttbl{\\f0 Caf\\'e9\\u8211?\\'3b 2;}}x}").FormatAt(0).font,
            "Caf\xE9\x96; 2");
}

// --- Characters

TEST(RtfReader, BytesAreInTheFilesCodePage) {
  EXPECT_EQ(TextOf(Sheet("{\\rtf1\\ansi\\ansicpg1252 \\'e9\\'80}")), "é€");
  EXPECT_EQ(TextOf(Sheet("{\\rtf1\\ansi\\ansicpg1250 \\'e3\\'b3}")), "ăł");
  EXPECT_EQ(TextOf(Sheet("{\\rtf1\\ansi\\ansicpg1251 \\'e4\\'e0}")), "да");
  EXPECT_EQ(TextOf(Sheet("{\\rtf1\\ansi\\ansicpg1253 \\'eb\\'fc}")), "λό");
  EXPECT_EQ(TextOf(Sheet("{\\rtf1\\ansi\\ansicpg1254 \\'fd\\'fe}")), "ış");
  EXPECT_EQ(TextOf(Sheet("{\\rtf1\\ansi\\ansicpg1257 \\'e0\\'fe}")), "ąž");
  EXPECT_EQ(TextOf(Sheet("{\\rtf1\\mac \\'8e\\'d2}")), "é“");
  EXPECT_EQ(TextOf(Sheet("{\\rtf1\\pc \\'82\\'e0}")), "éα");
  EXPECT_EQ(TextOf(Sheet("{\\rtf1\\pca \\'82\\'e0}")), "éÓ");
}

TEST(RtfReader, AnUnknownCodePageReadsAsWindows1252) {
  EXPECT_EQ(TextOf(Sheet("{\\rtf1\\ansi\\ansicpg99999 \\'e9}")), "é");
  EXPECT_EQ(TextOf(Sheet("{\\rtf1\\ansi\\ansicpg-1 \\'e9}")), "é");
}

TEST(RtfReader, BytesThatStandForThemselvesAreInTheCodePageToo) {
  EXPECT_EQ(TextOf(Sheet("{\\rtf1\\ansi caf\xE9}")), "café");
}

TEST(RtfReader, AFontsCharsetNamesItsCodePage) {
  EXPECT_EQ(TextOf(Sheet("{\\rtf1\\ansi\\ansicpg1252{\\fonttbl{\\f0\\fcharset0 A;}"
                         "{\\f1\\fcharset204 A;}{\\f2\\fcharset238 A;}{\\f3\\fcharset161 A;}"
                         "{\\f4\\fcharset162 A;}{\\f5\\cpg1251 A;}{\\f6\\fcharset255 A;}}"
                         "\\'e4\\f1\\'e4\\f2\\'e3\\f3\\'eb\\f4\\'fd\\f5\\'e4\\f6\\'82}")),
            "äдăλıдé");
}

TEST(RtfReader, TheSignsOfListsHaveCharactersOfTheirOwn) {
  EXPECT_EQ(ReadText("{\\f2\\'b7\\u-3929?\\'61}\\'b7"), "•▪\uF061·");
}

TEST(RtfReader, UnicodeIsSignedAndFollowedByAsManyFallbacksAsTold) {
  EXPECT_EQ(ReadText("\\u945?\\u-3 ?\\uc0\\u946 x\\uc2\\u947 abc"), "αβxγc"s.insert(2, "\uFFFD"));
  EXPECT_EQ(ReadText("{\\uc3\\u945 abcd}\\u946 ab"), "αdβb");
}

TEST(RtfReader, FallbacksMayBeBytesWordsAndData) {
  EXPECT_EQ(ReadText("\\u945\\'61b\\u946\\emdash c\\uc2\\u947\\'61\\bin3 {}}d"), "αbβcγd");
  EXPECT_EQ(ReadText("\\u945\\~b"), "αb");
}

TEST(RtfReader, FallbacksEndWithTheirGroupAndBeforeTheNextUnicodeCharacter) {
  EXPECT_EQ(ReadText("{\\u945}b\\u946{c}\\u947\\u948?e"), "αbβcγδe");
}

TEST(RtfReader, PairsOfSurrogatesAreOneCharacter) {
  EXPECT_EQ(ReadText("\\u-10179?\\u-8704?"), "\U0001F600");
  EXPECT_EQ(ReadText("\\u128512?"), "\U0001F600");
}

TEST(RtfReader, CharactersThatMakeNoSenseBecomeReplacements) {
  EXPECT_EQ(ReadText("\\u-10179?a\\u-8704?b\\u0?c\\u-4?d\\u-1?e\\u2147483647?"),
            "\uFFFDa\uFFFDb\uFFFDc\uFFFDd\uFFFDe\uFFFD");
}

TEST(RtfReader, LineEndCharactersEndLines) {
  EXPECT_EQ(ReadText("a\\u10?b\\'0dc\\u8233?d"), "a\nb\nc\nd");
}

TEST(RtfReader, CharactersMayHaveWords) {
  EXPECT_EQ(ReadText("\\emdash\\endash\\bullet\\lquote\\rquote\\ldblquote\\rdblquote\\tab"
                     "\\emspace\\enspace\\~\\_\\-\\{\\\\\\}"),
            "—–•‘’“”\t\u2003\u2002\u00A0\u2011\u00AD{\\}");
}

TEST(RtfReader, OfAlternativesTheUnicodeOneIsShown) {
  EXPECT_EQ(ReadText("a{\\upr{bytes {\\b c}}{\\*\\ud{\\uc0\\u946 d}}}e"), "aβde");
}

// --- Styles

TEST(RtfReader, StylesAreAppliedToParagraphsAndCharacters) {
  EXPECT_EQ(ReadRuns("{\\stylesheet{\\fs20 Normal;}{\\s1\\qc\\b\\f1\\fs32 Heading;}"
                     "{\\*\\cs5\\i\\ul\\cf1 Strong;}}"
                     "\\pard\\plain\\s1 a{\\cs5 b}\\par\\pard\\plain c"),
            "paragraph centre\n"
            "run \"Courier New\" 16 b-- 000000 \"a\"\n"
            "run \"Courier New\" 16 biu FF0000 \"b\"\n"
            "run \"Courier New\" 16 b-- 000000 \"\\n\"\n"
            "paragraph left\n"
            "run \"Arial\" 12 --- 000000 \"c\"\n");
}

TEST(RtfReader, WordsBehindAStyleChangeIt) {
  EXPECT_EQ(ReadRuns("{\\stylesheet{\\s1\\qc\\b\\fs32 Heading;}}\\pard\\plain\\s1\\ql\\b0\\i a"),
            "paragraph left\nrun \"Arial\" 16 -i- 000000 \"a\"\n");
}

TEST(RtfReader, AStyleTakesWhatItIsBasedOn) {
  EXPECT_EQ(ReadRuns("{\\stylesheet{\\s1\\qr\\b\\fs32 One;}{\\s2\\sbasedon1\\fs20\\i Two;}"
                     "{\\s3\\sbasedon3\\fs40 Itself;}{\\s4\\sbasedon77\\fs48 Nothing;}}"
                     "\\s2 a\\par\\pard\\plain\\s3 b\\s4 c\\s99 d"),
            "paragraph right\nrun \"Arial\" 10 bi- 000000 \"a\\n\"\n"
            "paragraph left\n"
            "run \"Arial\" 20 --- 000000 \"b\"\n"
            "run \"Arial\" 24 --- 000000 \"cd\"\n");
}

TEST(RtfReader, StylesOfTablesAndTheNamesOfStylesAreLeftOut) {
  EXPECT_EQ(ReadRuns("{\\stylesheet{Normal;}{\\*\\ts11\\tsrowd\\b Table;}{\\ts12\\b Table;}"
                     "{\\s3{\\*\\keycode\\b x}\\i Three;}}\\ts11\\s0 a\\s3 b"),
            "paragraph left\n"
            "run \"Arial\" 12 --- 000000 \"a\"\n"
            "run \"Arial\" 12 -i- 000000 \"b\"\n");
}

// --- Tables, lists, fields, objects

TEST(RtfReader, TablesAreLinesWithTabs) {
  EXPECT_EQ(ReadText("before\\par\\trowd\\cellx100\\cellx200\\pard\\intbl a\\cell b\\cell\\row"
                     "\\trowd\\pard\\intbl\\cell\\cell c\\cell\\row\\pard after\\par"),
            "before\na\tb\n\t\tc\nafter");
}

TEST(RtfReader, ALineOfATableIsAlignedLeft) {
  EXPECT_EQ(ReadRuns("\\qc\\intbl a\\cell b\\cell\\row\\pard c"),
            "paragraph left\nrun \"Arial\" 12 --- 000000 \"a\\tb\\n\"\n"
            "paragraph left\nrun \"Arial\" 12 --- 000000 \"c\"\n");
}

TEST(RtfReader, TablesInTablesAreLinesToo) {
  EXPECT_EQ(ReadText("\\intbl\\itap2 a\\nestcell b\\nestcell{\\*\\nesttableprops\\trowd\\nestrow}"
                     "{\\nonesttables\\par}\\itap1 c\\cell\\row"),
            "a\tb\nc\n");
}

TEST(RtfReader, ListsShowTheirText) {
  EXPECT_EQ(ReadText("{\\*\\listtable{\\list{\\listlevel{\\leveltext\\'02\\'00.;}}}}"
                     "{\\listoverridetable{\\listoverride x}}"
                     "{\\listtext\\f2\\'b7\\tab}lava\\par{\\pntext 2.\\tab}ash\\par"
                     "{\\*\\pn\\pnlvlblt{\\pntxtb x}}end"),
            "•\tlava\n2.\tash\nend");
}

TEST(RtfReader, FieldsShowTheirResult) {
  EXPECT_EQ(ReadText("a {\\field{\\*\\fldinst{\\b HYPERLINK \"x\"}}{\\fldrslt{\\ul link}}} b"
                     "{\\field{\\fldinst PAGE}{\\fldrslt 7}}"),
            "a link b7");
}

TEST(RtfReader, ObjectsShowTheirResult) {
  EXPECT_EQ(ReadText("a{\\object\\objemb{\\*\\objclass Package}{\\objdata 0105}{\\result b}}c"),
            "abc");
}

TEST(RtfReader, DrawnBoxesShowTheirText) {
  EXPECT_EQ(ReadText("a{\\shp{\\*\\shpinst\\shpleft10{\\sp{\\sn x}{\\sv 1}}{\\shptxt b\\par}}"
                     "{\\shprslt c}}d"),
            "ab\nd");
}

TEST(RtfReader, WhatIsBesideTheTextIsLeftOut) {
  EXPECT_EQ(ReadText("{\\info{\\title T}{\\author A}}{\\header h\\par}{\\headerf h}{\\footer f}"
                     "{\\*\\generator G;}a{\\footnote\\pard n}{\\*\\bkmkstart m}b{\\xe{\\b x}}"
                     "{\\*\\unknown{\\b u}\\u945?}c{\\annotation n}"),
            "abc");
}

TEST(RtfReader, UnknownWordsAndGroupsWithoutAStarAreTransparent) {
  EXPECT_EQ(ReadText("a\\unknown5 b{\\unheardof c}\\LongWord d"), "abcd");
}

TEST(RtfReader, ADestinationInTheOutermostGroupDoesNotSwallowTheFile) {
  EXPECT_EQ(ReadText("a\\info b\\pict c\\*\\unknown d"), "abcd");
}

// --- Pictures

std::string PictureFile(std::string_view picture) { return File("a" + std::string(picture) + "b"); }

const RichPicture& PictureOf(const RichText& sheet) {
  static const RichPicture kNone{"none", "", 0, 0};
  if (sheet.Length() != 3 || !sheet.FormatAt(1).picture) return kNone;
  return *sheet.FormatAt(1).picture;
}

TEST(RtfReader, PicturesStandInTheTextInTheLooksOfTheirPlace) {
  const Sheet sheet(PictureFile("\\b{\\pict\\pngblip\\picwgoal300\\pichgoal150 8950\n4E4\nfF0}"));
  EXPECT_EQ(TextOf(sheet), "a\uFFFCb");
  EXPECT_EQ(PictureOf(sheet).format, "png");
  EXPECT_EQ(PictureOf(sheet).bytes, "\x89PNO\xF0");
  EXPECT_EQ(PictureOf(sheet).width, 300);
  EXPECT_EQ(PictureOf(sheet).height, 150);
  EXPECT_TRUE(sheet.FormatAt(1).bold);
}

TEST(RtfReader, PicturesAreOfTheKindThatTheFileTells) {
  EXPECT_EQ(PictureOf(Sheet(PictureFile("{\\pict\\jpegblip FFD8}"))).format, "jpg");
  EXPECT_EQ(PictureOf(Sheet(PictureFile("{\\pict\\emfblip 01}"))).format, "emf");
  EXPECT_EQ(PictureOf(Sheet(PictureFile("{\\pict\\wmetafile8 01}"))).format, "wmf");
  EXPECT_EQ(PictureOf(Sheet(PictureFile("{\\pict\\dibitmap0 28}"))).format, "bmp");
  EXPECT_EQ(PictureOf(Sheet(PictureFile("{\\pict\\gifblip 47}"))).format, "gif");
}

TEST(RtfReader, WithoutAKindTheDataTell) {
  EXPECT_EQ(PictureOf(Sheet(PictureFile("{\\pict 474946383961}"))).format, "gif");
  EXPECT_EQ(PictureOf(Sheet(PictureFile("{\\pict 28000000}"))).format, "bmp");
  EXPECT_EQ(TextOf(Sheet(PictureFile("{\\pict 001122}"))), "ab");
  EXPECT_EQ(TextOf(Sheet(PictureFile("{\\pict\\macpict 001122}"))), "ab");
  EXPECT_EQ(TextOf(Sheet(PictureFile("{\\pict}"))), "ab");
}

TEST(RtfReader, PictureDataMayBeBinary) {
  EXPECT_EQ(PictureOf(Sheet(PictureFile("{\\pict\\pngblip\\bin5 }{\\x:}"))).bytes, "}{\\x:");
}

TEST(RtfReader, WhatElseStandsInAPictureIsNotItsData) {
  EXPECT_EQ(PictureOf(Sheet(PictureFile("{\\pict{\\*\\picprop{\\sp{\\sn ab}{\\sv 12}}}\\pngblip"
                                        "{\\*\\blipuid 00112233}{\\b 44} 41 4\t2}")))
                .bytes,
            "AB");
}

TEST(RtfReader, HalfAByteOfAPictureIsLeftOut) {
  EXPECT_EQ(PictureOf(Sheet(PictureFile("{\\pict\\pngblip 41z4x24}"))).bytes, "AB");
}

TEST(RtfReader, OfAPictureInTwoKindsOneIsShown) {
  const Sheet both(
      PictureFile("{\\*\\shppict{\\pict\\pngblip 41}}"
                  "{\\nonshppict{\\pict\\wmetafile8 42}}"));
  EXPECT_EQ(TextOf(both), "a\uFFFCb");
  EXPECT_EQ(PictureOf(both).format, "png");
  const Sheet unknown(
      PictureFile("{\\*\\shppict{\\pict\\macpict 41}}"
                  "{\\nonshppict{\\pict\\wmetafile8 42}}"));
  EXPECT_EQ(PictureOf(unknown).format, "wmf");
}

TEST(RtfReader, PicturesOfObjectsFieldsAndShapesAreShown) {
  EXPECT_EQ(ReadText("{\\object{\\result{\\pict\\wmetafile8 01}}}"
                     "{\\field{\\fldinst x}{\\fldrslt{\\pict\\pngblip 01}}}"
                     "{\\shp{\\*\\shpinst{\\sp{\\sn pib}{\\sv{\\pict\\pngblip 01}}}}}"
                     "{\\*\\unknown{\\pict\\pngblip 01}}{\\v{\\pict\\pngblip 01}}"),
            "\uFFFC\uFFFC\uFFFC");
}

TEST(RtfReader, PictureSizesAreScaled) {
  const Sheet sheet(
      PictureFile("{\\pict\\pngblip\\picwgoal300\\pichgoal150\\picscalex50\\picscaley200 41}"));
  EXPECT_EQ(PictureOf(sheet).width, 150);
  EXPECT_EQ(PictureOf(sheet).height, 300);
}

TEST(RtfReader, PictureSizesThatAreNotToldComeFromThePicture) {
  const auto size = [](std::string_view picture) {
    const Sheet sheet(PictureFile(picture));
    return std::vector{PictureOf(sheet).width, PictureOf(sheet).height};
  };
  // 20 by 10 dots of 15 twips each; a metafile's 254 and 508 hundredths of a millimetre.
  EXPECT_EQ(size("{\\pict\\pngblip 89504E470D0A1A0A0000000D49484452000000140000000A}"),
            (std::vector{300, 150}));
  EXPECT_EQ(size("{\\pict\\jpegblip FFD8FFE00004AAAAFFC0001108000A0014030122}"),
            (std::vector{300, 150}));
  EXPECT_EQ(size("{\\pict\\dibitmap0 2800000014000000F6FFFFFF010018000000000000000000"
                 "00000000000000000000000000000000}"),
            (std::vector{300, 150}));
  EXPECT_EQ(size("{\\pict\\gifblip 47494638396114000A00}"), (std::vector{300, 150}));
  EXPECT_EQ(size("{\\pict\\wmetafile8\\picw254\\pich508 010009}"), (std::vector{144, 288}));
  EXPECT_EQ(size("{\\pict\\macpict\\emfblip 0100000000000000000000000000000000000000000000000"
                 "000000000000000FE000000FC010000}"),
            (std::vector{144, 288}));
  EXPECT_EQ(size("{\\pict\\pngblip\\picw20\\pich10 00}"), (std::vector{300, 150}));
  EXPECT_EQ(size("{\\pict\\pngblip 00}"), (std::vector{1440, 1440}));
}

TEST(RtfReader, AbsurdPictureSizesAreCut) {
  const Sheet sheet(
      PictureFile("{\\pict\\pngblip\\picwgoal2147483647\\pichgoal2147483647"
                  "\\picscalex2147483647\\picscaley-3 41}"));
  EXPECT_EQ(PictureOf(sheet).width, 100000);
  EXPECT_EQ(PictureOf(sheet).height, 100000);
}

TEST(RtfReader, ABitmapOfBillionsOfDotsScaledBeyondAllMeasureIsCut) {
  const Sheet sheet(
      PictureFile("{\\pict\\dibitmap0\\picscalex2147483647\\picscaley2147483647 "
                  "28000000FFFFFF7F333333330100180000000000000000000000000000000000000000000000"
                  "0000}"));
  EXPECT_EQ(PictureOf(sheet).width, 100000);
  EXPECT_EQ(PictureOf(sheet).height, 100000);
}

TEST(RtfReader, ABitmapGetsTheHeaderOfItsFile) {
  // Two colours: 40 bytes of head, 8 of palette, a row of dots.
  const std::string head =
      "2800000001000000010000000100010000000000000000000000000000000000000000000000000000000000"
      "FFFFFF00";
  const Sheet sheet(PictureFile("{\\pict\\dibitmap0 " + head + "80000000}"));
  EXPECT_EQ(PictureOf(sheet).bytes.substr(0, 14), "BM\x42\0\0\0\0\0\0\0\x3E\0\0\0"s);
  EXPECT_EQ(PictureOf(sheet).bytes.size(), 66U);
}

TEST(RtfReader, AMetafileGetsItsPlaceableHeader) {
  const Sheet sheet(PictureFile("{\\pict\\wmetafile8\\picwgoal288\\pichgoal144 010009000003}"));
  // Key, no handle, the frame in twips, twips to the inch, and the exclusive or of these.
  EXPECT_EQ(PictureOf(sheet).bytes,
            "\xD7\xCD\xC6\x9A\0\0\0\0\0\0\x20\x01\x90\0\xA0\x05\0\0\0\0\x01\x53"s
            "\x01\0\x09\0\0\x03"s);
}

TEST(RtfReader, ABrokenPictureIsKeptAsItCame) {
  EXPECT_EQ(PictureOf(Sheet(PictureFile("{\\pict\\dibitmap0 28000000FF}"))).bytes, "(\0\0\0\xFF"s);
  // A palette that isn't there.
  EXPECT_EQ(PictureOf(Sheet(PictureFile("{\\pict\\dibitmap0 28000000010000000100000001000800"
                                        "000000000000000000000000000000000000FFFF00000000}")))
                .bytes.substr(0, 4),
            "(\0\0\0"s);
  EXPECT_EQ(PictureOf(Sheet(PictureFile("{\\pict\\jpegblip FFD8FFFF}"))).bytes, "\xFF\xD8\xFF\xFF");
}

// --- Files as they come from elsewhere

TEST(RtfReader, ALargeWordProcessorsFileShowsItsText) {
  EXPECT_EQ(
      RunsOf(Sheet(
          "{\\rtf1\\adeflang1025\\ansi\\ansicpg1252\\uc1\\adeff0\\deff0\\stshfdbch0\\stshfloch31506"
          "\\deflang1033{\\fonttbl{\\f0\\fbidi \\froman\\fcharset0\\fprq2{\\*\\panose 02020603}"
          "Times New Roman;}{\\f34\\fbidi \\froman\\fcharset0\\fprq2 Cambria Math;}"
          "{\\flomajor\\f31500\\fbidi \\froman\\fcharset0\\fprq2 Times New Roman;}}\r\n"
          "{\\colortbl;\\red0\\green0\\blue0;\\red0\\green0\\blue255;}{\\*\\defchp \\f31506}"
          "{\\*\\defpap \\ql \\li0}\\noqfpromote {\\stylesheet{\\ql \\li0\\ri0\\widctlpar "
          "\\rtlch\\fcs1 \\af0\\afs24 \\ltrch\\fcs0 \\fs24\\lang1033 \\snext0 \\sqformat Normal;}"
          "{\\s1\\qc \\rtlch\\fcs1 \\ab \\ltrch\\fcs0 \\b\\fs32 \\sbasedon0 \\snext0 heading 1;}"
          "{\\*\\cs10 \\additive Default Paragraph Font;}}{\\*\\rsidtbl \\rsid1}"
          "{\\mmathPr\\mmathFont34\\mbrkBin0}{\\info{\\author Ann}{\\version2}}"
          "{\\*\\xmlnstbl {\\xmlns1 x}}\\paperw12240\\margl1800 \\ftnbj\\viewkind1 "
          "{\\*\\wgrffmtfilter 013f}{\\*\\ftnsep \\pard\\plain \\chftnsep \\par }\\sectd "
          "{\\*\\pnseclvl1\\pnucrm\\pnstart1{\\pntxta .}}"
          "\\pard\\plain \\ltrpar\\s1\\qc \\rtlch\\fcs1 \\ab\\af0 \\ltrch\\fcs0 \\b\\fs32 "
          "{\\rtlch\\fcs1 \\af0 \\ltrch\\fcs0 \\insrsid1 Lava }{\\ltrch\\fcs0 \\b0\\insrsid1 "
          "ash\r\n"
          "\\par }\\pard\\plain \\ltrpar\\ql \\ltrch\\fcs0 \\fs24 {\\cf2\\insrsid1 "
          "\\loch\\af0\\hich\\af0"
          "\\dbch\\af0 it\\rquote s{\\*\\bkmkstart m}{\\*\\bkmkend m}\\par }"
          "{\\*\\themedata 504b}{\\*\\latentstyles {\\lsdlockedexcept x;}}{\\*\\datastore 01}}")),
      "paragraph centre\n"
      "run \"Times New Roman\" 16 b-- 000000 \"Lava \"\n"
      "run \"Times New Roman\" 16 --- 000000 \"ash\\n\"\n"
      "paragraph left\n"
      "run \"Times New Roman\" 12 --- 0000FF \"it’s\"\n");
}

TEST(RtfReader, ASimpleEditorsFileShowsItsText) {
  EXPECT_EQ(
      RunsOf(Sheet("{\\rtf1\\ansi\\ansicpg1252\\deff0\\nouicompat\\deflang1033{\\fonttbl{\\f0\\fnil"
                   "\\fcharset0 Calibri;}}\r\n{\\*\\generator Editor 1.0}\\viewkind4\\uc1 \r\n"
                   "\\pard\\sa200\\sl276\\slmult1\\qc\\b\\f0\\fs22\\lang9 Lava\\b0\\par\r\n"
                   "\\pard\\sa200 ash\\par\r\n}\r\n\0"s)),
      "paragraph centre\n"
      "run \"Calibri\" 11 b-- 000000 \"Lava\"\nrun \"Calibri\" 11 --- 000000 \"\\n\"\n"
      "paragraph left\nrun \"Calibri\" 11 --- 000000 \"ash\"\n");
}

TEST(RtfReader, AFileWithBackslashesAtTheLineEndsShowsItsText) {
  EXPECT_EQ(RunsOf(Sheet("{\\rtf1\\ansi\\ansicpg1252\\cocoartf1\n"
                         "{\\fonttbl\\f0\\fswiss\\fcharset0 Helvetica;}\n"
                         "{\\colortbl;\\red255\\green255\\blue255;}\n{\\*\\expandedcolortbl;;}\n"
                         "\\pard\\tx720\\pardirnatural\n\n\\f0\\fs24 \\cf0 Lava\\\n\\\nash}")),
            "paragraph left\nrun \"Helvetica\" 12 --- 000000 \"Lava\\n\"\n"
            "paragraph left\nrun \"Helvetica\" 12 --- 000000 \"\\n\"\n"
            "paragraph left\nrun \"Helvetica\" 12 --- 000000 \"ash\"\n");
}

}  // namespace
}  // namespace brindlepage
