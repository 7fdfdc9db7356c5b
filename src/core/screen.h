#pragma once

namespace brindlepage {

// Every form of the program. A handler names its successor by these; only program/ knows the
// classes behind them.
enum class Screen : int {
  Title,
  AboutForm,
  JustForFun,
  ChooseList,
  ChooseReminder,
  PickWords,
  QuizOptions,
  QuizOptions3,
  QuizOptions5,
  PuzzleSize,
  QuizForm,
  Scramble,
  CodeForm,
  WordSearchForm,
  RiddleForm,
  CrosswordWorksheet,
  StudyGuideForm,
  ScrambleOption1,
  ChooseRiddle,
  RiddleOption1,
  CrossOption1,
  CrossOption2,
  PleaseWait,
  CrossPrint,
  CrossWord,
  NewCross1,
  CrossWordFill,
  OpenWorksheet,
  AddPic,
  CreateList,
  MakeNewList,
  EditChooseList,
  EditList,
  AddWord,
  EditWord,
  ChangeListName,
  DeleteList,
  FLForm,
  ProgramOptions,
  ChangeList,
  QuickWordOption,
};

}  // namespace brindlepage
