#include "crossword/crossword_worksheet.h"

#include "crossword/cross_word.h"
#include "crossword/cross_word_fill.h"
#include "toolkit/keyboard.h"

namespace brindlepage {

namespace {

constexpr WorksheetDesign kDesign = {
    .id = Screen::CrosswordWorksheet,
    .name = "CrosswordWorksheet",
    .caption = "Crossword Puzzle Worksheet",
    .key_font = "Courier New",
    .key_points = 9.75,
    .has_answer_box1 = true,
    .key_tool_tip = "Print the Crossword Answer Key",
    .tag = "crossform",
    .saved_start = "This crossword worksheet has been saved in the ",
    .saved_end = " . ",
    .name_line = compose::NameLine::Wide,
    .resize_margin = 350,
    .has_menus = false,
};

constexpr char kPasteKeys[] = "^{v}";

}  // namespace

CrosswordWorksheet::CrosswordWorksheet(Program& owner) : WorksheetForm(owner, kDesign) {
  Timer1.Tick = [this] { Tick(); };
}

void CrosswordWorksheet::Load() {
  PrepareWorksheet();
  WriteHeading();
  WriteDirections();
  WriteKeyHeading();
  FinishWorksheetLoad();
  TakeInput(false);
}

void CrosswordWorksheet::WriteHeading() {
  QuizBox.Text("");
  QuizBox.SelFontSize(10);
  QuizBox.SelFontName(compose::kTimes);
  QuizBox.SelAlignment(Alignment::Centre);
  compose::WriteNameDateLine(QuizBox, kDesign.name_line);
  compose::WriteTitleBlock(QuizBox, shared.WorksheetTitle);
  compose::CaretToEnd(QuizBox);
  QuizBox.SelFontSize(12);
  QuizBox.SelBold(false);
  QuizBox.SelAlignment(Alignment::Left);
}

void CrosswordWorksheet::WriteDirections() {
  compose::CaretToEnd(QuizBox);
  QuizBox.SelBold(true);
  QuizBox.SelItalic(true);
  QuizBox.SelAlignment(Alignment::Centre);
  compose::AppendRun(QuizBox,
                     "\nDirections: Use the clues below to fill in the words across and down in "
                     "the puzzle.\n");
  QuizBox.SelAlignment(Alignment::Left);
  compose::CaretToEnd(QuizBox);
  QuizBox.SelItalic(false);
  QuizBox.SelBold(false);
  PicturePos = QuizBox.SelStart();
  PictureFormat_ = QuizBox.CaretFormat();
}

void CrosswordWorksheet::WriteKeyHeading() {
  RichTextBox& key = KeyBox();
  key.Text("");
  key.SelAlignment(Alignment::Centre);
  key.SelFontSize(16);
  key.SelBold(true);
  key.SelFontName(compose::kTimes);
  key.SelUnderline(true);
  compose::AppendRun(key, "\n" + shared.WorksheetTitle + " Answer Key\n\n");
  key.SelAlignment(Alignment::Left);
  key.SelUnderline(false);
}

// Hidden, it waits for the other grid.
void CrosswordWorksheet::Tick() {
  if (!Visible) return;
  if (!KeyBox().Visible) {
    PasteNumberedGrid();
    AskForSolvedGrid();
  } else {
    PasteSolvedGrid();
    Timer1.Enabled = false;
    TakeInput(true);
    runtime().MsgBox("Ok! This crossword worksheet is ready for editing, saving, or printing!",
                     "All done!");
  }
}

void CrosswordWorksheet::PasteNumberedGrid() {
  forms().Show(id());
  TakeInput(true);
  QuizBox.SelStart(PicturePos);
  QuizBox.CaretFormat(PictureFormat_);
  QuizBox.SelAlignment(Alignment::Centre);
  QuizBox.SetFocus();
  runtime().keyboard().SendKeys(kPasteKeys);
  compose::CaretToEnd(QuizBox);
  compose::AppendRun(QuizBox, "\n\n");
  QuizBox.SelAlignment(Alignment::Left);
  WriteClues(forms().Get<CrossWordFill>(Screen::CrossWordFill));
  TakeInput(false);
}

void CrosswordWorksheet::WriteClues(CrossWordFill& fill) {
  const auto write_heading = [this](const char* heading) {
    QuizBox.SelBold(true);
    QuizBox.SelUnderline(true);
    QuizBox.SelFontSize(12);
    compose::AppendRun(QuizBox, heading);
    QuizBox.SelBold(false);
    QuizBox.SelUnderline(false);
    QuizBox.SelFontSize(10);
  };
  QuizBox.SelFontName(compose::kTimes);
  write_heading("Across:\n");
  if (fill.ClueBox.Length() > 0 && fill.ClueBox.CharacterAt(0) == U' ') {
    fill.ClueBox.Replace(0, 1, U"", fill.ClueBox.CaretFormat());
  }
  QuizBox.SelUnicode(fill.ClueBox.PlainText());
  compose::AppendRun(QuizBox, "\n\n");
  write_heading("Down:\n");
  QuizBox.SelUnicode(fill.ClueBox2.PlainText());
  forms().Unload(Screen::CrossWordFill);
}

void CrosswordWorksheet::AskForSolvedGrid() {
  KeyBox().Visible = true;
  QuizBox.Visible = false;
  shared.CaptureRequest = true;
  forms().Hide(id());
  forms().Show(Screen::CrossWord);
  forms().Get<CrossWord>(Screen::CrossWord).Timer1.Enabled = true;
}

void CrosswordWorksheet::PasteSolvedGrid() {
  forms().Show(id());
  RichTextBox& key = KeyBox();
  key.Enabled = true;
  key.SelAlignment(Alignment::Centre);
  compose::CaretToEnd(key);
  key.SetFocus();
  runtime().keyboard().SendKeys(kPasteKeys);
  // The worksheet's length, which is past the end of the key.
  key.SelStart(QuizBox.TextLength());
  compose::AppendRun(key, "\n\n");
  key.SelAlignment(Alignment::Left);
  key.SelStart(1);
  ShowWorksheetView();
  QuizBox.SelStart(0);
  QuizBox.SetFocus();
}

void CrosswordWorksheet::TakeInput(bool taken) {
  Toolbar1.Enabled = taken;
  QuizBox.Enabled = taken;
  KeyBox().Enabled = taken;
}

}  // namespace brindlepage
