// Stretches of a document, taken out and put in elsewhere.

#include <gtest/gtest.h>

#include "tests/rich_text_sheet.h"

namespace brindlepage {
namespace {

// "plain BOLD plain" centred between two lines on the left.
struct ThreeLines : Sheet {
  ThreeLines() {
    SelText("first\n");
    SelAlignment(kCentre);
    WriteWithBoldMiddle(*this);
    SelText("\n");
    SelAlignment(kLeft);
    SelText("last");
  }
};

RichContent Lines(const char32_t* text, std::vector<Alignment> alignments) {
  const std::u32string_view all = text;
  return {.text = text,
          .formats = {Bold()},
          .spans = {{all.size(), 0}},
          .alignments = std::move(alignments)};
}

TEST(RichText, AStretchHoldsItsTextItsFormatsAndTheAlignmentOfEveryParagraphItTouches) {
  const ThreeLines sheet;
  const RichContent stretch = sheet.Content(12, 14);  // from "BOLD" to "la"
  EXPECT_EQ(stretch.text, U"BOLD plain\nlas");
  EXPECT_EQ(stretch.formats, (std::vector{Bold(), Design()}));
  ASSERT_EQ(stretch.spans.size(), 2u);
  EXPECT_EQ(stretch.spans[0].length, 4u);
  EXPECT_EQ(stretch.spans[0].format, 0u);
  EXPECT_EQ(stretch.spans[1].length, 10u);
  EXPECT_EQ(stretch.spans[1].format, 1u);
  EXPECT_EQ(stretch.alignments, (std::vector{kCentre, kLeft}));
}

TEST(RichText, AStretchIsCutToTheDocument) {
  const ThreeLines sheet;
  EXPECT_EQ(sheet.Content(25, 100).text, U"st");
  EXPECT_EQ(sheet.Content(100, 5).text, U"");
  EXPECT_EQ(sheet.Content(-3, 5).text, U"fi");
  EXPECT_EQ(sheet.Content(0, 1000).text, sheet.PlainText());
}

TEST(RichText, AStretchReplacesTheSelectionInOneReport) {
  const ThreeLines from;
  Sheet sheet;
  sheet.SelText("one two three");
  sheet.SelStart(4);
  sheet.SelLength(3);
  Diary diary;
  sheet.Observe(&diary);
  sheet.SelContent(from.Content(6, 10));
  sheet.StopObserving(&diary);
  EXPECT_EQ(diary.lines, (Strings{"replaced 4 3 10", "caret"}));
  EXPECT_EQ(Plain(sheet), "one plain BOLD three");
  EXPECT_EQ(Bolds(sheet), "..........bbbb......");
  EXPECT_EQ(sheet.SelStart(), 14);
  EXPECT_EQ(sheet.SelLength(), 0);
  EXPECT_EQ(sheet.CaretFormat(), Bold());
}

TEST(RichText, AnEmptyStretchTakesTheSelectionAwayAndElseDoesNothing) {
  Sheet sheet;
  sheet.SelText("one two");
  sheet.SelStart(3);
  Diary diary;
  sheet.Observe(&diary);
  sheet.SelContent({});
  EXPECT_EQ(diary.lines, Strings{});
  sheet.SelLength(4);
  sheet.SelContent({});
  sheet.StopObserving(&diary);
  EXPECT_EQ(Plain(sheet), "one");
}

TEST(RichText, AStretchWithinAParagraphTakesTheAlignmentThere) {
  Sheet sheet;
  sheet.SelAlignment(kRight);
  sheet.SelContent(Lines(U"title", {kCentre}));
  EXPECT_EQ(Alignments(sheet), "r");
}

TEST(RichText, JoinedParagraphsTakeTheAlignmentThereAndTheOthersKeepTheirs) {
  Sheet sheet;
  sheet.SelAlignment(kRight);
  sheet.SelText("onetwo");
  sheet.SelStart(3);
  sheet.SelContent(Lines(U"A\nB\nC", {kCentre, kCentre, kLeft}));
  EXPECT_EQ(Plain(sheet), "oneA\nB\nCtwo");
  EXPECT_EQ(Alignments(sheet), "rcr");
  EXPECT_EQ(sheet.SelAlignment(), kRight);
}

TEST(RichText, AStretchOfParagraphsKeepsAllItsAlignmentsOnAnEmptyLine) {
  Sheet sheet;
  sheet.SelText("one\n\ntwo");
  sheet.SelStart(4);
  sheet.SelContent(Lines(U"A\nB\nC", {kCentre, kLeft, kRight}));
  EXPECT_EQ(Plain(sheet), "one\nA\nB\nC\ntwo");
  EXPECT_EQ(Alignments(sheet), "lclrl");
}

TEST(RichText, AParagraphPutInWithItsEndLeavesTheOneBehindAsItIs) {
  Sheet sheet;
  sheet.SelAlignment(kRight);
  sheet.SelText("one\ntwo");
  sheet.SelStart(4);
  sheet.SelContent(Lines(U"A\n", {kCentre, kLeft}));
  EXPECT_EQ(Plain(sheet), "one\nA\ntwo");
  EXPECT_EQ(Alignments(sheet), "rcr");
  EXPECT_EQ(sheet.SelStart(), 6);
}

TEST(RichText, AParagraphPutInAtTheEndWithItsEndOpensALineAlignedAsItWas) {
  Sheet sheet;
  sheet.SelAlignment(kRight);
  sheet.SelContent(Lines(U"A\n", {kCentre, kLeft}));
  EXPECT_EQ(Alignments(sheet), "cr");
}

TEST(RichText, AStretchOverSelectedParagraphsJoinsTheFirstOfThem) {
  Sheet sheet;
  sheet.SelText("one\n");
  sheet.SelAlignment(kRight);
  sheet.SelText("two\nthree");
  sheet.SelStart(1);
  sheet.SelLength(8);
  sheet.SelContent(Lines(U"A\nB", {kCentre, kCentre}));
  EXPECT_EQ(Plain(sheet), "oA\nBhree");
  EXPECT_EQ(Alignments(sheet), "ll");
  EXPECT_EQ(sheet.TextLength(), 9);
}

TEST(RichText, AStretchIsCleanedAndMissingAlignmentsAreLeft) {
  Sheet sheet;
  sheet.SelText("ab");
  sheet.SelStart(1);
  sheet.SelContent({.text = U"1\r\n2\r\n\uFFFC\uFFFC",
                    .formats = {Design(), With(Design(), Picture())},
                    .spans = {{7, 0}, {1, 1}},
                    .alignments = {}});
  EXPECT_EQ(sheet.PlainText(), U"a1\n2\n\uFFFD\uFFFCb");
  EXPECT_EQ(Alignments(sheet), "lll");
  EXPECT_TRUE(sheet.FormatAt(6).picture);
  EXPECT_EQ(sheet.TextLength(), 10);
  EXPECT_FALSE(sheet.CaretFormat().picture);
}

TEST(RichText, AStretchPutBackWhereItWasGivesTheSameDocument) {
  const ThreeLines before;
  for (int start = 0; start <= before.Length(); ++start) {
    for (int count = 0; start + count <= before.Length(); ++count) {
      ThreeLines sheet;
      const RichContent stretch = sheet.Content(start, count);
      sheet.SelStart(start);
      sheet.SelLength(count);
      sheet.SelContent(stretch);
      ASSERT_EQ(Plain(sheet), Plain(before)) << start << ' ' << count;
      ASSERT_EQ(Bolds(sheet), Bolds(before)) << start << ' ' << count;
      ASSERT_EQ(sheet.TextLength(), before.TextLength());
    }
  }
}

}  // namespace
}  // namespace brindlepage
