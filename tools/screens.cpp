// Photographs the program's screens, without a display:
//
//     screens OUT_DIR PROGRAM_FOLDER [WIDTHxHEIGHT]
//
// walks through the program on a copy of the folder, by the controls' own actions, and writes a
// PNG file for each form and each message when it first comes up, and for a few more states. A
// new screen is photographed as soon as one of the walks below leads to it.

#include <QApplication>
#include <QCursor>
#include <QDialog>
#include <QDir>
#include <QElapsedTimer>
#include <QPainter>
#include <QPixmap>
#include <QTemporaryDir>
#include <QTemporaryFile>
#include <QTimer>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include "desktop/desktop.h"
#include "desktop/style.h"
#include "desktop/text.h"
#include "toolkit/controls.h"
#include "toolkit/lists.h"

namespace {

using namespace brindlepage;

class Photographer {
 public:
  Photographer(QString folder, QSize size) : folder_(std::move(folder)), size_(size) {}

  void Attach(Desktop& desktop) {
    desktop_ = &desktop;
    desktop.windows().main().setFixedSize(size_);
    boxes_.disconnect();
    QObject::connect(&boxes_, &QTimer::timeout, [this] { AnswerBox(); });
    boxes_.start(30);
  }

  // Lets the program come to rest, then takes what hasn't been taken yet.
  void TakeNewForms() {
    Settle();
    for (const auto& form : desktop_->program().forms().Loaded()) {
      if (form->Visible && taken_.insert(form->Name()).second) Take(ToQString(form->Name()), *form);
    }
  }

  void TakeAs(const QString& name) {
    Settle();
    if (Form* form = desktop_->program().forms().Active()) Take(name, *form);
  }

  Desktop& desktop() { return *desktop_; }

 private:
  static void Settle() {
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < 150) QApplication::processEvents(QEventLoop::AllEvents, 20);
  }

  void Take(const QString& name, Form& form) {
    FormView* view = desktop_->windows().Find(form);
    if (view != nullptr) Save(name, *view->window());
  }

  void Save(const QString& name, QWidget& window) {
    const QString file = QString("%1/%2.png").arg(folder_, name);
    if (!window.grab().save(file)) std::fprintf(stderr, "can't write %s\n", qPrintable(file));
  }

  void AnswerBox() {
    auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (box == nullptr) return;
    Save(QString("message-%1").arg(++messages_), *box);
    box->accept();
  }

  QString folder_;
  QSize size_;
  Desktop* desktop_ = nullptr;
  QTimer boxes_;
  std::set<std::string> taken_;
  int messages_ = 0;
};

using Step = std::function<void(Photographer&)>;
using Walk = std::vector<Step>;

template <class ControlType>
ControlType& FindControl(Photographer& photographer, const std::string& form,
                         const std::string& name, int index = -1) {
  for (const auto& loaded : photographer.desktop().program().forms().Loaded()) {
    if (loaded->Name() != form) continue;
    auto* control = dynamic_cast<ControlType*>(loaded->FindControl(name, index));
    if (control != nullptr) return *control;
  }
  std::fprintf(stderr, "no %s.%s\n", form.c_str(), name.c_str());
  std::exit(1);
}

Step Click(std::string form, std::string name, int index = -1) {
  return [=](Photographer& photographer) {
    auto& control = FindControl<Control>(photographer, form, name, index);
    photographer.desktop().loop().Act(control, [&] { control.UserClick(); });
  };
}

// A key on the form itself.
Step PressKey() {
  return [=](Photographer& photographer) {
    Forms& forms = photographer.desktop().program().forms();
    photographer.desktop().loop().Act(*forms.Active(), [&] { forms.Key(*forms.Active()); });
  };
}

Step Tool(std::string form, std::string caption) {
  return [=](Photographer& photographer) {
    auto& toolbar = FindControl<Toolbar>(photographer, form, "Toolbar1");
    photographer.desktop().loop().Act(toolbar,
                                      [&] { toolbar.ButtonClick(*toolbar.FindCaption(caption)); });
  };
}

