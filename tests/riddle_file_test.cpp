#include "riddle/riddle_file.h"

#include <gtest/gtest.h>

#include "tests/expect_fault.h"
#include "tests/temp_folder.h"

namespace brindlepage {
namespace {

using riddle_file::ReadRiddles;

class RiddleFile : public testing::Test {
 protected:
  TempFolder folder;
};

TEST_F(RiddleFile, ARiddleIsALineAndItsAnswerTheNext) {
  folder.Write("Riddles.dat", "Who?\r\nMe\r\n\xC9t\xE9?\r\nnon\r\n");
  const auto riddles = ReadRiddles();
  ASSERT_EQ(riddles.size(), 2u);
  EXPECT_EQ(riddles[0].riddle, "Who?");
  EXPECT_EQ(riddles[0].answer, "Me");
  EXPECT_EQ(riddles[1].riddle, "\xC9t\xE9?");
  EXPECT_EQ(riddles[1].answer, "non");
}

TEST_F(RiddleFile, TheLastLineNeedsNoEnd) {
  folder.Write("Riddles.dat", "Who?\r\nMe");
  ASSERT_EQ(ReadRiddles().size(), 1u);
}

TEST_F(RiddleFile, AnEmptyLineIsAnEmptyRiddleOrAnswer) {
  folder.Write("Riddles.dat", "Who?\r\n\r\n\r\nMe\r\n");
  const auto riddles = ReadRiddles();
  ASSERT_EQ(riddles.size(), 2u);
  EXPECT_EQ(riddles[0].answer, "");
  EXPECT_EQ(riddles[1].riddle, "");
}

TEST_F(RiddleFile, AnEmptyFileHoldsNoRiddles) {
  folder.Write("Riddles.dat", "");
  EXPECT_TRUE(ReadRiddles().empty());
}

TEST_F(RiddleFile, ARiddleWithoutAnAnswerIsReadPastTheEnd) {
  folder.Write("Riddles.dat", "Who?\r\nMe\r\nWhat?\r\n");
  EXPECT_FAULT(62, ReadRiddles());
}

TEST_F(RiddleFile, AMissingFileIsNotFound) { EXPECT_FAULT(53, ReadRiddles()); }

TEST_F(RiddleFile, TheDeliveredRiddlesMakeEverySheet) {
  const auto riddles = ReadRiddles(PROGRAM_FOLDER "/Riddles.dat");
  EXPECT_EQ(riddles.size(), 60u);
  for (const auto& [riddle, answer] : riddles) {
    EXPECT_FALSE(riddle.empty());
    EXPECT_LE(answer.size(), 300u) << answer;
    // A cryptoquip needs two letters that differ, and no opening bracket.
    std::string letters;
    for (const char c : answer) {
      const char small = static_cast<char>(c | 0x20);
      if (small >= 'a' && small <= 'z' && letters.find(small) == std::string::npos) {
        letters += small;
      }
    }
    EXPECT_GE(letters.size(), 2u) << answer;
    EXPECT_EQ(answer.find('['), std::string::npos) << answer;
  }
}

}  // namespace
}  // namespace brindlepage
