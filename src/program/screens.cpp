#include "program/screens.h"

#include "core/about_form.h"
#include "core/choose_list.h"
#include "core/choose_reminder.h"
#include "core/just_for_fun.h"
#include "core/pick_words.h"
#include "core/title.h"
#include "crossword/cross_option1.h"
#include "crossword/cross_option2.h"
#include "crossword/cross_print.h"
#include "crossword/cross_word.h"
#include "crossword/cross_word_fill.h"
#include "crossword/crossword_worksheet.h"
#include "crossword/new_cross1.h"
#include "crossword/please_wait.h"
#include "program/unbuilt_form.h"
#include "quiz/quiz_form.h"
#include "quiz/quiz_options.h"
#include "quiz/quiz_options3.h"
#include "quiz/quiz_options5.h"
#include "worksheet/study_guide_form.h"

namespace brindlepage {

namespace {

using Maker = std::unique_ptr<Form> (*)(Screen, std::string_view, Program&);

template <class FormType>
std::unique_ptr<Form> Make(Screen, std::string_view, Program& program) {
  return std::make_unique<FormType>(program);
}

std::unique_ptr<Form> MakeUnbuilt(Screen id, std::string_view name, Program& program) {
  return std::make_unique<UnbuiltForm>(program, id, std::string(name));
}

struct ScreenEntry {
  Screen id;
  std::string_view name;
  Maker make;
};

// Every form of the program, by its id, its name and its class.
constexpr ScreenEntry kScreens[] = {
    {Screen::Title, "Title", Make<Title>},
    {Screen::AboutForm, "AboutForm", Make<AboutForm>},
    {Screen::JustForFun, "JustForFun", Make<JustForFun>},
    {Screen::ChooseList, "ChooseList", Make<ChooseList>},
    {Screen::ChooseReminder, "ChooseReminder", Make<ChooseReminder>},
    {Screen::PickWords, "PickWords", Make<PickWords>},
    {Screen::QuizOptions, "QuizOptions", Make<QuizOptions>},
    {Screen::QuizOptions3, "QuizOptions3", Make<QuizOptions3>},
    {Screen::QuizOptions5, "QuizOptions5", Make<QuizOptions5>},
    {Screen::PuzzleSize, "PuzzleSize", MakeUnbuilt},
    {Screen::QuizForm, "QuizForm", Make<QuizForm>},
    {Screen::Scramble, "Scramble", MakeUnbuilt},
    {Screen::CodeForm, "CodeForm", MakeUnbuilt},
    {Screen::WordSearchForm, "WordSearchForm", MakeUnbuilt},
    {Screen::RiddleForm, "RiddleForm", MakeUnbuilt},
    {Screen::CrosswordWorksheet, "CrosswordWorksheet", Make<CrosswordWorksheet>},
    {Screen::StudyGuideForm, "StudyGuideForm", Make<StudyGuideForm>},
    {Screen::ScrambleOption1, "ScrambleOption1", MakeUnbuilt},
    {Screen::ChooseRiddle, "ChooseRiddle", MakeUnbuilt},
    {Screen::RiddleOption1, "RiddleOption1", MakeUnbuilt},
    {Screen::CrossOption1, "CrossOption1", Make<CrossOption1>},
    {Screen::CrossOption2, "CrossOption2", Make<CrossOption2>},
    {Screen::PleaseWait, "PleaseWait", Make<PleaseWait>},
    {Screen::CrossPrint, "CrossPrint", Make<CrossPrint>},
    {Screen::CrossWord, "CrossWord", Make<CrossWord>},
    {Screen::NewCross1, "NewCross1", Make<NewCross1>},
    {Screen::CrossWordFill, "CrossWordFill", Make<CrossWordFill>},
    {Screen::OpenWorksheet, "OpenWorksheet", MakeUnbuilt},
    {Screen::AddPic, "AddPic", MakeUnbuilt},
    {Screen::CreateList, "CreateList", MakeUnbuilt},
    {Screen::MakeNewList, "MakeNewList", MakeUnbuilt},
    {Screen::EditChooseList, "EditChooseList", MakeUnbuilt},
    {Screen::EditList, "EditList", MakeUnbuilt},
    {Screen::AddWord, "AddWord", MakeUnbuilt},
    {Screen::EditWord, "EditWord", MakeUnbuilt},
    {Screen::ChangeListName, "ChangeListName", MakeUnbuilt},
    {Screen::DeleteList, "DeleteList", MakeUnbuilt},
    {Screen::FLForm, "FLForm", MakeUnbuilt},
    {Screen::ProgramOptions, "ProgramOptions", MakeUnbuilt},
    {Screen::ChangeList, "ChangeList", MakeUnbuilt},
    {Screen::QuickWordOption, "QuickWordOption", MakeUnbuilt},
};

}  // namespace

std::unique_ptr<Form> MakeForm(Screen id, Program& program) {
  for (const ScreenEntry& screen : kScreens) {
    if (screen.id == id) return screen.make(id, screen.name, program);
  }
  throw RunTimeError(Fault::ObjectRequired);
}

std::optional<Screen> ScreenNamed(std::string_view name) {
  for (const ScreenEntry& screen : kScreens) {
    if (screen.name == name) return screen.id;
  }
  return std::nullopt;
}

BrindlepageProgram::BrindlepageProgram(Platform& platform, RandomSource& random)
    : Program(platform, random, [this](Screen id) { return MakeForm(id, *this); }) {}

void BrindlepageProgram::Start() {
  Dispatch([this] { forms().Show(Screen::Title); });
}

}  // namespace brindlepage
