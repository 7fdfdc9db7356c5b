#include <gtest/gtest.h>

#include "tests/walked_desk.h"
#include "walk/script.h"

namespace brindlepage::walk {
namespace {

// --- The lines of a script

TEST(WalkScript, WordsAreSeparatedByBlanksAndTextsStandInQuotes) {
  const Tokens tokens = ReadTokens("  type\tDesk.Title  \"a b\" \"\"  ");
  ASSERT_EQ(tokens.size(), 4u);
  EXPECT_EQ(tokens[0].text, "type");
  EXPECT_FALSE(tokens[0].quoted);
  EXPECT_EQ(tokens[1].text, "Desk.Title");
  EXPECT_EQ(tokens[2].text, "a b");
  EXPECT_TRUE(tokens[2].quoted);
  EXPECT_EQ(tokens[3].text, "");
  EXPECT_TRUE(tokens[3].quoted);
}

TEST(WalkScript, EscapesStandForWhatTheyLookLikeAndForBytesOfTheCodePage) {
  const Tokens tokens = ReadTokens(R"(x "\"q\" \\ \n \t \x80 \xe9 é")");
  ASSERT_EQ(tokens.size(), 2u);
  EXPECT_EQ(tokens[1].text, "\"q\" \\ \n \t \xE2\x82\xAC \xC3\xA9 \xC3\xA9");
}

TEST(WalkScript, WhatIsNoTextIsRefused) {
  for (const char* line : {R"(x "open)", R"(x "a\)", R"(x "\q")", R"(x "\xZ1")", R"(x "\x4")",
                           R"(x "a"b)", R"(x a"b")"}) {
    EXPECT_THROW(ReadTokens(line), ScriptError) << line;
  }
}

TEST(WalkScript, BlankLinesAndCommentsAreSkippedEvenBeforeTheStartAndAfterTheEnd) {
  const Walked walked =
      Play("\xEF\xBB\xBF# a story\n\n   \nstart\r\nclick Desk.Quit\r\n# the end\n\n");
  EXPECT_EQ(walked.status, 0) << walked.errors;
  EXPECT_EQ(walked.out, "end\n");
}

TEST(WalkScript, ANameMayHaveAnIndex) {
  const Target target = ReadTarget({"Desk.Keys(3)", false});
  EXPECT_EQ(target.form, "Desk");
  EXPECT_EQ(target.control, "Keys");
  EXPECT_EQ(target.index, 3);
  for (const char* name : {"Desk.", ".Keys", "Desk.Keys(", "Desk.Keys()", "Desk.Keys(x)", "A.B.C",
                           "Desk(1).Keys", "", "Desk.Keys(1)x"}) {
    EXPECT_THROW(ReadTarget({name, false}), ScriptError) << name;
  }
}

TEST(WalkScript, DrawsAreSinglePrecisionFromZeroToBelowOne) {
  EXPECT_EQ(ReadDraw("0"), 0.0F);
  EXPECT_EQ(ReadDraw("0.1"), 0.1F);
  EXPECT_EQ(ReadDraw("0.99999999999"), 0x0.FFFFFFp0F);
  for (const char* text : {"1", "-0.1", "x", "", "0.5x", "nan", "inf"}) {
    EXPECT_THROW(ReadDraw(text), ScriptError) << text;
  }
}

// --- When a line may stand

TEST(Walk, ALineThatIsWrongIsToldWithItsNumberAndEndsTheWalkWithStatusTwo) {
  const Walked walked = Play("# one\nstart\n\njump Desk\nget Draws\n");
  EXPECT_EQ(walked.status, 2);
  EXPECT_EQ(walked.out, "");
  EXPECT_EQ(walked.errors, "line 4: jump Desk\nno such command: jump\n");
}

TEST(Walk, ActionsBeforeTheStartAreRefused) {
  EXPECT_EQ(Refused("click Desk.Hello\n"),
            "line 1: click Desk.Hello\nthe program has not been started\n");
  Refused("tick\n");
  Refused("forms\n");
  Refused("get Desk.Caption\n");
}

TEST(Walk, AnswersAndRandomNumbersMayBePreparedBeforeTheStart) {
  const Walked walked = Play(
      "seed 1\ndraws 0.5\nanswer no\nget Draws\nexpect Reseeds 0\nstart\n"
      "click Desk.Ask(1)\nclick Desk.Ask(10)\nget Desk.Log.Caption\n");
  EXPECT_EQ(walked.status, 0) << walked.errors;
  EXPECT_EQ(walked.out, "0\nmessage \"Ask\" \"Sure?\" yes-no -> no\n\"0.500000\"\n");
}

TEST(Walk, ARunningProgramIsNotStartedAgain) {
  EXPECT_EQ(RefusedLine("start"), "the program is running already\n");
}

TEST(Walk, LinesAfterTheEndAreRefusedButForAStart) {
  const std::string ended = "start\nclick Desk.Quit\n";
  for (const char* line : {"get Draws", "tick", "seed 1", "answer yes", "forms", "click Desk.Hello",
                           "expect Draws 0"}) {
    const Walked walked = Play(ended + line + "\n");
    EXPECT_EQ(walked.status, 2) << line;
    EXPECT_EQ(walked.out, "end\n");
    EXPECT_EQ(walked.errors, "line 3: " + std::string(line) + "\nthe program has ended\n");
  }
  const Walked again = Play(ended + "start\nforms\n");
  EXPECT_EQ(again.status, 0) << again.errors;
  EXPECT_EQ(again.out, "end\nDesk shown active\n");
}

TEST(Walk, ANewProcessHasFreshVariablesAndTheCountsGoOn) {
  EXPECT_EQ(Printed("draws 0.5 0.25\nclick Desk.Ask(16)\nclick Desk.Ask(11)\nget ActivityKind\n"
                    "click Desk.Quit\nstart\nget ActivityKind\nget ListWords(2)\nget Draws\n"
                    "get Reseeds\nclick Desk.Ask(10)\nget Desk.Log.Caption\n"),
            "4\nend\n0\n\"\"\n1\n1\n\"0.250000\"\n");
}

TEST(Walk, EachCommandHasItsNumberOfWords) {
  EXPECT_EQ(RefusedLine("click"), "something is missing\n");
  EXPECT_EQ(RefusedLine("forms Desk"), "too many words\n");
  for (const char* line : {"double",
                           "select Desk.Names",
                           "mark Desk.Words",
                           "type Desk.Title",
                           "press Desk",
                           "set Desk.Bar",
                           "caret Desk.Page",
                           "insert Desk.Page",
                           "folder Desk.Folders",
                           "activate",
                           "deactivate",
                           "close",
                           "resize Desk 100",
                           "answer",
                           "seed",
                           "draws",
                           "get",
                           "rows",
                           "text",
                           "runs",
                           "expect Draws",
                           "click Desk.Tools a b",
                           "double Desk.Names 1 2",
                           "select Desk.Names 1 2",
                           "type Desk.Title a b",
                           "press Desk Enter Up",
                           "set Desk.Bar 1 2",
                           "caret Desk.Page 1 2 3",
                           "insert Desk.Page a b",
                           "folder Desk.Folders a b",
                           "tick 1 2",
                           "activate Desk Desk",
                           "deactivate Desk Desk",
                           "close Desk Desk",
                           "resize Desk 1 2 3",
                           "seed 1 2",
                           "get Draws Draws",
                           "rows Desk.Names 1",
                           "text Desk.Page 1",
                           "runs Desk.Page 1",
                           "expect Draws 0 0"}) {
    RefusedLine(line);
  }
}

}  // namespace
}  // namespace brindlepage::walk
