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
#include "lists/add_word.h"
#include "lists/change_list.h"
#include "lists/change_list_name.h"
#include "lists/create_list.h"
#include "lists/delete_list.h"
#include "lists/edit_choose_list.h"
#include "lists/edit_list.h"
#include "lists/edit_word.h"
#include "lists/fl_form.h"
#include "lists/make_new_list.h"
#include "lists/program_options.h"
#include "lists/quick_word_option.h"
#include "quiz/quiz_form.h"
#include "quiz/quiz_options.h"
#include "quiz/quiz_options3.h"
#include "quiz/quiz_options5.h"
#include "riddle/choose_riddle.h"
#include "riddle/riddle_form.h"
#include "riddle/riddle_option1.h"
#include "scramble_code/code_form.h"
#include "scramble_code/scramble.h"
#include "scramble_code/scramble_option1.h"
#include "wordsearch/puzzle_size.h"
#include "wordsearch/word_search_form.h"
#include "worksheet/add_pic.h"
#include "worksheet/open_worksheet.h"
#include "worksheet/study_guide_form.h"

namespace brindlepage {

namespace {

using Maker = std::unique_ptr<Form> (*)(Program&);

template <class FormType>
std::unique_ptr<Form> Make(Program& program) {
  return std::make_unique<FormType>(program);
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
    {Screen::PuzzleSize, "PuzzleSize", Make<PuzzleSize>},
    {Screen::QuizForm, "QuizForm", Make<QuizForm>},
    {Screen::Scramble, "Scramble", Make<Scramble>},
    {Screen::CodeForm, "CodeForm", Make<CodeForm>},
    {Screen::WordSearchForm, "WordSearchForm", Make<WordSearchForm>},
    {Screen::RiddleForm, "RiddleForm", Make<RiddleForm>},
    {Screen::CrosswordWorksheet, "CrosswordWorksheet", Make<CrosswordWorksheet>},
    {Screen::StudyGuideForm, "StudyGuideForm", Make<StudyGuideForm>},
    {Screen::ScrambleOption1, "ScrambleOption1", Make<ScrambleOption1>},
    {Screen::ChooseRiddle, "ChooseRiddle", Make<ChooseRiddle>},
    {Screen::RiddleOption1, "RiddleOption1", Make<RiddleOption1>},
    {Screen::CrossOption1, "CrossOption1", Make<CrossOption1>},
    {Screen::CrossOption2, "CrossOption2", Make<CrossOption2>},
    {Screen::PleaseWait, "PleaseWait", Make<PleaseWait>},
    {Screen::CrossPrint, "CrossPrint", Make<CrossPrint>},
    {Screen::CrossWord, "CrossWord", Make<CrossWord>},
    {Screen::NewCross1, "NewCross1", Make<NewCross1>},
    {Screen::CrossWordFill, "CrossWordFill", Make<CrossWordFill>},
    {Screen::OpenWorksheet, "OpenWorksheet", Make<OpenWorksheet>},
    {Screen::AddPic, "AddPic", Make<AddPic>},
    {Screen::CreateList, "CreateList", Make<CreateList>},
    {Screen::MakeNewList, "MakeNewList", Make<MakeNewList>},
    {Screen::EditChooseList, "EditChooseList", Make<EditChooseList>},
    {Screen::EditList, "EditList", Make<EditList>},
    {Screen::AddWord, "AddWord", Make<AddWord>},
    {Screen::EditWord, "EditWord", Make<EditWord>},
    {Screen::ChangeListName, "ChangeListName", Make<ChangeListName>},
    {Screen::DeleteList, "DeleteList", Make<DeleteList>},
    {Screen::FLForm, "FLForm", Make<FLForm>},
    {Screen::ProgramOptions, "ProgramOptions", Make<ProgramOptions>},
    {Screen::ChangeList, "ChangeList", Make<ChangeList>},
    {Screen::QuickWordOption, "QuickWordOption", Make<QuickWordOption>},
};

}  // namespace

std::unique_ptr<Form> MakeForm(Screen id, Program& program) {
  for (const ScreenEntry& screen : kScreens) {
    if (screen.id == id) return screen.make(program);
  }
  throw RunTimeError(Fault::ObjectRequired);
}

std::optional<Screen> ScreenNamed(std::string_view name) {
  for (const ScreenEntry& screen : kScreens) {
    if (screen.name == name) return screen.id;
  }
  return std::nullopt;
}

std::vector<std::string_view> ScreenNames() {
  std::vector<std::string_view> names;
  for (const ScreenEntry& screen : kScreens) names.push_back(screen.name);
  return names;
}

BrindlepageProgram::BrindlepageProgram(Platform& platform, RandomSource& random)
    : Program(platform, random, [this](Screen id) { return MakeForm(id, *this); }) {}

void BrindlepageProgram::Start() {
  Dispatch([this] { forms().Show(Screen::Title); });
}

}  // namespace brindlepage
