#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include "program/screens.h"
#include "tests/temp_folder.h"
#include "toolkit/files.h"
#include "walk/form_sketch.h"
#include "walk/walk_pages.h"
#include "worksheet/worksheet_form.h"

namespace brindlepage {

// A window system that writes down what it is asked and answers as it was told.
class NotingPlatform : public Platform {
 public:
  std::vector<std::string> log;
  std::deque<BoxAnswer> answers;
  Size screen{1024 * 15, 768 * 15};
  Milliseconds clock = 0;
  std::function<void()> while_box_is_open;

  BoxAnswer MessageBox(std::string_view text, std::string_view title, BoxButtons buttons) override {
    log.push_back(std::string(title) + "|" + std::string(text));
    if (while_box_is_open) std::exchange(while_box_is_open, nullptr)();
    if (buttons == BoxButtons::Ok) return BoxAnswer::Ok;
    if (answers.empty()) return BoxAnswer::Yes;
    const BoxAnswer answer = answers.front();
    answers.pop_front();
    return answer;
  }
  std::optional<std::string> InputBox(std::string_view, std::string_view,
                                      std::string_view text) override {
    return std::string(text);
  }
  std::optional<PrintChoice> PrintDialog(unsigned) override { return std::nullopt; }
  void Print(Control&, int, int) override {}
  std::optional<std::string> OpenDialog(std::string_view, std::string_view,
                                        std::string_view) override {
    return std::nullopt;
  }
  void StartProgram(std::string_view) override {}
  void Beep() override { log.push_back("beep"); }
  Size ScreenSize() const override { return screen; }
  std::vector<std::string> ScreenFonts() const override {
    return {"Arial", "Courier New", "Times New Roman"};
  }
  Milliseconds Now() const override { return clock; }
  void Pause(Milliseconds time) override { log.push_back("pause " + std::to_string(time)); }
  FormPicture PictureOf(Form& form) override {
    events.push_back("photographed " + form.Name());
    return walk::SketchOf(form);
  }
  std::unique_ptr<PrinterPages> StartPages() override {
    return std::make_unique<walk::WalkPages>(printed);
  }
  void FatalError(int number, std::string_view text) override {
    log.push_back("error " + std::to_string(number) + " " + std::string(text));
  }
  void FormActivated(Form& form) override { events.push_back("activated " + form.Name()); }
  void FormHidden(Form& form) override { events.push_back("hidden " + form.Name()); }
  void FormUnloaded(Form& form) override { events.push_back("unloaded " + form.Name()); }
  void FormChanged(Form&) override {}
  void ControlChanged(Control&) override { ++changes; }

  std::vector<std::string> events;
  std::ostringstream printed;  // what was drawn on pages
  int changes = 0;
};

// The whole program in a folder of its own, and a teacher at its controls.
class Teacher : public ::testing::Test {
 protected:
  Teacher() {
    for (const char* name : {"titleback.jpg", "brindlepagebackground.jpg"}) {
      std::filesystem::copy_file(std::filesystem::path(PROGRAM_FOLDER) / name,
                                 std::filesystem::path(name));
    }
    folder.Write("brindlepage.dat", "a\r\nb\r\n*****\r\nlistpath\r\n");
    folder.Write("TheLists.dat", "Planets\r\nMars\r\nred\r\nVenus\r\nhot\r\nEarth\r\nhome\r\n");
  }

  void Start() { program.Start(); }

  template <class FormType>
  FormType& On(Screen id) {
    auto* form = program.forms().Find<FormType>(id);
    if (form == nullptr) throw std::logic_error("the form is not loaded");
    return *form;
  }
  // A deed on the active form, as the loop brings it.
  template <class Deed>
  void Do(Deed deed) {
    program.Dispatch([&] { deed(); });
  }
  void Click(Control& control) {
    Do([&] {
      program.forms().Activate(control.form());
      control.UserClick();
    });
  }
  void Click(Screen id, const char* name, int index = -1) {
    Form* form = program.forms().Find(id);
    ASSERT_NE(form, nullptr) << name;
    Control* control = form->FindControl(name, index);
    ASSERT_NE(control, nullptr) << name;
    Click(*control);
  }
  void ClickToolbar(Screen id, const char* caption) {
    auto* bar = dynamic_cast<Toolbar*>(program.forms().Find(id)->FindControl("Toolbar1"));
    ASSERT_NE(bar, nullptr);
    Do([&] { bar->ButtonClick(*bar->FindCaption(caption)); });
  }
  void Tick(int milliseconds = 1) {
    const Milliseconds end = platform.clock + milliseconds;
    for (auto due = program.timers().NextDue(); due && *due <= end && !program.Ended();
         due = program.timers().NextDue()) {
      platform.clock = *due;
      program.FireTimers();
    }
    platform.clock = end;
  }
  bool Active(Screen id) {
    return program.forms().Active() != nullptr && program.forms().Active()->id() == id;
  }
  bool Loaded(Screen id) { return program.forms().Find(id) != nullptr; }

  // From the menu to the choice of words.
  void WalkToPickWords(const char* list, int activity = kStudySheet) {
    Start();
    Click(Screen::Title, "Command1", activity);
    auto& lists =
        dynamic_cast<ListBox&>(*program.forms().Find(Screen::ChooseList)->FindControl("TheLists"));
    for (int row = 0; row < lists.ListCount(); ++row) {
      if (lists.List(row) == list) Do([&] { lists.ClickRow(row); });
    }
    Click(Screen::ChooseList, "Command1");
    if (activity == kQuiz) Click(Screen::QuizOptions3, "Command1");
    Click(Screen::QuizOptions5, "Command1");
  }

  TempFolder folder;
  NotingPlatform platform;
  SeededRandom random{1};
  BrindlepageProgram program{platform, random};
};

}  // namespace brindlepage
