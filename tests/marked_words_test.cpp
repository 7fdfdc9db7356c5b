#include "core/marked_words.h"

#include <memory>

#include "tests/told_draws.h"

namespace brindlepage {
namespace {

TEST(MarkedWords, TheWholeListIsDrawnFromUntilAMarkedWordComes) {
  auto shared = std::make_unique<SharedState>();
  shared->ListWordCount = 4;
  shared->WordMarks(3) = 1;
  ToldDraws random({kReseed, {1, 4}, {4, 4}, {4, 4}, {3, 4}});
  EXPECT_EQ(PickMarkedWord(*shared, random), 3);
  EXPECT_EQ(shared->WordMarks(3), 1);
}

TEST(MarkedWords, OneMarkedWordOfThreeHundredIsFound) {
  auto shared = std::make_unique<SharedState>();
  shared->ListWordCount = 300;
  shared->WordMarks(300) = 1;
  SeededRandom random(1);
  EXPECT_EQ(PickMarkedWord(*shared, random), 300);
}

TEST(MarkedWords, WithNoneMarkedTheDrawNeverEnds) {
  auto shared = std::make_unique<SharedState>();
  shared->ListWordCount = 4;
  EndlessDraws random;
  EXPECT_THROW(PickMarkedWord(*shared, random), EndlessDraws::NeverEnds);
}

}  // namespace
}  // namespace brindlepage
