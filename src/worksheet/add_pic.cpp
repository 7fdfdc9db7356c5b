#include "worksheet/add_pic.h"

#include "toolkit/code_page.h"
#include "worksheet/bitmap_picture.h"
#include "worksheet/worksheet_form.h"

namespace brindlepage {

namespace {

struct Target {
  const char* tag;  // in small letters
  Screen form;
};
constexpr Target kTargets[] = {
    {"wordsearchform", Screen::WordSearchForm},
    {"scramble", Screen::Scramble},
    {"riddleform", Screen::RiddleForm},
    {"codeform", Screen::CodeForm},
    {"quizform", Screen::QuizForm},
    {"crossform", Screen::CrosswordWorksheet},
    {"studyform", Screen::StudyGuideForm},
};

constexpr char kCannotAdd[] =
    "This control uses Active X to add clipart to your worksheet. It appears that Active X is not "
    "properly installed on your computer. You have several other options. You can <copy and paste> "
    "clipart onto the worksheet, you can save the worksheet to open in another application, or you "
    "can use the <QuickWord> feature to open the worksheet directly in your word processor.";

// What is none of the program's own kind of form or control is an object that isn't there.
template <class Wanted, class Found>
Wanted& Require(Found* found) {
  auto* wanted = dynamic_cast<Wanted*>(found);
  if (wanted == nullptr) throw RunTimeError(Fault::ObjectRequired);
  return *wanted;
}

}  // namespace

AddPic::AddPic(Program& owner) : ProgramForm(owner, Screen::AddPic, "AddPic", "Add A Picture") {
  Command1.Default = true;
  Command2.Cancel = true;
  Drive1.Change = [this] {
    Dir1.Path = Drive1.Drive;
    Image1.Visible = false;
  };
  Dir1.Change = [this] {
    File1.Path = Dir1.Path;
    Dir1.ToolTipText = Dir1.Path();
    Image1.Visible = false;
  };
  File1.Click = [this] {
    if (File1.ListIndex >= 0) ShowPreview();
  };
  Command1.Click = [this] { AddPicture(); };
  Command2.Click = [this] { Unload(); };
  // The preview keeps its half while there is none.
  Arrange(Column(Fill(Row(Fill(Column(Label3, Drive1, Label1, Fill(Dir1), Label2, Fill(File1))),
                          Fill(Column(Fill(Image1))))),
                 Row(Command2, Spring(), Command1)));
}

void AddPic::Load() {
  CentreForm();
  LoadBackground();
  Dir1.ToolTipText = Dir1.Path();
  if (shared.PictureReturn) File1.Pattern = "*.bmp";
}

void AddPic::ShowPreview() {
  Image1.Visible = true;
  Image1.Picture = ChosenPicture();
}

void AddPic::AddPicture() {
  try {
    if (shared.PictureReturn) {
      AddToWorksheet();
    } else {
      AddBehindCrossword();
    }
  } catch (const RunTimeError&) {
    runtime().MsgBox(kCannotAdd, "Error:");
  }
  Unload();
}

void AddPic::AddToWorksheet() {
  const auto picture = EmbeddedBitmap(*ChosenPicture());
  const std::string tag = code_page::LowerCase(shared.ReturnTag);
  for (const Target& target : kTargets) {
    if (tag != target.tag) continue;
    forms().Load(target.form);
    Require<WorksheetForm>(forms().Find(target.form)).QuizBox.InsertPicture(picture);
  }
}

void AddPic::AddBehindCrossword() {
  const PicturePtr picture = ChosenPicture();
  for (const Screen form : {Screen::CrossWordFill, Screen::CrossWord, Screen::NewCross1}) {
    forms().Load(form);
    Control* image = Require<Form>(forms().Find(form)).FindControl("CrossImage");
    Require<Image>(image).Picture = picture;
  }
}

PicturePtr AddPic::ChosenPicture() {
  PicturePtr picture = LoadPicture(File1.Path() + "\\" + File1.FileName());
  if (!runtime().platform().CanShow(*picture)) throw RunTimeError(Fault::InvalidPicture);
  return picture;
}

}  // namespace brindlepage
