#include "worksheet/rich_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <limits>
#include <memory>
#include <optional>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "toolkit/run_time_error.h"
#include "worksheet/gap_buffer.h"

namespace brindlepage {
namespace {

using Strings = std::vector<std::string>;

constexpr Alignment kLeft = Alignment::Left;
constexpr Alignment kRight = Alignment::Right;
constexpr Alignment kCentre = Alignment::Centre;

struct Sheet : RichText {
  Sheet() : RichText("Courier New", 9.75) {}
};

CharFormat Design() {
  CharFormat format;
  format.font = "Courier New";
  format.size = 195;
  return format;
}

CharFormat Bold() {
  CharFormat format = Design();
  format.bold = true;
  return format;
}

CharFormat Italic() {
  CharFormat format = Design();
  format.italic = true;
  return format;
}

std::shared_ptr<const RichPicture> Picture() {
  return std::make_shared<const RichPicture>(RichPicture{"png", "bytes", 3000, 2000});
}

CharFormat With(CharFormat format, std::shared_ptr<const RichPicture> picture) {
  format.picture = std::move(picture);
  return format;
}

// The document's plain text, for texts of ASCII.
std::string Plain(const RichText& sheet) {
  const std::u32string text = sheet.PlainText();
  return {text.begin(), text.end()};
}

// A letter for each paragraph: l, r or c.
std::string Alignments(const RichText& sheet) {
  std::string letters;
  for (const RichText::Paragraph& paragraph : sheet.Paragraphs()) {
    letters += "lrc"[static_cast<int>(paragraph.alignment)];
  }
  return letters;
}

// A letter for each character: b where it is bold, else a dot.
std::string Bolds(const RichText& sheet) {
  std::string letters;
  for (int i = 0; i < sheet.Length(); ++i) letters += sheet.FormatAt(i).bold ? 'b' : '.';
  return letters;
}

// "plain BOLD plain" with the middle word bold; the caret at the end.
void WriteWithBoldMiddle(RichText& sheet) {
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

// --- The gap buffer

std::string Contents(const GapBuffer<char>& buffer) {
  std::string contents;
  for (int i = 0; i < buffer.Size(); ++i) contents += buffer[i];
  return contents;
}

void Put(GapBuffer<char>& buffer, int position, std::string_view text) {
  std::copy(text.begin(), text.end(), buffer.Insert(position, static_cast<int>(text.size())));
}

TEST(GapBuffer, ANewOneIsEmpty) { EXPECT_EQ(GapBuffer<char>().Size(), 0); }

TEST(GapBuffer, WhatIsInsertedStandsInFrontOfThePosition) {
  GapBuffer<char> buffer;
  Put(buffer, 0, "ac");
  Put(buffer, 1, "b");
  Put(buffer, 3, "d");
  Put(buffer, 0, "_");
  EXPECT_EQ(Contents(buffer), "_abcd");
}

TEST(GapBuffer, AnElementCanBeChangedOnBothSidesOfTheGap) {
  GapBuffer<char> buffer;
  Put(buffer, 0, "abcd");
  Put(buffer, 2, "-");
  buffer[0] = 'A';
  buffer[4] = 'D';
  EXPECT_EQ(Contents(buffer), "Ab-cD");
}

TEST(GapBuffer, AStretchAroundTheGapIsRemoved) {
  GapBuffer<char> buffer;
  Put(buffer, 0, "abcdef");
  Put(buffer, 3, "-");
  buffer.Remove(2, 3);
  EXPECT_EQ(Contents(buffer), "abef");
}

TEST(GapBuffer, AStretchAwayFromTheGapIsRemoved) {
  GapBuffer<char> buffer;
  Put(buffer, 0, "abcdef");
  buffer.Remove(0, 2);
  EXPECT_EQ(Contents(buffer), "cdef");
  buffer.Remove(3, 1);
  EXPECT_EQ(Contents(buffer), "cde");
}

TEST(GapBuffer, GrowingKeepsBothSidesOfTheGap) {
  GapBuffer<char> buffer;
  Put(buffer, 0, "<>");
  Put(buffer, 1, std::string(1000, 'x'));
  EXPECT_EQ(Contents(buffer), "<" + std::string(1000, 'x') + ">");
}

TEST(GapBuffer, RandomChangesGiveWhatAStringGives) {
  for (unsigned seed = 0; seed < 200; ++seed) {
    std::mt19937 random(seed);
    const auto draw = [&](std::size_t n) { return static_cast<int>(random() % n); };
    GapBuffer<char> buffer;
    std::string model;
    for (int step = 0; step < 100; ++step) {
      const int position = draw(model.size() + 1);
      if (draw(2) == 0) {
        const std::string text(static_cast<std::size_t>(draw(40)),
                               static_cast<char>('a' + draw(26)));
        Put(buffer, position, text);
        model.insert(static_cast<std::size_t>(position), text);
      } else {
        const int count = draw(model.size() - static_cast<std::size_t>(position) + 1);
        buffer.Remove(position, count);
        model.erase(static_cast<std::size_t>(position), static_cast<std::size_t>(count));
      }
      ASSERT_EQ(Contents(buffer), model) << "seed " << seed << " step " << step;
    }
  }
}

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

// --- Alignment

TEST(RichText, AlignmentWithoutASelectionIsThatOfTheParagraphWithTheCaret) {
  Sheet sheet;
  sheet.SelText("one\ntwo\nthree");
  sheet.SelStart(5);
  sheet.SelAlignment(kCentre);
  EXPECT_EQ(Alignments(sheet), "lcl");
  EXPECT_EQ(sheet.SelAlignment(), kCentre);
  sheet.SelStart(3);
  EXPECT_EQ(sheet.SelAlignment(), kLeft);
}

TEST(RichText, AlignmentOfASelectionIsThatOfAllItsParagraphs) {
  Sheet sheet;
  sheet.SelText("one\ntwo\nthree\nfour");
  sheet.SelStart(5);
  sheet.SelLength(4);
  sheet.SelAlignment(kRight);
  EXPECT_EQ(Alignments(sheet), "lrrl");
}

TEST(RichText, ASelectionThatEndsBehindALineEndLeavesTheNextParagraphAlone) {
  Sheet sheet;
  sheet.SelText("one\ntwo\nthree");
  sheet.SelStart(4);
  sheet.SelLength(4);
  sheet.SelAlignment(kCentre);
  EXPECT_EQ(Alignments(sheet), "lcl");
}

TEST(RichText, SelectingAllAlignsTheEmptyLastParagraphToo) {
  Sheet sheet;
  sheet.SelText("one\ntwo\n");
  sheet.SelStart(0);
  sheet.SelLength(100);
  sheet.SelAlignment(kCentre);
  EXPECT_EQ(Alignments(sheet), "ccc");
}

TEST(RichText, GettingAMixedAlignmentGivesNothing) {
  Sheet sheet;
  sheet.SelText("one\ntwo");
  sheet.SelAlignment(kCentre);
  sheet.SelStart(0);
  sheet.SelLength(7);
  EXPECT_EQ(sheet.SelAlignment(), std::nullopt);
  sheet.SelLength(4);
  EXPECT_EQ(sheet.SelAlignment(), kLeft);
}

TEST(RichText, ANewParagraphTakesTheAlignmentOfTheOneBefore) {
  Sheet sheet;
  sheet.SelAlignment(kCentre);
  sheet.SelText("one\ntwo\n");
  sheet.SelAlignment(kLeft);
  sheet.SelText("three");
  EXPECT_EQ(Alignments(sheet), "ccl");
  sheet.SelStart(1);
  sheet.SelText("\n\n");
  EXPECT_EQ(Alignments(sheet), "ccccl");
}

TEST(RichText, JoiningTwoParagraphsKeepsTheAlignmentOfTheFirst) {
  Sheet sheet;
  sheet.SelAlignment(kRight);
  sheet.SelText("one\ntwo\n");
  sheet.SelAlignment(kCentre);
  sheet.SelText("three");
  sheet.SelStart(7);
  sheet.SelLength(1);
  sheet.SelText("");
  EXPECT_EQ(Plain(sheet), "one\ntwothree");
  EXPECT_EQ(Alignments(sheet), "rr");
}

TEST(RichText, AlignmentAtCanBeAskedAtEveryCaretPosition) {
  Sheet sheet;
  sheet.SelText("a\n");
  sheet.SelAlignment(kCentre);
  EXPECT_EQ(sheet.AlignmentAt(0), kLeft);
  EXPECT_EQ(sheet.AlignmentAt(1), kLeft);
  EXPECT_EQ(sheet.AlignmentAt(2), kCentre);
  EXPECT_EQ(FaultNumber([&] { sheet.AlignmentAt(3); }), 9);
}

// --- Pictures

TEST(RichText, APictureTakesOneCharactersPlaceAndTheCaretStandsBehindIt) {
  Sheet sheet;
  sheet.SelText("abcd");
  sheet.SelStart(1);
  sheet.SelLength(2);
  const auto picture = Picture();
  sheet.InsertPicture(picture);
  EXPECT_EQ(sheet.PlainText(), U"a\uFFFCd");
  EXPECT_EQ(sheet.FormatAt(1).picture, picture);
  EXPECT_EQ(sheet.SelStart(), 2);
  EXPECT_EQ(sheet.SelLength(), 0);
}

TEST(RichText, TextTypedBehindAPictureHasTheFormatFromBefore) {
  Sheet sheet;
  sheet.SelBold(true);
  sheet.InsertPicture(Picture());
  sheet.SelText("b");
  EXPECT_EQ(sheet.FormatAt(1), Bold());
}

TEST(RichText, ACaretMovedBehindAPictureTakesItsFormatWithoutThePicture) {
  Sheet sheet;
  sheet.SelBold(true);
  sheet.InsertPicture(Picture());
  sheet.SelBold(false);
  sheet.SelText("plain");
  sheet.SelStart(1);
  EXPECT_EQ(sheet.CaretFormat(), Bold());
  sheet.SelStart(0);
  EXPECT_EQ(sheet.CaretFormat(), Bold());
}

TEST(RichText, AnAttributeOfASelectedPictureIsSetAndThePictureStays) {
  Sheet sheet;
  const auto picture = Picture();
  sheet.InsertPicture(picture);
  sheet.SelStart(0);
  sheet.SelLength(1);
  sheet.SelBold(true);
  EXPECT_EQ(sheet.FormatAt(0), With(Bold(), picture));
  EXPECT_EQ(sheet.CaretFormat(), Bold());
}

TEST(RichText, NoPictureIsAnInvalidPicture) {
  Sheet sheet;
  EXPECT_EQ(FaultNumber([&] { sheet.InsertPicture(nullptr); }), 481);
}

// --- Reading

TEST(RichText, PositionsOutOfRangeAreSubscriptErrors) {
  Sheet sheet;
  sheet.SelText("ab");
  EXPECT_EQ(FaultNumber([&] { sheet.CharacterAt(2); }), 9);
  EXPECT_EQ(FaultNumber([&] { sheet.CharacterAt(-1); }), 9);
  EXPECT_EQ(FaultNumber([&] { sheet.FormatAt(2); }), 9);
  EXPECT_EQ(FaultNumber([&] { sheet.FormatIdAt(-1); }), 9);
  EXPECT_EQ(FaultNumber([&] { sheet.AlignmentAt(-1); }), 9);
}

TEST(RichText, EqualFormatsHaveEqualIds) {
  Sheet sheet;
  WriteWithBoldMiddle(sheet);
  EXPECT_EQ(sheet.FormatIdAt(0), sheet.FormatIdAt(15));
  EXPECT_NE(sheet.FormatIdAt(0), sheet.FormatIdAt(7));
  EXPECT_EQ(sheet.CaretFormatId(), sheet.FormatIdAt(0));
  EXPECT_EQ(sheet.Format(sheet.FormatIdAt(7)), Bold());
}

TEST(RichText, AFormatHoldsAfterTheDocumentIsCleared) {
  Sheet sheet;
  sheet.SelBold(true);
  sheet.SelText("b");
  const CharFormat& format = sheet.FormatAt(0);
  const std::uint32_t id = sheet.FormatIdAt(0);
  sheet.Clear();
  for (int size = 1; size < 500; ++size) sheet.SelFontSize(size);
  EXPECT_EQ(format, Bold());
  EXPECT_EQ(sheet.Format(id), Bold());
}

TEST(RichText, AnEmptyDocumentHasOneEmptyParagraph) {
  const Sheet sheet;
  const auto paragraphs = sheet.Paragraphs();
  ASSERT_EQ(paragraphs.size(), 1u);
  EXPECT_EQ(paragraphs[0].start, 0);
  EXPECT_EQ(paragraphs[0].length, 0);
  EXPECT_TRUE(sheet.Runs(paragraphs[0]).empty());
}

TEST(RichText, ADocumentThatEndsInALineEndHasALastEmptyParagraph) {
  Sheet sheet;
  sheet.SelText("ab\n\ncd\n");
  const auto paragraphs = sheet.Paragraphs();
  ASSERT_EQ(paragraphs.size(), 4u);
  EXPECT_EQ(paragraphs[0].start, 0);
  EXPECT_EQ(paragraphs[0].length, 3);
  EXPECT_EQ(paragraphs[1].start, 3);
  EXPECT_EQ(paragraphs[1].length, 1);
  EXPECT_EQ(paragraphs[2].start, 4);
  EXPECT_EQ(paragraphs[2].length, 3);
  EXPECT_EQ(paragraphs[3].start, 7);
  EXPECT_EQ(paragraphs[3].length, 0);
}

TEST(RichText, RunsAreTheLongestStretchesOfOneFormatWithTheLineEnd) {
  Sheet sheet;
  sheet.SelText("one ");
  sheet.SelText("run");
  sheet.SelBold(true);
  sheet.SelText("bold\nbold");
  const auto paragraphs = sheet.Paragraphs();
  const auto runs = sheet.Runs(paragraphs[0]);
  ASSERT_EQ(runs.size(), 2u);
  EXPECT_EQ(runs[0].start, 0);
  EXPECT_EQ(runs[0].length, 7);
  EXPECT_EQ(*runs[0].format, Design());
  EXPECT_EQ(runs[1].start, 7);
  EXPECT_EQ(runs[1].length, 5);
  EXPECT_EQ(*runs[1].format, Bold());
  const auto last = sheet.Runs(paragraphs[1]);
  ASSERT_EQ(last.size(), 1u);
  EXPECT_EQ(last[0].start, 12);
  EXPECT_EQ(last[0].length, 4);
}

TEST(RichText, EachPictureIsARunOfItsOwnEvenTheSameTwice) {
  Sheet sheet;
  const auto picture = Picture();
  sheet.SelText("a");
  sheet.InsertPicture(picture);
  sheet.InsertPicture(picture);
  sheet.SelText("b");
  const auto runs = sheet.Runs(sheet.Paragraphs()[0]);
  ASSERT_EQ(runs.size(), 4u);
  for (const auto& run : runs) EXPECT_EQ(run.length, 1);
  EXPECT_EQ(runs[1].format->picture, picture);
  EXPECT_EQ(runs[2].format->picture, picture);
}

TEST(RichText, WritingAHundredThousandLinesOneByOneKeepsThemAll) {
  Sheet sheet;
  for (int i = 0; i < 100000; ++i) sheet.SelText("ab\n");
  EXPECT_EQ(sheet.Length(), 300000);
  EXPECT_EQ(sheet.TextLength(), 400000);
  EXPECT_EQ(sheet.Paragraphs().size(), 100001u);
}

// --- Editing anywhere

TEST(RichText, ReplaceInFrontOfTheCaretCarriesItAlongWithItsFormat) {
  Sheet sheet;
  sheet.SelText("abcdef");
  sheet.SelStart(4);
  sheet.SelBold(true);
  sheet.Replace(1, 2, U"12345", Italic());
  EXPECT_EQ(Plain(sheet), "a12345def");
  EXPECT_EQ(sheet.SelStart(), 7);
  EXPECT_EQ(sheet.CaretFormat(), Bold());
  EXPECT_EQ(sheet.FormatAt(1), Italic());
}

TEST(RichText, ReplaceBehindTheCaretLeavesItAlone) {
  Sheet sheet;
  sheet.SelText("abcdef");
  sheet.SelStart(2);
  sheet.SelBold(true);
  sheet.Replace(3, 3, U"", Italic());
  EXPECT_EQ(sheet.SelStart(), 2);
  EXPECT_EQ(sheet.CaretFormat(), Bold());
}

TEST(RichText, ReplaceAtTheCaretPutsItBehindTheNewTextInItsFormat) {
  Sheet sheet;
  sheet.SelText("abcdef");
  sheet.SelStart(3);
  sheet.Replace(3, 0, U"12", Italic());
  EXPECT_EQ(sheet.SelStart(), 5);
  EXPECT_EQ(sheet.CaretFormat(), Italic());
  sheet.Replace(0, 6, U"x", Bold());
  EXPECT_EQ(Plain(sheet), "xef");
  EXPECT_EQ(sheet.SelStart(), 1);
  EXPECT_EQ(sheet.CaretFormat(), Bold());
}

TEST(RichText, ReplaceOfTheSelectedTextCollapsesTheSelection) {
  Sheet sheet;
  sheet.SelText("abcdef");
  sheet.SelStart(2);
  sheet.SelLength(2);
  sheet.Replace(2, 2, U"x", Design());
  EXPECT_EQ(Plain(sheet), "abxef");
  EXPECT_EQ(sheet.SelStart(), 3);
  EXPECT_EQ(sheet.SelLength(), 0);
}

TEST(RichText, ReplaceInsideTheSelectionGrowsIt) {
  Sheet sheet;
  sheet.SelText("abcdef");
  sheet.SelStart(1);
  sheet.SelLength(4);
  sheet.Replace(3, 1, U"123", Design());
  EXPECT_EQ(Plain(sheet), "abc123ef");
  EXPECT_EQ(sheet.SelStart(), 1);
  EXPECT_EQ(sheet.SelLength(), 6);
}

TEST(RichText, ReplacePutsAPictureWhereItsCharacterStands) {
  Sheet sheet;
  const auto picture = Picture();
  sheet.Replace(0, 0, U"a\uFFFCb", With(Bold(), picture));
  EXPECT_EQ(sheet.FormatAt(0), Bold());
  EXPECT_EQ(sheet.FormatAt(1), With(Bold(), picture));
  EXPECT_EQ(sheet.FormatAt(2), Bold());
}

TEST(RichText, ReplaceCutsAStretchToTheDocument) {
  Sheet sheet;
  sheet.SelText("abcdef");
  sheet.Replace(4, 1000, U"!", Design());
  EXPECT_EQ(Plain(sheet), "abcd!");
  sheet.Replace(-2, 3, U"?", Design());
  EXPECT_EQ(Plain(sheet), "?bcd!");
  sheet.Replace(99, std::numeric_limits<int>::max(), U".", Design());
  EXPECT_EQ(Plain(sheet), "?bcd!.");
  sheet.Replace(2, -5, U"-", Design());
  EXPECT_EQ(Plain(sheet), "?b-cd!.");
}

TEST(RichText, ReformatSetsTheWholeFormatAndKeepsPictures) {
  Sheet sheet;
  const auto picture = Picture();
  sheet.SelText("a");
  sheet.InsertPicture(picture);
  sheet.SelText("b");
  sheet.Reformat(0, 2, Bold());
  EXPECT_EQ(sheet.FormatAt(0), Bold());
  EXPECT_EQ(sheet.FormatAt(1), With(Bold(), picture));
  EXPECT_EQ(sheet.FormatAt(2), Design());
}

TEST(RichText, ReformatGivesAPictureANewOneAndTextNone) {
  Sheet sheet;
  sheet.SelText("a");
  sheet.InsertPicture(Picture());
  const auto larger = Picture();
  sheet.Reformat(0, 2, With(Design(), larger));
  EXPECT_EQ(sheet.FormatAt(0), Design());
  EXPECT_EQ(sheet.FormatAt(1).picture, larger);
}

TEST(RichText, AlignNeedsNoCaret) {
  Sheet sheet;
  sheet.SelText("one\ntwo\nthree");
  sheet.Align(0, 5, kRight);
  EXPECT_EQ(Alignments(sheet), "rrl");
  sheet.Align(9, 0, kCentre);
  EXPECT_EQ(Alignments(sheet), "rrc");
  EXPECT_EQ(sheet.SelStart(), 13);
}

// --- Observers

TEST(RichText, AnInsertionIsReportedAndThenTheCaret) {
  Sheet sheet;
  sheet.SelText("abc");
  Diary diary;
  sheet.Observe(&diary);
  sheet.SelStart(1);
  sheet.SelText("x\r\ny");
  EXPECT_EQ(diary.lines, (Strings{"caret", "replaced 1 0 3", "caret"}));
}

TEST(RichText, SettingTheTextIsReportedAsOneReplacement) {
  Sheet sheet;
  sheet.SelText("a\nbc");
  Diary diary;
  sheet.Observe(&diary);
  sheet.Text("12\n");
  EXPECT_EQ(diary.lines, (Strings{"replaced 0 4 3", "caret"}));
}

TEST(RichText, ClearingIsReportedEvenWhenNothingButTheAlignmentGoes) {
  Sheet sheet;
  sheet.SelAlignment(kCentre);
  Diary diary;
  sheet.Observe(&diary);
  sheet.Clear();
  EXPECT_EQ(diary.lines, (Strings{"replaced 0 0 0"}));
}

TEST(RichText, FormatsAndAlignmentsAreReported) {
  Sheet sheet;
  sheet.SelText("abc\nd");
  sheet.SelStart(1);
  Diary diary;
  sheet.Observe(&diary);
  sheet.SelAlignment(kRight);
  sheet.SelBold(true);
  sheet.SelLength(2);
  sheet.SelBold(true);
  sheet.SelAlignment(kCentre);
  sheet.Reformat(3, 1, Bold());
  EXPECT_EQ(diary.lines, (Strings{"aligned 1 0", "reformatted 1 0", "caret", "reformatted 1 2",
                                  "aligned 1 2", "reformatted 3 1"}));
}

TEST(RichText, WhatChangesNothingIsNotReported) {
  Sheet sheet;
  sheet.SelText("abc");
  Diary diary;
  sheet.Observe(&diary);
  sheet.SelStart(3);
  sheet.SelStart(99);
  sheet.SelLength(0);
  sheet.SelLength(5);
  sheet.SelText("");
  sheet.SelBold(false);
  sheet.SelAlignment(kLeft);
  sheet.Replace(1, 0, U"", Bold());
  sheet.Reformat(0, 3, Design());
  sheet.Align(0, 3, kLeft);
  sheet.CaretFormat(Design());
  EXPECT_EQ(diary.lines, Strings{});
}

TEST(RichText, AReplacementAwayFromTheCaretMovesItOnlyIfItStandsBehind) {
  Sheet sheet;
  sheet.SelText("abcdef");
  sheet.SelStart(3);
  Diary diary;
  sheet.Observe(&diary);
  sheet.Replace(4, 1, U"", Design());
  sheet.Replace(0, 1, U"", Design());
  EXPECT_EQ(diary.lines, (Strings{"replaced 4 1 0", "replaced 0 1 0", "caret"}));
}

TEST(RichText, SeveralObserversAreToldUntilTheyStop) {
  Sheet sheet;
  Diary first;
  Diary second;
  sheet.Observe(&first);
  sheet.Observe(&second);
  sheet.SelText("a");
  sheet.StopObserving(&first);
  sheet.SelText("b");
  EXPECT_EQ(first.lines, (Strings{"replaced 0 0 1", "caret"}));
  EXPECT_EQ(second.lines, (Strings{"replaced 0 0 1", "caret", "replaced 1 0 1", "caret"}));
}

TEST(RichText, AnObserverSeesDocumentAndCaretAfterTheChange) {
  struct Witness : RichTextObserver {
    explicit Witness(const RichText& document) : sheet(document) {}
    const RichText& sheet;
    std::string text;
    int caret = -1;
    void Replaced(int, int, int) override {
      text = Plain(sheet);
      caret = sheet.SelStart();
    }
    void Reformatted(int, int) override {}
    void ParagraphsAligned(int, int) override {}
    void CaretMoved() override {}
  };
  Sheet sheet;
  Witness witness(sheet);
  sheet.Observe(&witness);
  sheet.SelText("abc");
  EXPECT_EQ(witness.text, "abc");
  EXPECT_EQ(witness.caret, 3);
}

// --- Random operations against a slow and obvious document

// Each place has its paragraph's alignment; the last one is the end of the document, which is no
// character.
struct Place {
  char32_t character = 0;
  CharFormat format;
  Alignment alignment = kLeft;
  bool operator==(const Place&) const = default;
};

struct Model {
  std::vector<Place> places{Place{}};
  int caret = 0;
  int selected = 0;
  CharFormat caret_format = Design();

  int Length() const { return static_cast<int>(places.size()) - 1; }
  Place& At(int position) { return places[static_cast<std::size_t>(position)]; }
  const Place& At(int position) const { return places[static_cast<std::size_t>(position)]; }

  // `text` holds line ends as '\n' alone and nothing senseless.
  void Splice(int position, int removed, const std::u32string& text, const CharFormat& format) {
    const Alignment alignment = At(position).alignment;
    places.erase(places.begin() + position, places.begin() + position + removed);
    int to = position;
    for (const char32_t c : text) {
      const CharFormat own = c == 0xFFFC ? format : With(format, nullptr);
      places.insert(places.begin() + to++, Place{c, own, alignment});
    }
    for (int i = to; i <= Length(); ++i) {
      At(i).alignment = alignment;
      if (At(i).character == U'\n') break;
    }
  }

  CharFormat FormatAtCaret() const {
    if (Length() == 0) return Design();
    const int from = selected > 0 || caret == 0 ? caret : caret - 1;
    return With(At(from).format, nullptr);
  }

  void Select(int position, int length) {
    position = std::min(position, Length());
    length = std::min(length, Length() - position);
    if (position == caret && length == selected) return;
    caret = position;
    selected = length;
    caret_format = FormatAtCaret();
  }

  void Insert(const std::u32string& text, const CharFormat& format) {
    Splice(caret, selected, text, format);
    caret += static_cast<int>(text.size());
    selected = 0;
  }

  void Text(const std::u32string& text) {
    const Alignment alignment = At(caret).alignment;
    places.assign(1, Place{0, {}, alignment});
    Splice(0, 0, text, Design());
    caret = selected = 0;
    caret_format = Design();
  }

  void Replace(int position, int removed, const std::u32string& text, const CharFormat& format) {
    if (removed == 0 && text.empty()) return;
    Splice(position, removed, text, format);
    const int end = position + removed;
    const int inserted = static_cast<int>(text.size());
    bool touched = false;
    const auto move = [&](int p) {
      if (p < position) return p;
      if (p > end) return p + inserted - removed;
      touched = true;
      return position + inserted;
    };
    const int start = move(caret);
    selected = move(caret + selected) - start;
    caret = start;
    if (touched) caret_format = FormatAtCaret();
  }

  template <class Change>
  void Reformat(int position, int count, Change change) {
    for (int i = position; i < position + count; ++i) change(At(i).format);
  }

  template <class Change>
  void SetSelected(Change change) {
    if (selected == 0) {
      change(caret_format);
      return;
    }
    bool changed = false;
    for (int i = caret; i < caret + selected; ++i) {
      const CharFormat before = At(i).format;
      change(At(i).format);
      changed = changed || !(before == At(i).format);
    }
    if (changed) caret_format = FormatAtCaret();
  }

  // From the start of the first paragraph to the end of the last one.
  std::pair<int, int> Paragraphs(int position, int count) const {
    int start = position;
    while (start > 0 && At(start - 1).character != U'\n') --start;
    int end = position;
    if (count > 0) end = position + count == Length() ? Length() : position + count - 1;
    while (end < Length() && At(end).character != U'\n') ++end;
    return {start, end};
  }

  void Align(int position, int count, Alignment alignment) {
    const auto [start, end] = Paragraphs(position, count);
    for (int i = start; i <= end; ++i) At(i).alignment = alignment;
  }

  template <class T>
  std::optional<T> Selected(T CharFormat::*attribute) const {
    if (selected == 0) return caret_format.*attribute;
    for (int i = caret; i < caret + selected; ++i) {
      if (At(i).format.*attribute != At(caret).format.*attribute) return std::nullopt;
    }
    return At(caret).format.*attribute;
  }

  std::optional<Alignment> SelAlignment() const {
    const auto [start, end] = Paragraphs(caret, selected);
    for (int i = start; i <= end; ++i) {
      if (At(i).alignment != At(start).alignment) return std::nullopt;
    }
    return At(start).alignment;
  }
};

// Keeps a copy of the document by its reports alone, as a view does.
struct Mirror : RichTextObserver {
  explicit Mirror(const RichText& document) : sheet(document) {}

  void Replaced(int position, int removed, int inserted) override {
    places.erase(places.begin() + position, places.begin() + position + removed);
    places.insert(places.begin() + position, static_cast<std::size_t>(inserted), Place{});
    for (int i = position; i < position + inserted; ++i) {
      At(i).character = sheet.CharacterAt(i);
      At(i).format = sheet.FormatAt(i);
    }
    CopyAlignments(position, position + inserted);
  }
  void Reformatted(int position, int count) override {
    for (int i = position; i < position + count; ++i) At(i).format = sheet.FormatAt(i);
  }
  void ParagraphsAligned(int position, int count) override {
    const bool to_end = position + count == sheet.Length();
    CopyAlignments(position, count == 0 || to_end ? position + count : position + count - 1);
  }
  void CaretMoved() override {
    caret = sheet.SelStart();
    selected = sheet.SelLength();
  }

  Place& At(int position) { return places[static_cast<std::size_t>(position)]; }
  // Of whole paragraphs, from that of `first` to that of `last`.
  void CopyAlignments(int first, int last) {
    while (first > 0 && At(first - 1).character != U'\n') --first;
    while (At(last).character != U'\n' && last + 1 < static_cast<int>(places.size())) ++last;
    for (int i = first; i <= last; ++i) At(i).alignment = sheet.AlignmentAt(i);
  }

  const RichText& sheet;
  std::vector<Place> places{Place{}};
  int caret = 0;
  int selected = 0;
};

std::vector<Place> PlacesOf(const RichText& sheet) {
  std::vector<Place> places;
  for (int i = 0; i < sheet.Length(); ++i) {
    places.push_back({sheet.CharacterAt(i), sheet.FormatAt(i), sheet.AlignmentAt(i)});
  }
  places.push_back({0, {}, sheet.AlignmentAt(sheet.Length())});
  return places;
}

// The same, put together from paragraphs and runs.
std::vector<Place> PlacesOfRuns(const RichText& sheet) {
  std::vector<Place> places;
  const auto paragraphs = sheet.Paragraphs();
  for (const auto& paragraph : paragraphs) {
    const CharFormat* before = nullptr;
    for (const auto& run : sheet.Runs(paragraph)) {
      EXPECT_EQ(run.start, static_cast<int>(places.size()));
      EXPECT_TRUE(before != run.format || run.format->picture) << "two runs of one format";
      before = run.format;
      for (int i = run.start; i < run.start + run.length; ++i) {
        places.push_back({sheet.CharacterAt(i), *run.format, paragraph.alignment});
      }
    }
    EXPECT_EQ(paragraph.start + paragraph.length, static_cast<int>(places.size()));
  }
  places.push_back({0, {}, paragraphs.back().alignment});
  return places;
}

std::u32string TextOf(const Model& model) {
  std::u32string text;
  for (int i = 0; i < model.Length(); ++i) {
    if (model.At(i).character == U'\n') text += U'\r';
    text += model.At(i).character;
  }
  return text;
}

class RandomSession {
 public:
  explicit RandomSession(unsigned seed) : random_(seed) {
    for (const bool bold : {false, true}) {
      CharFormat format = Design();
      format.bold = bold;
      formats_.push_back(format);
      format.font = "Times New Roman";
      format.size = 240;
      formats_.push_back(format);
      formats_.push_back(With(format, pictures_[bold ? 0 : 1]));
    }
    sheet_.Observe(&mirror_);
  }

  void Run(int steps) {
    for (int step = 0; step < steps; ++step) {
      const int operation = Draw(16);
      Act(operation);
      Compare();
      if (testing::Test::HasFailure()) {
        ADD_FAILURE() << "step " << step << ", operation " << operation;
        return;
      }
    }
  }

 private:
  int Draw(int n) { return static_cast<int>(random_() % static_cast<unsigned>(n)); }
  bool DrawBool() { return Draw(2) == 1; }
  Alignment DrawAlignment() { return static_cast<Alignment>(Draw(3)); }
  const CharFormat& DrawFormat() { return formats_[static_cast<std::size_t>(Draw(6))]; }
  std::u32string DrawText(bool pictures) {
    std::u32string text;
    for (int length = Draw(7); length > 0; --length) {
      const int kind = Draw(8);
      text += kind == 0 ? U'\n' : kind == 1 && pictures ? U'\uFFFC' : U"abcdef"[Draw(6)];
    }
    return text;
  }

  void Act(int operation) {
    const int position = Draw(model_.Length() + 1);
    const int count = Draw(model_.Length() - position + 1);
    switch (operation) {
      case 0:
      case 1:
      case 2: {
        const std::u32string text = DrawText(false);
        sheet_.SelText(std::string(text.begin(), text.end()));
        model_.Insert(text, model_.caret_format);
        break;
      }
      case 3:
      case 4: {
        const int target = position + Draw(3);
        sheet_.SelStart(target);
        model_.Select(target, 0);
        break;
      }
      case 5: {
        const int length = Draw(10);
        sheet_.SelLength(length);
        model_.Select(model_.caret, length);
        break;
      }
      case 6: {
        const bool bold = DrawBool();
        sheet_.SelBold(bold);
        model_.SetSelected([&](CharFormat& format) { format.bold = bold; });
        break;
      }
      case 7: {
        const int points = 8 + 2 * Draw(3);
        sheet_.SelFontSize(points);
        model_.SetSelected([&](CharFormat& format) { format.size = points * 20; });
        break;
      }
      case 8: {
        const char* const font = DrawBool() ? "Courrier New" : "Courier New";
        sheet_.SelFontName(font);
        model_.SetSelected([&](CharFormat& format) { format.font = font; });
        break;
      }
      case 9: {
        const std::uint32_t color = DrawBool() ? 0xFF0000 : 0;
        sheet_.SelColor(color);
        model_.SetSelected([&](CharFormat& format) { format.color = color; });
        break;
      }
      case 10: {
        const Alignment alignment = DrawAlignment();
        sheet_.SelAlignment(alignment);
        model_.Align(model_.caret, model_.selected, alignment);
        break;
      }
      case 11: {
        const auto& picture = pictures_[Draw(2)];
        sheet_.InsertPicture(picture);
        model_.Insert(U"\uFFFC", With(model_.caret_format, picture));
        break;
      }
      case 12: {
        const CharFormat& format = DrawFormat();
        const std::u32string text = DrawText(format.picture != nullptr);
        sheet_.Replace(position, count, text, format);
        model_.Replace(position, count, text, format);
        break;
      }
      case 13: {
        const CharFormat& format = DrawFormat();
        sheet_.Reformat(position, count, format);
        ReformatModel(position, count, format);
        break;
      }
      case 14: {
        const Alignment alignment = DrawAlignment();
        sheet_.Align(position, count, alignment);
        model_.Align(position, count, alignment);
        break;
      }
      case 15:
        if (Draw(4) == 0) {
          const std::u32string text = DrawText(false);
          sheet_.Text(std::string(text.begin(), text.end()));
          model_.Text(text);
        }
        break;
      default:
        break;
    }
  }

  void ReformatModel(int position, int count, const CharFormat& format) {
    bool changed = false;
    model_.Reformat(position, count, [&](CharFormat& old) {
      const CharFormat before = old;
      old = format;
      if (!before.picture || !format.picture) old.picture = before.picture;
      changed = changed || !(before == old);
    });
    if (changed && model_.selected > 0) model_.caret_format = model_.FormatAtCaret();
  }

  void Compare() {
    EXPECT_EQ(sheet_.Length(), model_.Length());
    EXPECT_EQ(sheet_.SelStart(), model_.caret);
    EXPECT_EQ(sheet_.SelLength(), model_.selected);
    EXPECT_TRUE(sheet_.CaretFormat() == model_.caret_format);
    EXPECT_TRUE(PlacesOf(sheet_) == model_.places);
    EXPECT_TRUE(PlacesOfRuns(sheet_) == model_.places);
    EXPECT_TRUE(mirror_.places == model_.places);
    EXPECT_EQ(mirror_.caret, model_.caret);
    EXPECT_EQ(mirror_.selected, model_.selected);
    EXPECT_TRUE(sheet_.Text() == TextOf(model_));
    EXPECT_EQ(sheet_.TextLength(), static_cast<int>(TextOf(model_).size()));
    EXPECT_EQ(sheet_.SelBold(), model_.Selected(&CharFormat::bold));
    EXPECT_EQ(sheet_.SelFontName(), model_.Selected(&CharFormat::font));
    EXPECT_EQ(sheet_.SelColor(), model_.Selected(&CharFormat::color));
    const auto size = model_.Selected(&CharFormat::size);
    EXPECT_EQ(sheet_.SelFontSize(), size ? std::optional(*size / 20.0) : std::nullopt);
    EXPECT_EQ(sheet_.SelAlignment(), model_.SelAlignment());
  }

  std::mt19937 random_;
  std::shared_ptr<const RichPicture> pictures_[2] = {Picture(), Picture()};
  std::vector<CharFormat> formats_;
  Sheet sheet_;
  Mirror mirror_{sheet_};
  Model model_;
};

TEST(RichText, RandomOperationsGiveWhatASlowAndObviousDocumentGives) {
  for (unsigned seed = 0; seed < 5000; ++seed) {
    RandomSession(seed).Run(40);
    ASSERT_FALSE(HasFailure()) << "seed " << seed;
  }
}

// --- Loading

TEST(RichText, LoadingReplacesTheDocumentInOneReport) {
  struct Reports : RichTextObserver {
    std::string told;
    void Replaced(int position, int removed, int inserted) override {
      told += "replaced " + std::to_string(position) + ' ' + std::to_string(removed) + ' ' +
              std::to_string(inserted) + ';';
    }
    void Reformatted(int, int) override { told += "reformatted;"; }
    void ParagraphsAligned(int, int) override { told += "aligned;"; }
    void CaretMoved() override { told += "moved;"; }
  };
  Sheet sheet;
  sheet.SelText("before\n");
  Reports reports;
  sheet.Observe(&reports);
  sheet.Load({.text = U"lava\nash",
              .formats = {Italic(), Bold()},
              .spans = {{2, 1}, {6, 0}},
              .alignments = {kRight, kCentre}});
  sheet.StopObserving(&reports);
  EXPECT_EQ(reports.told, "replaced 0 7 8;moved;");
  EXPECT_EQ(Plain(sheet), "lava\nash");
  EXPECT_EQ(Alignments(sheet), "rc");
  EXPECT_EQ(Bolds(sheet), "bb......");
  EXPECT_EQ(sheet.TextLength(), 9);
  EXPECT_EQ(sheet.SelStart(), 0);
  EXPECT_EQ(sheet.SelBold(), true);
}

TEST(RichText, LoadedTextIsCleanedAndMissingAlignmentsAreLeft) {
  Sheet sheet;
  sheet.SelAlignment(kRight);
  sheet.Load({.text = U"a\r\nb\uFFFC\uFFFC\n",
              .formats = {Design(), With(Design(), Picture())},
              .spans = {{5, 0}, {1, 1}, {1, 0}},
              .alignments = {kCentre}});
  EXPECT_EQ(sheet.PlainText(), U"a\nb\uFFFD\uFFFC\n");
  EXPECT_EQ(Alignments(sheet), "cll");
  EXPECT_TRUE(sheet.FormatAt(4).picture);
  EXPECT_FALSE(sheet.FormatAt(5).picture);
}

TEST(RichText, LoadingNothingLeavesAnEmptyDocument) {
  Sheet sheet;
  sheet.SelBold(true);
  sheet.SelText("before");
  sheet.Load({.text = U"", .formats = {}, .spans = {}, .alignments = {kCentre}});
  EXPECT_EQ(sheet.Length(), 0);
  EXPECT_EQ(sheet.SelAlignment(), kCentre);
  EXPECT_EQ(sheet.CaretFormat(), sheet.DesignFormat());
}

}  // namespace
}  // namespace brindlepage
