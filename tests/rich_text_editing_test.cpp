#include <gtest/gtest.h>

#include <limits>
#include <optional>
#include <string>

#include "tests/rich_text_sheet.h"

namespace brindlepage {
namespace {

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

}  // namespace
}  // namespace brindlepage
