#pragma once

#include <memory>
#include <optional>
#include <string>

#include "core/program.h"
#include "toolkit/lists.h"
#include "toolkit/platform.h"
#include "worksheet/compose.h"
#include "worksheet/rich_text_box.h"

namespace brindlepage {

// Where the seven worksheet forms differ.
struct WorksheetDesign {
  Screen id{};
  const char* name = "";
  const char* caption = "";

  // The answer key.
  const char* key_font = compose::kTimes;
  double key_points = 14.25;
  bool has_key_button = true;
  // Worksheets whose key box is AnswerBox1 have a hidden AnswerBox besides.
  bool has_answer_box1 = false;
  const char* key_tool_tip = "Switch Views Beween Worksheet and Answer Key";

  // Output: the form's name for the screens that come back to it, the words around the file's name
  // in the message after a save. A worksheet without a key view has shorter ways to save and print.
  const char* tag = "";
  const char* saved_start = "";
  const char* saved_end = "";

  compose::NameLine name_line = compose::NameLine::Narrow;

  // Resizing: only above 2000 by 1000 twips, the key box along, what stays free of the height.
  bool resize_guarded = true;
  bool resize_key_box = true;
  int resize_margin = 650;

  // Menus.
  bool has_menus = true;
  bool has_back_to_options = false;
  const char* about_caption = "About";
  bool about_opens = true;
};

// A worksheet on screen: the document and its key, the font bar that works on the document, the
// toolbar that sends it out. Each activity adds its generator.
class WorksheetForm : public ProgramForm {
 public:
  WorksheetForm(Program& program, const WorksheetDesign& design);

  Toolbar Toolbar1{*this, "Toolbar1"};
  ComboBox cmbFontName{*this, "cmbFontName"};
  ComboBox cmbFontSize{*this, "cmbFontSize"};
  ComboBox cmbFontColor{*this, "cmbFontColor"};
  CommandButton BoldButton{*this, "BoldButton", "B"};
  CommandButton ItalicButton{*this, "ItalicButton", "I"};
  CommandButton UnderlineButton{*this, "UnderlineButton", "U"};
  RichTextBox QuizBox{*this, "QuizBox", "Courier New", 9.75};
  RichTextBox AnswerBox;
  std::unique_ptr<RichTextBox> AnswerBox1;  // null but for the crossword

  RichTextBox& KeyBox() { return AnswerBox1 ? *AnswerBox1 : AnswerBox; }

 protected:
  // The buttons' numbers on the toolbar.
  enum Button { kPrint = 1, kClipart, kSave, kQuickWord, kKey };

  // The load's steps that all share: centred, background, the key over the worksheet.
  void PrepareWorksheet();
  // Fills the font bar, puts the caret at 1 and maximises the form.
  void FinishWorksheetLoad();

  void ShowKeyView();
  void ShowWorksheetView();

  void Resize() override;

  // The way back to the menu. The riddle sheet has one of its own.
  virtual void BackToMenu() { StepTo(Screen::Title); }

  // Whether a save asks for the key's file. A saved worksheet that was opened has no key.
  virtual bool OffersKeyFile() const { return true; }

 private:
  void AddToolbarButtons();
  void AddMenus();
  void ConnectFontBar();
  Arrangement FontBar();

  void ToolbarClick(const std::string& caption);

  // Output, in worksheet_output.cpp.
  void SaveWorksheet();
  bool KeyFileIsWanted();
  void TellSaved();
  void PrintWorksheet();
  bool PrintKey(unsigned flags);
  void OpenInWordProcessor();
  void OpenClipart();
  std::string WorksheetPath() const;
  std::string KeyPath() const;

  void FillFontBar();
  void SyncFontBar();
  void SetFontName();
  void SetFontSize();
  void SetFontColor();

  const WorksheetDesign design_;
  std::unique_ptr<Menu> Go;
  std::unique_ptr<MenuItem> QZBack;
  std::unique_ptr<MenuItem> Back;
  std::unique_ptr<MenuItem> Quit;
  std::unique_ptr<Menu> Help;
  std::unique_ptr<MenuItem> About;
};

}  // namespace brindlepage