Step Select(std::string form, std::string name, int row) {
  return [=](Photographer& photographer) {
    auto& list = FindControl<ListBox>(photographer, form, name);
    photographer.desktop().loop().Act(list, [&] { list.ClickRow(row); });
  };
}

Step Type(std::string form, std::string name, std::string text) {
  return [=](Photographer& photographer) {
    auto& box = FindControl<TextBox>(photographer, form, name);
    photographer.desktop().loop().Act(box, [&] { box.Text = text; });
  };
}

Step Mark(std::string form, std::string name, std::vector<int> rows) {
  return [=](Photographer& photographer) {
    auto& list = FindControl<ListBox>(photographer, form, name);
    photographer.desktop().loop().Act(list, [&] {
      for (const int row : rows) list.ClickCheck(row);
    });
  };
}

Step DoubleClickNothing(std::string form, std::string name) {
  return [=](Photographer& photographer) {
    auto& list = FindControl<ListBox>(photographer, form, name);
    photographer.desktop().loop().Act(list, [&] { list.DoubleClickRow(-1); });
  };
}

// Long enough for timers.
Step Wait(int milliseconds) {
  return [=](Photographer& photographer) {
    QElapsedTimer clock;
    for (clock.start(); clock.elapsed() < milliseconds;) photographer.TakeNewForms();
  };
}

Step Photo(QString name) {
  return [=](Photographer& photographer) { photographer.TakeAs(name); };
}

// A quiz of the kind of that option button, and its key.
Walk Quiz(const char* kind) {
  const QString name = QString("QuizForm-") + kind;
  return {Click("Title", "Command1", 3),
          Select("ChooseList", "TheLists", 1),
          Click("ChooseList", "Command1"),
          Click("QuizOptions3", kind),
          Click("QuizOptions3", "Command1"),
          Click("QuizOptions5", "Command1"),
          Click("PickWords", "ChooseRandom"),
          Click("PickWords", "Command2"),
          Photo(name),
          Tool("QuizForm", "Key"),
          Photo(name + "-key")};
}

// A picture in the program's folder.
Step DrawSun() {
  return [](Photographer&) {
    QImage sun(160, 160, QImage::Format_RGB32);
    sun.fill(Qt::white);
    QPainter painter(&sun);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(0xF0, 0x90, 0x20), 8));
    painter.translate(80, 80);
    for (int ray = 0; ray < 12; ++ray) {
      painter.drawLine(52, 0, 72, 0);
      painter.rotate(30);
    }
    painter.setBrush(QColor(0xFF, 0xD0, 0x40));
    painter.drawEllipse(QPoint(), 40, 40);
    painter.end();
    if (!sun.save("sun.bmp")) std::fprintf(stderr, "can't write sun.bmp\n");
  };
}

