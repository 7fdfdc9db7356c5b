#include "quiz/quiz_draws.h"

#include "tests/quiz_fixture.h"

namespace brindlepage {
namespace {

using QuizDraws = QuizTest;

TEST_F(QuizDraws, AQuestionReseedsOnceAndDrawsUntilAWordIsMarked) {
  UseVolcanoes();
  Mark({4});
  GivenDraws draws;
  draws.Of(6, {1, 6, 3, 4, 4});
  EXPECT_EQ(PickQuestionWord(shared, draws), 4);
  EXPECT_EQ(draws.Left(), 1u);
  EXPECT_EQ(draws.Reseeds().size(), 1u);
}

TEST_F(QuizDraws, AWordThatIsNotMarkedIsNeverPicked) {
  UseVolcanoes();
  GivenDraws draws;
  draws.AllOf(6, 100);
  EXPECT_THROW(PickQuestionWord(shared, draws), DrawsUsedUp);
}

TEST_F(QuizDraws, TheWordAndTheFourChoicesAreRefused) {
  Choices choices;
  choices(1) = "lava";
  choices(4) = "ash";
  EXPECT_TRUE(IsRefused("lava", choices, "vent"));
  EXPECT_TRUE(IsRefused("ash", choices, "vent"));
  EXPECT_TRUE(IsRefused("vent", choices, "vent"));
  EXPECT_FALSE(IsRefused("magma", choices, "vent"));
  EXPECT_FALSE(IsRefused("Lava", choices, "vent"));
}

TEST_F(QuizDraws, AnEmptyTextIsRefusedWhileASlotIsNotFilled) {
  Choices choices;
  for (int slot = 1; slot <= 3; ++slot) choices(slot) = "word";
  EXPECT_TRUE(IsRefused("", choices, "vent"));
  choices(4) = "word";
  EXPECT_FALSE(IsRefused("", choices, "vent"));
}

// Element 0 of the choices is no slot.
TEST_F(QuizDraws, WhatStandsBeforeTheFirstSlotIsNotRefused) {
  Choices choices;
  choices(0) = "lava";
  EXPECT_FALSE(IsRefused("lava", choices, "vent"));
}

}  // namespace
}  // namespace brindlepage
