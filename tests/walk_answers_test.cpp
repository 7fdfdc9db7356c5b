#include <gtest/gtest.h>

#include "tests/temp_folder.h"
#include "tests/walked_desk.h"

namespace brindlepage::walk {
namespace {

// --- Boxes and their answers

constexpr char kNotice[] = R"(message "Title" "A \"note\"\n\tC:\\x é" ok -> ok)";

TEST(WalkAnswers, AMessageWithOkAloneTakesAnOkThatIsNextAndNothingElse) {
  EXPECT_EQ(Printed("click Desk.Ask(0)\n"), std::string(kNotice) + "\n");
  EXPECT_EQ(Printed("answer ok no\nclick Desk.Ask(0)\nclick Desk.Ask(1)\n"),
            std::string(kNotice) + "\nmessage \"Ask\" \"Sure?\" yes-no -> no\n");
  EXPECT_EQ(Printed("answer no ok\nclick Desk.Ask(0)\nclick Desk.Ask(1)\nclick Desk.Ask(0)\n"
                    "click Desk.Ask(1)\n"),
            std::string(kNotice) + "\nmessage \"Ask\" \"Sure?\" yes-no -> no\n" + kNotice +
                "\nmessage \"Ask\" \"Sure?\" yes-no -> yes\n");
  EXPECT_EQ(Printed("answer \"ok\"\nclick Desk.Ask(0)\nclick Desk.Ask(3)\n"),
            std::string(kNotice) + "\ninput \"Ask\" \"Name?\" \"old\" -> \"ok\"\n");
}

TEST(WalkAnswers, AQuestionTakesYesNoAndCancelAndIsYesWhenNobodyAnswers) {
  EXPECT_EQ(Noted("click Desk.Ask(1)"), "message \"Ask\" \"Sure?\" yes-no -> yes\n\"yes\"\n");
  EXPECT_EQ(Noted("answer no\nclick Desk.Ask(1)"),
            "message \"Ask\" \"Sure?\" yes-no -> no\n\"no\"\n");
  EXPECT_EQ(Noted("click Desk.Ask(2)"),
            "message \"Ask\" \"Sure?\" yes-no-cancel -> yes\n\"yes\"\n");
  EXPECT_EQ(Noted("answer cancel\nclick Desk.Ask(2)"),
            "message \"Ask\" \"Sure?\" yes-no-cancel -> cancel\n\"cancel\"\n");
}

TEST(WalkAnswers, AnInputBoxTakesATextOrCancelAndItsDefaultWhenNobodyAnswers) {
  EXPECT_EQ(Noted("click Desk.Ask(3)"), "input \"Ask\" \"Name?\" \"old\" -> \"old\"\n\"old\"\n");
  EXPECT_EQ(Noted("answer \"Maß \\\"1\\\"\"\nclick Desk.Ask(3)"),
            "input \"Ask\" \"Name?\" \"old\" -> \"Maß \\\"1\\\"\"\n\"Maß \\\"1\\\"\"\n");
  EXPECT_EQ(Noted("answer \"\"\nclick Desk.Ask(3)"),
            "input \"Ask\" \"Name?\" \"old\" -> \"\"\n\"\"\n");
  EXPECT_EQ(Noted("answer cancel\nclick Desk.Ask(3)"),
            "input \"Ask\" \"Name?\" \"old\" -> cancel\n\"nothing\"\n");
}

TEST(WalkAnswers, APrintDialogTakesAllSelectionAndCancelAndIsCancelledWhenNobodyAnswers) {
  EXPECT_EQ(Noted("click Desk.Ask(4)"), "print-dialog 0x100108 -> cancel\n\"not printed\"\n");
  EXPECT_EQ(Noted("insert Desk.Page abc\nanswer all\nclick Desk.Ask(4)"),
            "print-dialog 0x100108 -> all\nprinted Desk.Page 0 3\n\"all\"\n");
  EXPECT_EQ(Noted("answer selection\nclick Desk.Ask(4)"),
            "print-dialog 0x100108 -> selection\nprinted Desk.Page 0 0\n\"selection\"\n");
  EXPECT_EQ(Noted("answer cancel\nclick Desk.Ask(4)"),
            "print-dialog 0x100108 -> cancel\n\"not printed\"\n");
  EXPECT_EQ(Noted("answer all\nclick Desk.Ask(5)"),
            "print-dialog 0x10010c -> all\nprinted Desk.Page 0 0\n\"all\"\n");
}

TEST(WalkAnswers, AFileDialogTakesAPathAndIsCancelledWhenNobodyAnswers) {
  const std::string dialog = R"(open-dialog "Open" "Programs (*.exe)|*.exe" "C:\\" -> )";
  EXPECT_EQ(Noted("click Desk.Ask(6)"), dialog + "cancel\n\"none\"\n");
  EXPECT_EQ(Noted("answer cancel\nclick Desk.Ask(6)"), dialog + "cancel\n\"none\"\n");
  EXPECT_EQ(Noted("answer \"C:\\\\w p.exe\"\nclick Desk.Ask(6)"),
            dialog + R"("C:\\w p.exe")" + "\n" + R"("C:\\w p.exe")" + "\n");
}

TEST(WalkAnswers, AnAnswerThatDoesNotFitFailsTheScript) {
  const auto refused = [](const std::string& answer, int box) {
    return Refused("start\nanswer " + answer + "\nclick Desk.Ask(" + std::to_string(box) + ")\n");
  };
  EXPECT_EQ(refused("ok", 1),
            "line 3: click Desk.Ask(1)\n"
            "the answer ok does not fit: message \"Ask\" \"Sure?\" yes-no\n");
  for (const char* answer : {"cancel", "all", "\"yes\""}) refused(answer, 1);
  for (const char* answer : {"ok", "selection", "\"cancel\""}) refused(answer, 2);
  for (const char* answer : {"yes", "no", "ok", "all"}) refused(answer, 3);
  for (const char* answer : {"yes", "ok", "\"all\""}) refused(answer, 4);
  refused("selection", 5);
  for (const char* answer : {"yes", "ok", "all"}) refused(answer, 6);
  EXPECT_EQ(RefusedLine("answer maybe"), "no such answer: maybe\n");
}

TEST(Walk, ProgramsThatAreStartedAndBeepsArePrinted) {
  EXPECT_EQ(Printed("click Desk.Ask(7)\nclick Desk.Ask(8)\n"),
            "run \"word\\\"a b.rtf\\\"\"\nbeep\n");
}

// --- Random numbers

TEST(WalkDraws, GivenDrawsComeInOrderAndReseedingIsCountedAlone) {
  EXPECT_EQ(Printed("draws 0.25 0.5\nclick Desk.Ask(10)\nget Desk.Log.Caption\nclick Desk.Ask(11)\n"
                    "get Desk.Log.Caption\nget Draws\nget Reseeds\n"),
            "\"0.250000\"\n\"501\"\n2\n1\n");
}

TEST(WalkDraws, NewDrawsStandInPlaceOfThoseLeft) {
  EXPECT_EQ(Printed("draws 0.25 0.5\nclick Desk.Ask(10)\ndraws 0.75\nclick Desk.Ask(10)\n"
                    "get Desk.Log.Caption\n"),
            "\"0.750000\"\n");
}

TEST(WalkDraws, DrawsThatAreUsedUpFailTheScript) {
  const Walked walked = Play("start\ndraws 0.25\nclick Desk.Ask(10)\nclick Desk.Ask(10)\n");
  EXPECT_EQ(walked.status, 2);
  EXPECT_EQ(walked.errors, "line 4: click Desk.Ask(10)\nthe draws are used up\n");
  EXPECT_EQ(walked.out, "");
}

TEST(WalkDraws, AFileHoldsOneNumberALine) {
  TempFolder folder;
  std::filesystem::create_directory(folder.Path() / "scripts");
  folder.Write("here.txt", "0.125\r\n0.5\n\n");
  folder.Write("scripts/my draws.txt", "0.75\n");
  EXPECT_EQ(Printed("draws @here.txt\nclick Desk.Ask(10)\nclick Desk.Ask(10)\n"
                    "get Desk.Log.Caption\n"),
            "\"0.500000\"\n");
  WalkSettings settings;
  settings.script_folder = folder.Path() / "scripts";
  EXPECT_EQ(Play("start\ndraws \"@my draws.txt\"\nclick Desk.Ask(10)\nget Desk.Log.Caption\n"
                 "draws @here.txt\n",
                 settings)
                .out,
            "\"0.750000\"\n");
  RefusedLine("draws @none.txt");
  RefusedLine("draws @here.txt 0.5");
  RefusedLine("draws half");
  RefusedLine("draws 1");
}

TEST(WalkDraws, ASeedGivesTheSameNumbersWhateverIsReseeded) {
  const std::string script =
      "seed 7\nclick Desk.Ask(11)\nget Desk.Log.Caption\nclick Desk.Ask(11)\n"
      "get Desk.Log.Caption\nget Reseeds\n";
  const std::string first = Printed(script);
  EXPECT_EQ(first, Printed(script));
  SeededRandom expected(7);
  const int one = expected.DrawIndex(1000);
  const int two = expected.DrawIndex(1000);
  EXPECT_EQ(first, '"' + std::to_string(one) + "\"\n\"" + std::to_string(two) + "\"\n2\n");
  RefusedLine("seed -1");
  RefusedLine("seed x");
}

TEST(WalkDraws, ACommandThatDrawsWithoutEndIsNotResponding) {
  WalkSettings settings;
  settings.draw_limit = 1000;
  const Walked walked = Play("start\nget Draws\nclick Desk.Ask(12)\nget Draws\n", settings);
  EXPECT_EQ(walked.status, 3);
  EXPECT_EQ(walked.out, "0\nnot responding\n");
  EXPECT_EQ(walked.errors, "");
}

TEST(WalkDraws, TheLimitHoldsForEachCommandAndNotForTheWalk) {
  WalkSettings settings;
  settings.draw_limit = 1;
  EXPECT_EQ(Play("start\nclick Desk.Ask(10)\nclick Desk.Ask(10)\nget Draws\n", settings).out,
            "2\n");
}

}  // namespace
}  // namespace brindlepage::walk