std::vector<Walk> Walks() {
  return {
      {Tool("Title", "Info")},
      // Coded riddles, and a cryptoquip of a riddle.
      {Click("Title", "Command3"), Click("JustForFun", "Command2"),
       Click("RiddleOption1", "Command3"), Photo("RiddleOption1-added"),
       Click("RiddleOption1", "Image1"), Click("RiddleOption1", "Command3"),
       Click("RiddleOption1", "Command2"), Click("QuizOptions5", "Command1"),
       Photo("CodeForm-riddles"), Tool("CodeForm", "Key"), Photo("CodeForm-riddles-key")},
      {Click("Title", "Command3"), Click("JustForFun", "Command3"),
       Click("RiddleOption1", "Command2"), Click("RiddleOption1", "Image1"),
       Click("RiddleOption1", "Command3"), Click("RiddleOption1", "Command2"),
       Click("QuizOptions5", "Command1"), Photo("CodeForm-cryptoquip"), Tool("CodeForm", "Key"),
       Photo("CodeForm-cryptoquip-key")},
      // A word list can't be chosen where there is none.
      {Click("Title", "Command1", 4), DoubleClickNothing("ChooseList", "TheLists"),
       Click("ChooseReminder", "Command1"), Select("ChooseList", "TheLists", 3),
       Photo("ChooseList-chosen")},
      // A study sheet.
      {Click("Title", "Command1", 4), Select("ChooseList", "TheLists", 3),
       Click("ChooseList", "Command1"), Click("QuizOptions5", "Command1"),
       Mark("PickWords", "TheWords", {0, 2, 3, 5}), Photo("PickWords-marked"),
       Click("PickWords", "ChooseRandom"), Click("PickWords", "Command2")},
      // A scramble worksheet, a secret code and a riddle.
      {Click("Title", "Command1", 2), Select("ChooseList", "TheLists", 3),
       Click("ChooseList", "Command1"), Click("ScrambleOption1", "Command1"),
       Click("QuizOptions5", "Command1"), Click("PickWords", "ChooseRandom"),
       Click("PickWords", "Command2"), Tool("Scramble", "Key"), Photo("Scramble-key")},
      {Click("Title", "Command1", 5), Select("ChooseList", "TheLists", 3),
       Click("ChooseList", "Command1"), Click("QuizOptions5", "Command1"),
       Click("PickWords", "ChooseRandom"), Click("PickWords", "Command2"), Tool("CodeForm", "Key"),
       Photo("CodeForm-key")},
      {Click("Title", "Command1", 6), Select("ChooseList", "TheLists", 3),
       Click("ChooseList", "Command1"), Click("ChooseRiddle", "Label4"),
       Photo("ChooseRiddle-second"), Click("ChooseRiddle", "Command2"),
       Click("QuizOptions5", "Command1"), Click("PickWords", "ChooseRandom"),
       Click("PickWords", "Command2"), Tool("RiddleForm", "Key"), Photo("RiddleForm-key")},
      // The quizzes.
      Quiz("MC"),
      Quiz("MC2"),
      Quiz("Match"),
      Quiz("FillNo"),
      Quiz("FillYes"),
      // The alphabetize sheet.
      {Click("Title", "Command4"), Select("ChooseList", "TheLists", 1),
       Click("ChooseList", "Command1"), Click("QuizOptions5", "Command1"),
       Click("PickWords", "ChooseRandom"), Click("PickWords", "Command2"),
       Photo("QuizForm-alphabetize"), Tool("QuizForm", "Key"), Photo("QuizForm-alphabetize-key")},
      // The same, saved, opened again and given a picture.
      {Click("Title", "Command1", 4), Select("ChooseList", "TheLists", 3),
       Click("ChooseList", "Command1"), Click("QuizOptions5", "Command1"),
       Click("PickWords", "ChooseRandom"), Click("PickWords", "Command2"), DrawSun(),
       Tool("StudyGuideForm", "Save"), Click("StudyGuideForm", "Back"), Click("Title", "Command2"),
       Select("OpenWorksheet", "File1", 1), Photo("OpenWorksheet-chosen"),
       Click("OpenWorksheet", "Command1"), Tool("QuizForm", "Clipart"),
       Select("AddPic", "File1", 0), Photo("AddPic-chosen"), Click("AddPic", "Command1"),
       Photo("QuizForm-with-picture")},
      // A word search.
      {Click("Title", "Command1", 0), Select("ChooseList", "TheLists", 1),
       Click("ChooseList", "Command1"), Click("QuizOptions5", "Command1"),
       Click("PickWords", "ChooseRandom"), Click("PickWords", "Command2"),
       Click("QuizOptions", "Command1"), Click("PuzzleSize", "Command1"),
       Tool("WordSearchForm", "Key"), Photo("WordSearchForm-key")},
      // A new list.
      {Tool("Title", "Create"), Type("CreateList", "NewName", "Volcanoes"),
       Click("CreateList", "Command2"), Type("MakeNewList", "TheWord", "lava"),
       Type("MakeNewList", "TheMeaning", "melted rock that has come out"),
       Tool("MakeNewList", "Add Word"), Type("MakeNewList", "TheWord", "ash"),
       Type("MakeNewList", "TheMeaning", "grey dust"), Tool("MakeNewList", "Add Word"),
       Type("MakeNewList", "TheWord", "crater"), Photo("MakeNewList-words"),
       Tool("MakeNewList", "Foreign")},
      // A list under change.
      {Tool("Title", "Edit"), Select("EditChooseList", "TheLists", 3),
       Photo("EditChooseList-chosen"), Click("EditChooseList", "Command1"),
       Select("EditList", "WordList", 2), Photo("EditList-selected"), Tool("EditList", "Add Word"),
       Click("AddWord", "Command3"), Photo("AddWord-letters"), Click("AddWord", "Command2"),
       Tool("EditList", "Edit Word"), Click("EditWord", "Command2"),
       Tool("EditList", "Rename List")},
      // A list that goes, and the options.
      {Tool("Title", "Delete"), Select("DeleteList", "TheLists", 1),
       Click("DeleteList", "Command1"), Photo("DeleteList-asking")},
      {Tool("Title", "Opts"), Click("ProgramOptions", "Command5")},
      {Tool("Title", "Opts"), Click("ProgramOptions", "Command3")},
      // A crossword, coloured, up to its worksheet and key.
      {Click("Title", "Command1", 1),
       Select("ChooseList", "TheLists", 2),
       Click("ChooseList", "Command1"),
       Click("QuizOptions5", "Command1"),
       Click("CrossOption1", "Command1"),
       Click("CrossOption2", "Command2"),
       Click("PickWords", "ChooseRandom"),
       Click("PickWords", "Command2"),
       Wait(1200),
       Photo("CrossPrint"),
       Click("CrossPrint", "Command1"),
       Photo("CrossWord-preview"),
       PressKey(),
       Click("CrossPrint", "ColorLabel", 8),
       Photo("CrossPrint-graphic"),
       Click("CrossPrint", "ColorLabel", 3),
       Click("CrossPrint", "AutoS"),
       Click("CrossPrint", "Command5"),
       Wait(6000),
       Photo("CrosswordWorksheet-done"),
       Tool("CrosswordWorksheet", "Key"),
       Photo("CrosswordWorksheet-key")},
  };
}

