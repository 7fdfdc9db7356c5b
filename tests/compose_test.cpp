#include "worksheet/compose.h"

#include <gtest/gtest.h>

namespace brindlepage {
namespace {

TEST(Compose, TheThreeNameAndDateLinesAreExact) {
  const std::string narrow = "Name_____________________________     Date_______________";
  const std::string wide =
      "Name_____________________________                            Date_______________";
  const std::string widest =
      "Name_____________________________                                    Date_______________";
  EXPECT_EQ(compose::NameAndDate(compose::NameLine::Narrow), narrow);
  EXPECT_EQ(compose::NameAndDate(compose::NameLine::Wide), wide);
  EXPECT_EQ(compose::NameAndDate(compose::NameLine::Widest), widest);
  EXPECT_EQ(narrow.size(), 57u);
  EXPECT_EQ(wide.size(), 80u);
  EXPECT_EQ(widest.size(), 88u);
}

TEST(Compose, CaretToEndKeepsAFormatThatWasSetThere) {
  RichText box("Courier New", 9.75);
  compose::AppendRun(box, "Name\n");
  box.SelBold(true);
  compose::CaretToEnd(box);
  EXPECT_EQ(box.SelBold(), true);
  EXPECT_EQ(box.SelStart(), 5);
}

TEST(Compose, TheTitleStandsOnALineOfItsOwnInBold18) {
  RichText box("Courier New", 9.75);
  compose::WriteTitleBlock(box, "Planets");
  EXPECT_EQ(box.PlainText(), U"\nPlanets\n");
  EXPECT_EQ(box.FormatAt(0).size, 360);
  EXPECT_TRUE(box.FormatAt(8).bold);
}

TEST(Compose, BehindACentredLineTheAlignmentIsRight) {
  RichText box("Courier New", 9.75);
  compose::WriteCentredLine(box, "Planets");
  EXPECT_EQ(box.PlainText(), U"Planets\n");
  EXPECT_EQ(box.AlignmentAt(0), Alignment::Centre);
  EXPECT_EQ(box.AlignmentAt(8), Alignment::Right);
}

}  // namespace
}  // namespace brindlepage
