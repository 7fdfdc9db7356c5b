#include <gtest/gtest.h>

#include <string>

#include "tests/rich_text_sheet.h"

namespace brindlepage {
namespace {

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