// A screen of that size, in memory.
void UseOffscreen(int width, int height) {
  static QTemporaryFile description;
  if (!description.open()) return;
  description.write(QString(R"({"windowFrameMargins": false, "screens": [{"name": "screen", "x": 0,
      "y": 0, "width": %1, "height": %2, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})")
                        .arg(width)
                        .arg(height)
                        .toUtf8());
  description.flush();
  qputenv("QT_QPA_PLATFORM", ("offscreen:configfile=" + description.fileName()).toUtf8());
}

}  // namespace

int main(int argc, char** argv) {
  int width = 1000;
  int height = 720;
  const bool sized = argc == 4 && std::sscanf(argv[3], "%dx%d", &width, &height) == 2;
  if (argc != 3 && !sized) {
    std::fprintf(stderr, "usage: screens OUT_DIR PROGRAM_FOLDER [WIDTHxHEIGHT]\n");
    return 2;
  }
  UseOffscreen(width, height);
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  ApplyStyle(application);
  const QString out = QDir().absoluteFilePath(argv[1]);
  const std::filesystem::path program_folder = std::filesystem::absolute(argv[2]);
  QDir().mkpath(out);

  QCursor::setPos(width - 1, height - 1);
  Photographer photographer(out, QSize(width, height));
  for (const Walk& walk : Walks()) {
    const QTemporaryDir copy;
    const std::filesystem::path work = copy.path().toStdString();
    std::filesystem::copy(program_folder, work, std::filesystem::copy_options::recursive);
    QDir::setCurrent(copy.path());
    Desktop desktop;
    photographer.Attach(desktop);
    desktop.Start();
    photographer.TakeNewForms();
    for (const Step& step : walk) {
      step(photographer);
      photographer.TakeNewForms();
    }
    QDir::setCurrent(out);
  }
  return 0;
}
