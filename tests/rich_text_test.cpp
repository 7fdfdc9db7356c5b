#include "worksheet/rich_text.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <optional>
#include <string>

#include "tests/rich_text_sheet.h"

namespace brindlepage {
namespace {

// --- A new document

TEST(RichText, ANewDocumentIsEmptyLeftAndInItsDesignFont) {
  const Sheet sheet;
  EXPECT_EQ(sheet.Length(), 0);
  EXPECT_EQ(sheet.Text(), U"");
  EXPECT_EQ(sheet.SelStart(), 0);
  EXPECT_EQ(sheet.SelLength(), 0);
  EXPECT_EQ(sheet.SelFontName(), "Courier New");
  EXPECT_EQ(sheet.SelFontSize(), 9.75);
  EXPECT_EQ(sheet.SelBold(), false);
  EXPECT_EQ(sheet.SelItalic(), false);
  EXPECT_EQ(sheet.SelUnderline(), false);
  EXPECT_EQ(sheet.SelColor(), 0u);
  EXPECT_EQ(sheet.SelAlignment(), kLeft);
  EXPECT_EQ(sheet.DesignFormat(), Design());
  EXPECT_EQ(sheet.CaretFormat(), Design());
}

TEST(RichText, ADesignSizeOutsideOneTo1638PointsIsAnInvalidCall) {
  EXPECT_EQ(FaultNumber([] { RichText("Courier New", 0.5); }), 5);
  EXPECT_EQ(FaultNumber([] { RichText("Courier New", 1639); }), 5);
}

// --- Text and its length

TEST(RichText, ALineBreakReadsAsTwoCharacters) {
  Sheet sheet;
  sheet.SelText("a\nb\n");
  EXPECT_EQ(sheet.Text(), U"a\r\nb\r\n");
  EXPECT_EQ(sheet.PlainText(), U"a\nb\n");
}

TEST(RichText, TheLengthOfTheTextCanExceedTheLastCaretPosition) {
  Sheet sheet;
  sheet.SelText("a\nb\n");
  EXPECT_EQ(sheet.TextLength(), 6);
  EXPECT_EQ(sheet.Length(), 4);
  sheet.SelStart(sheet.TextLength());
  EXPECT_EQ(sheet.SelStart(), 4);
}

TEST(RichText, TheLengthOfTheTextFollowsRemovedLineEnds) {
  Sheet sheet;
  sheet.SelText("a\nb\nc");
  sheet.SelStart(1);
  sheet.SelLength(1);
  sheet.SelText("-");
  EXPECT_EQ(sheet.Text(), U"a-b\r\nc");
  EXPECT_EQ(sheet.TextLength(), 6);
}

TEST(RichText, CarriageReturnAndLineFeedAreOneLineEnd) {
  Sheet sheet;
  sheet.SelText("a\r\nb");
  EXPECT_EQ(Plain(sheet), "a\nb");
}

TEST(RichText, ALoneCarriageReturnEndsAParagraph) {
  Sheet sheet;
  sheet.SelText("a\rb\r");
  EXPECT_EQ(Plain(sheet), "a\nb\n");
}

TEST(RichText, EachFurtherCarriageReturnOrLineFeedIsALineEndOfItsOwn) {
  Sheet sheet;
  sheet.SelText("\r\n\n|\n\r|\r\r\n");
  EXPECT_EQ(Plain(sheet), "\n\n|\n\n|\n\n");
}

TEST(RichText, AParagraphSeparatorEndsAParagraph) {
  Sheet sheet;
  sheet.SelUnicode(U"a\u2029b");
  EXPECT_EQ(Plain(sheet), "a\nb");
}

TEST(RichText, BytesAreWindows1252) {
  Sheet sheet;
  sheet.SelText("\x80 caf\xE9 \x93");
  EXPECT_EQ(sheet.PlainText(), U"\u20AC caf\u00E9 \u201C");
}

TEST(RichText, UnicodeBeyondTheCodePageIsKept) {
  Sheet sheet;
  sheet.SelUnicode(U"\u4E2D\U0001F600\U0010FFFD");
  EXPECT_EQ(sheet.Text(), U"\u4E2D\U0001F600\U0010FFFD");
  EXPECT_EQ(sheet.Length(), 3);
}

TEST(RichText, CharactersThatMakeNoSenseAreReplaced) {
  const char32_t senseless[] = {0,      0xD800, 0xDFFF,   0xFDD0,     0xFDEF,
                                0xFFFE, 0xFFFF, 0x110000, 0xFFFFFFFF, 0xFFFC};
  for (const char32_t character : senseless) {
    Sheet sheet;
    sheet.SelUnicode(std::u32string{U'a', character, U'b'});
    EXPECT_EQ(sheet.PlainText(), U"a\uFFFDb") << std::hex << static_cast<unsigned>(character);
  }
}

TEST(RichText, NeighboursOfSenselessCharactersAreKept) {
  const std::u32string text{1, 9, 0xD7FF, 0xE000, 0xFDCF, 0xFDF0, 0xFFFB, 0xFFFD, 0x10000};
  Sheet sheet;
  sheet.SelUnicode(text);
  EXPECT_EQ(sheet.PlainText(), text);
}

// --- Setting the text

TEST(RichText, SettingTheTextReplacesTheDocumentAndPutsTheCaretAtTheStart) {
  Sheet sheet;
  sheet.SelText("old words");
  sheet.SelStart(2);
  sheet.SelLength(3);
  sheet.Text("new\n");
  EXPECT_EQ(Plain(sheet), "new\n");
  EXPECT_EQ(sheet.SelStart(), 0);
  EXPECT_EQ(sheet.SelLength(), 0);
}

TEST(RichText, SettingTheTextReturnsTheCaretFormatToTheDesignFont) {
  Sheet sheet;
  sheet.SelBold(true);
  sheet.SelFontName("Times New Roman");
  sheet.SelText("old");
  sheet.Text("new");
  EXPECT_EQ(sheet.CaretFormat(), Design());
  EXPECT_EQ(sheet.FormatAt(0), Design());
}

TEST(RichText, SettingTheTextKeepsTheAlignmentOfTheParagraphWithTheCaretForAll) {
  Sheet sheet;
  sheet.SelText("left\n");
  sheet.SelAlignment(kCentre);
  sheet.SelText("centred\n");
  sheet.SelAlignment(kRight);
  sheet.SelText("right");
  ASSERT_EQ(Alignments(sheet), "lcr");
  sheet.SelStart(7);
  sheet.Text("a\nb\n");
  EXPECT_EQ(Alignments(sheet), "ccc");
}

TEST(RichText, EmptyingTheTextKeepsTheAlignmentToo) {
  Sheet sheet;
  sheet.SelText("left\n");
  sheet.SelAlignment(kCentre);
  sheet.Text("");
  EXPECT_EQ(sheet.Length(), 0);
  EXPECT_EQ(sheet.SelAlignment(), kCentre);
}

TEST(RichText, ClearGivesAnEmptyLeftDocumentInTheDesignFont) {
  Sheet sheet;
  sheet.SelAlignment(kRight);
  sheet.SelItalic(true);
  sheet.SelText("a\nb");
  sheet.Clear();
  EXPECT_EQ(sheet.Length(), 0);
  EXPECT_EQ(sheet.TextLength(), 0);
  EXPECT_EQ(sheet.SelStart(), 0);
  EXPECT_EQ(sheet.SelAlignment(), kLeft);
  EXPECT_EQ(sheet.CaretFormat(), Design());
}

// --- The caret

TEST(RichText, ACaretPastTheEndStandsAtTheEnd) {
  Sheet sheet;
  sheet.SelText("abc");
  sheet.SelStart(1);
  sheet.SelStart(1000);
  EXPECT_EQ(sheet.SelStart(), 3);
  sheet.SelStart(std::numeric_limits<int>::max());
  EXPECT_EQ(sheet.SelStart(), 3);
}

TEST(RichText, ANegativeCaretOrLengthIsAnInvalidCall) {
  Sheet sheet;
  sheet.SelText("abc");
  EXPECT_EQ(FaultNumber([&] { sheet.SelStart(-1); }), 5);
  EXPECT_EQ(FaultNumber([&] { sheet.SelLength(-1); }), 5);
  EXPECT_EQ(sheet.SelStart(), 3);
}

TEST(RichText, AMovedCaretTakesTheFormatOfTheCharacterBeforeIt) {
  Sheet sheet;
  WriteWithBoldMiddle(sheet);
  sheet.SelStart(7);
  EXPECT_EQ(sheet.SelBold(), true);
  sheet.SelStart(10);
  EXPECT_EQ(sheet.SelBold(), true);
  sheet.SelStart(6);
  EXPECT_EQ(sheet.SelBold(), false);
}

TEST(RichText, ACaretMovedToTheStartTakesTheFormatOfTheCharacterBehindIt) {
  Sheet sheet;
  sheet.SelBold(true);
  sheet.SelText("B");
  sheet.SelBold(false);
  sheet.SelText("plain");
  sheet.SelStart(0);
  EXPECT_EQ(sheet.SelBold(), true);
}

TEST(RichText, ACaretAtTheStartOfALineTakesTheFormatOfTheLineEndBeforeIt) {
  Sheet sheet;
  sheet.SelBold(true);
  sheet.SelText("title\n");
  sheet.SelBold(false);
  sheet.SelText("body");
  sheet.SelStart(6);
  EXPECT_EQ(sheet.SelBold(), true);
}

TEST(RichText, ACaretSetToWhereItStandsChangesNothing) {
  Sheet sheet;
  sheet.SelText("plain");
  sheet.SelBold(true);
  sheet.SelStart(5);
  EXPECT_EQ(sheet.SelBold(), true);
  sheet.SelStart(sheet.TextLength());
  sheet.SelText("bold");
  EXPECT_EQ(Bolds(sheet), ".....bbbb");
}

TEST(RichText, ACaretSetToTheEndWhereItStandsKeepsItsFormatBehindLineEnds) {
  Sheet sheet;
  sheet.SelText("a\n\n");
  sheet.SelBold(true);
  sheet.SelStart(sheet.TextLength());
  EXPECT_EQ(sheet.SelBold(), true);
}

TEST(RichText, ACaretThatMovesAwayAndBackLosesTheFormatSetThere) {
  Sheet sheet;
  sheet.SelText("plain");
  sheet.SelBold(true);
  sheet.SelStart(2);
  sheet.SelStart(5);
  EXPECT_EQ(sheet.SelBold(), false);
}

TEST(RichText, InAnEmptyDocumentACaretKeepsTheFormatSetThere) {
  Sheet sheet;
  sheet.SelBold(true);
  sheet.SelStart(7);
  EXPECT_EQ(sheet.SelBold(), true);
}

TEST(RichText, ADocumentEmptiedByReplaceHasTheDesignFontAtItsCaret) {
  Sheet sheet;
  sheet.SelBold(true);
  sheet.SelText("bold");
  sheet.Replace(0, 4, U"", Design());
  EXPECT_EQ(sheet.CaretFormat(), Design());
}

TEST(RichText, TheCaretFormatCanBeSetWhole) {
  Sheet sheet;
  sheet.CaretFormat(With(Italic(), Picture()));
  EXPECT_EQ(sheet.CaretFormat(), Italic());
  sheet.SelText("i");
  EXPECT_EQ(sheet.FormatAt(0), Italic());
}

// --- The selection

TEST(RichText, ASelectionIsCutAtTheEnd) {
  Sheet sheet;
  sheet.SelText("abcdef");
  sheet.SelStart(4);
  sheet.SelLength(std::numeric_limits<int>::max());
  EXPECT_EQ(sheet.SelLength(), 2);
}

TEST(RichText, SettingTheCaretCollapsesTheSelection) {
  Sheet sheet;
  sheet.SelText("abcdef");
  sheet.SelStart(2);
  sheet.SelLength(3);
  sheet.SelStart(2);
  EXPECT_EQ(sheet.SelStart(), 2);
  EXPECT_EQ(sheet.SelLength(), 0);
}

TEST(RichText, ALengthOfZeroCollapsesTheSelection) {
  Sheet sheet;
  WriteWithBoldMiddle(sheet);
  sheet.SelStart(6);
  sheet.SelLength(4);
  sheet.SelLength(0);
  EXPECT_EQ(sheet.SelStart(), 6);
  EXPECT_EQ(sheet.SelLength(), 0);
  EXPECT_EQ(sheet.SelBold(), false);
}

TEST(RichText, ALengthOfZeroWithoutASelectionChangesNothing) {
  Sheet sheet;
  sheet.SelText("plain");
  sheet.SelBold(true);
  sheet.SelLength(0);
  EXPECT_EQ(sheet.SelBold(), true);
}

TEST(RichText, TextReplacesTheSelectionInTheLookOfItsFirstCharacter) {
  Sheet sheet;
  WriteWithBoldMiddle(sheet);
  sheet.SelStart(6);
  sheet.SelLength(5);
  sheet.SelText("xy");
  EXPECT_EQ(Plain(sheet), "plain xyplain");
  EXPECT_EQ(Bolds(sheet), "......bb.....");
  EXPECT_EQ(sheet.SelStart(), 8);
  EXPECT_EQ(sheet.SelLength(), 0);
  EXPECT_EQ(sheet.SelBold(), true);
}

TEST(RichText, AnEmptyTextRemovesTheSelection) {
  Sheet sheet;
  sheet.SelText("abcdef");
  sheet.SelStart(1);
  sheet.SelLength(3);
  sheet.SelText("");
  EXPECT_EQ(Plain(sheet), "aef");
  EXPECT_EQ(sheet.SelStart(), 1);
}

// --- Inserting at the caret

TEST(RichText, TextGoesInAtTheCaretAndWhatStandsBehindMovesRight) {
  Sheet sheet;
  sheet.SelText("      ");
  sheet.SelStart(2);
  sheet.SelText("ab");
  EXPECT_EQ(Plain(sheet), "  ab    ");
  EXPECT_EQ(sheet.SelStart(), 4);
  sheet.SelText("c");
  EXPECT_EQ(Plain(sheet), "  abc    ");
}

TEST(RichText, TheCaretKeepsItsFormatBehindTheInsertedText) {
  Sheet sheet;
  sheet.SelText("plain");
  sheet.SelStart(2);
  sheet.SelItalic(true);
  sheet.SelText("i");
  EXPECT_EQ(sheet.SelItalic(), true);
  sheet.SelText("i");
  EXPECT_EQ(sheet.FormatAt(3), Italic());
  EXPECT_EQ(sheet.FormatAt(4), Design());
}

TEST(RichText, AttributesNotSetKeepTheirValue) {
  Sheet sheet;
  sheet.SelBold(true);
  sheet.SelItalic(true);
  sheet.SelBold(false);
  sheet.SelText("i");
  EXPECT_EQ(sheet.FormatAt(0), Italic());
}

TEST(RichText, BlanksOfRowsPileUpBehindAllLaterText) {
  Sheet sheet;
  for (int row = 0; row < 3; ++row) {
    const int start = sheet.SelStart();
    sheet.SelText(std::string(9, ' '));
    sheet.SelStart(start + 2);
    sheet.SelText("A");
    sheet.SelStart(start + 5);
    sheet.SelText("B\n");
  }
  EXPECT_EQ(Plain(sheet), "  A  B\n  A  B\n  A  B\n" + std::string(15, ' '));
  EXPECT_EQ(sheet.SelStart(), 21);
}

TEST(RichText, ALongWordHasTheNextColumnInsertedIntoIt) {
  Sheet sheet;
  sheet.SelText("          ");
  sheet.SelStart(1);
  sheet.SelText("12345678");
  sheet.SelStart(5);
  sheet.SelText("B\n");
  EXPECT_EQ(Plain(sheet), " 1234B\n5678         ");
}

// --- Attributes of a selection

TEST(RichText, SettingAnAttributeFormatsTheSelectionAlone) {
  Sheet sheet;
  sheet.SelText("abcdef");
  sheet.SelStart(2);
  sheet.SelLength(2);
  sheet.SelBold(true);
  EXPECT_EQ(Bolds(sheet), "..bb..");
  EXPECT_EQ(sheet.SelStart(), 2);
  EXPECT_EQ(sheet.SelLength(), 2);
}

TEST(RichText, EveryAttributeCanBeSetOnASelection) {
  Sheet sheet;
  sheet.SelText("ab");
  sheet.SelStart(0);
  sheet.SelLength(1);
  sheet.SelFontName("Courrier New");
  sheet.SelFontSize(14.25);
  sheet.SelBold(true);
  sheet.SelItalic(true);
  sheet.SelUnderline(true);
  sheet.SelColor(0xFF0000);
  CharFormat all;
  all.font = "Courrier New";
  all.size = 285;
  all.bold = all.italic = all.underline = true;
  all.color = 0xFF0000;
  EXPECT_EQ(sheet.FormatAt(0), all);
  EXPECT_EQ(sheet.FormatAt(1), Design());
  EXPECT_EQ(sheet.SelFontName(), "Courrier New");
  EXPECT_EQ(sheet.SelFontSize(), 14.25);
  EXPECT_EQ(sheet.SelUnderline(), true);
  EXPECT_EQ(sheet.SelColor(), 0xFF0000u);
}

TEST(RichText, GettingAMixedAttributeGivesNothingAndAnEvenOneItsValue) {
  Sheet sheet;
  WriteWithBoldMiddle(sheet);
  sheet.SelStart(4);
  sheet.SelLength(4);
  EXPECT_EQ(sheet.SelBold(), std::nullopt);
  EXPECT_EQ(sheet.SelItalic(), false);
  EXPECT_EQ(sheet.SelFontName(), "Courier New");
  EXPECT_EQ(sheet.SelFontSize(), 9.75);
  EXPECT_EQ(sheet.SelColor(), 0u);
}

TEST(RichText, EveryAttributeCanBeMixed) {
  Sheet sheet;
  sheet.SelText("a");
  sheet.SelFontName("Times New Roman");
  sheet.SelFontSize(12);
  sheet.SelBold(true);
  sheet.SelItalic(true);
  sheet.SelUnderline(true);
  sheet.SelColor(255);
  sheet.SelText("b");
  sheet.SelStart(0);
  sheet.SelLength(2);
  EXPECT_EQ(sheet.SelFontName(), std::nullopt);
  EXPECT_EQ(sheet.SelFontSize(), std::nullopt);
  EXPECT_EQ(sheet.SelBold(), std::nullopt);
  EXPECT_EQ(sheet.SelItalic(), std::nullopt);
  EXPECT_EQ(sheet.SelUnderline(), std::nullopt);
  EXPECT_EQ(sheet.SelColor(), std::nullopt);
}

TEST(RichText, BoldOnAHalfBoldSelectionMakesAllOfItBold) {
  Sheet sheet;
  WriteWithBoldMiddle(sheet);
  sheet.SelStart(4);
  sheet.SelLength(4);
  sheet.SelBold(!sheet.SelBold().value_or(false));
  EXPECT_EQ(Bolds(sheet), "....bbbbbb......");
  sheet.SelBold(!sheet.SelBold().value_or(false));
  EXPECT_EQ(Bolds(sheet), "........bb......");
}

TEST(RichText, TextTypedOverANewlyBoldSelectionIsBold) {
  Sheet sheet;
  sheet.SelText("abc");
  sheet.SelStart(0);
  sheet.SelLength(3);
  sheet.SelBold(true);
  sheet.SelText("x");
  EXPECT_EQ(Bolds(sheet), "b");
}

TEST(RichText, SizesAreExactInTwentiethsOfAPoint) {
  Sheet sheet;
  for (const double points : {1.0, 9.75, 14.25, 10.05, 1638.0}) {
    sheet.SelFontSize(points);
    EXPECT_EQ(sheet.SelFontSize(), points);
  }
  sheet.SelFontSize(10.06);
  EXPECT_EQ(sheet.CaretFormat().size, 201);
  sheet.SelFontSize(10.09);
  EXPECT_EQ(sheet.CaretFormat().size, 202);
}

TEST(RichText, AColourHasNoMoreThanItsThreeBytes) {
  Sheet sheet;
  sheet.SelColor(0x7F00FF00);
  EXPECT_EQ(sheet.SelColor(), 0x00FF00u);
}

TEST(RichText, ASizeOutsideOneTo1638PointsIsAnInvalidCall) {
  Sheet sheet;
  for (const double points : {0.0, -1.0, 0.99, 1638.01, 1e300, std::nan("")}) {
    EXPECT_EQ(FaultNumber([&] { sheet.SelFontSize(points); }), 5) << points;
  }
  EXPECT_EQ(sheet.SelFontSize(), 9.75);
}

}  // namespace
}  // namespace brindlepage
