#include <QDialogButtonBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPrintDialog>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScreen>
#include <deque>

#include "desktop/command_line.h"
#include "desktop/picture_view.h"
#include "desktop/rich_text_view.h"
#include "quiz/quiz_form.h"
#include "tests/bitmaps.h"
#include "tests/desktop_fixture.h"
#include "tests/printed_pages.h"
#include "worksheet/add_pic.h"
#include "worksheet/study_guide_form.h"

namespace brindlepage {
namespace {

// --- The command line of a word processor

CommandLine Split(std::string_view line, std::vector<std::string> programs) {
  return SplitCommandLine(line, [&](const std::string& path) {
    return std::find(programs.begin(), programs.end(), path) != programs.end();
  });
}

using Arguments = std::vector<std::string>;

TEST(CommandLine, ThePathEndsAtTheFirstQuotationMark) {
  const auto line = Split("C:\\Program Files\\Writer.exe\"C:\\My Lists\\a.rtf\"",
                          {"C:\\Program Files\\Writer.exe"});
  EXPECT_EQ(line.program, "C:\\Program Files\\Writer.exe");
  EXPECT_EQ(line.arguments, (Arguments{"C:\\My Lists\\a.rtf"}));
}

TEST(CommandLine, TheFilesStandInQuotationMarks) {
  const auto line = Split("/bin/writer\"b(Answer Key).rtf\" \"b c.rtf\"", {"/bin/writer"});
  EXPECT_EQ(line.arguments, (Arguments{"b(Answer Key).rtf", "b c.rtf"}));
}

TEST(CommandLine, ThePathMayStandInQuotationMarksItself) {
  const auto line = Split("\"/opt/my writer\" /n \"a.rtf\"", {});
  EXPECT_EQ(line.program, "/opt/my writer");
  EXPECT_EQ(line.arguments, (Arguments{"/n", "a.rtf"}));
}

TEST(CommandLine, WordsBehindTheProgramAreArguments) {
  const auto line = Split("writer --convert-to pdf\"a b.rtf\"", {"writer"});
  EXPECT_EQ(line.program, "writer");
  EXPECT_EQ(line.arguments, (Arguments{"--convert-to", "pdf", "a b.rtf"}));
}

TEST(CommandLine, OfTwoProgramsTheOneOfTheLongerPathIsMeant) {
  const auto line = Split("/opt/my writer /n\"a.rtf\"", {"/opt/my", "/opt/my writer"});
  EXPECT_EQ(line.program, "/opt/my writer");
  EXPECT_EQ(line.arguments, (Arguments{"/n", "a.rtf"}));
}

TEST(CommandLine, OfNoProgramItIsAllPath) {
  EXPECT_EQ(Split("no such writer\"a.rtf\"", {}).program, "no such writer");
  EXPECT_EQ(Split("  writer  ", {}).program, "writer");
  EXPECT_EQ(Split("", {}).program, "");
  EXPECT_EQ(Split("   ", {}).program, "");
  EXPECT_EQ(Split("\"a.rtf", {}).program, "a.rtf");
}

// --- Worksheets on the desktop

class OutputTest : public DesktopTest {
 protected:
  void SetUp() override {
    DesktopTest::SetUp();
    std::filesystem::create_directory(folder_.Path() / "out");
  }

  // What a teacher does in the print dialog.
  struct Printing {
    QString file = {};
    bool selection = false;
    bool cancel = false;
  };

  void UseWordProcessor(const std::string& path) {
    folder_.Write("brindlepage.dat", "a\r\nb\r\n" + path + "\r\nlistpath\r\n");
  }
  void GoToStudySheet(int words) {
    UseOneList(words);
    Start();
    GoToPickWords(4);
    Click("PickWords", "ChooseRandom");
    Click("PickWords", "Command2");
    ASSERT_EQ(Active(), "StudyGuideForm");
    Answer();
  }
  void OpenSaved(int row) {
    Click("Title", "Command2");
    ClickRow("OpenWorksheet", "File1", row);
    Click("OpenWorksheet", "Command1");
    ASSERT_EQ(Active(), "QuizForm");
  }

  // From now on, print dialogs are answered as queued, and every other box is noted and gets its
  // first answer.
  void Answer() {
    OnBoxes([this](QDialog& box) {
      if (&box == answered_) return;
      answered_ = &box;
      if (qobject_cast<QMessageBox*>(&box) != nullptr) return Refuse(box);
      if (auto* print = qobject_cast<QPrintDialog*>(&box)) return AnswerPrint(*print);
      const auto* text = box.findChild<QLabel*>("Text");
      boxes_ << box.windowTitle() + "|" + (text == nullptr ? QString() : text->text());
      for (const char* button : {"OK", "Yes"}) {
        if (auto* shown = box.findChild<QPushButton*>(button)) {
          return QTest::mouseClick(shown, Qt::LeftButton);
        }
      }
    });
  }
  // The print dialog's own warning, behind which it is still open.
  void Refuse(QDialog& warning) {
    boxes_ << "warning";
    answered_ = nullptr;
    warning.accept();
  }
  void AnswerPrint(QPrintDialog& dialog) {
    boxes_ << (dialog.testOption(QAbstractPrintDialog::PrintSelection) ? "print, selection too"
                                                                       : "print");
    auto* file = dialog.findChild<QLineEdit*>("filename");
    auto* selection = dialog.findChild<QRadioButton*>("printSelection");
    auto* buttons = dialog.findChild<QDialogButtonBox*>();
    ASSERT_TRUE(file != nullptr && selection != nullptr && buttons != nullptr);
    for (const char* name : {"printRange", "from", "to", "pagesRadioButton", "pageSetCombo"}) {
      const auto* part = dialog.findChild<QWidget*>(name);
      EXPECT_TRUE(part == nullptr || part->isHidden()) << name;
    }
    EXPECT_FALSE(dialog.findChild<QWidget*>("printAll")->isHidden());
    offered_ << file->text();
    const Printing printing = printings_.empty() ? Printing{.cancel = true} : printings_.front();
    if (!printings_.empty()) printings_.pop_front();
    if (printing.cancel) return QTest::keyClick(&dialog, Qt::Key_Escape);
    file->setText(printing.file);
    if (printing.selection) selection->setChecked(true);
    // Not from in here, where no further box could be answered.
    auto* ok = buttons->button(QDialogButtonBox::Ok);
    QTimer::singleShot(0, ok, [ok] { QTest::mouseClick(ok, Qt::LeftButton); });
  }

  QString Path(const char* name) {
    return QString::fromStdString((folder_.Path() / name).string());
  }
  // A PDF file's lines.
  std::string Printed(const char* name) { return pages::WrittenLines(Path(name)); }
  static std::string Lines(const RichText& document) {
    return pages::Written(QString::fromStdU32String(document.PlainText()));
  }
  StudyGuideForm& Sheet() { return dynamic_cast<StudyGuideForm&>(*Loaded("StudyGuideForm")); }
  QuizForm& Opened() { return dynamic_cast<QuizForm&>(*Loaded("QuizForm")); }

  void Select(RichTextBox& box, int start, int length) {
    desktop_->loop().Act(box, [&] {
      box.SelStart(start);
      box.SelLength(length);
    });
  }

  // A program of the shell that notes where it is, what it is told and what it can open.
  void MakeWordProcessor(const char* name) {
    folder_.Write(name,
                  "#!/bin/sh\n"
                  "{ pwd; for f in \"$@\"; do if [ -f \"$f\" ]; then echo \"opened $f\"; else echo "
                  "\"told $f\"; fi; done; } >said.part\n"
                  "mv said.part said\n");
    std::filesystem::permissions(folder_.Path() / name, std::filesystem::perms::owner_all);
  }
  std::string Said() {
    if (!QTest::qWaitFor([this] { return QFile::exists(Path("said")); }, 10000)) return "nothing";
    return folder_.Read("said");
  }

  std::deque<Printing> printings_;
  QStringList offered_;
  QPointer<QDialog> answered_;
};

// --- Print

TEST_F(OutputTest, TheWholeSheetIsPrintedToPdfAsItStandsOnScreen) {
  GoToStudySheet(60);
  printings_ = {{Path("out/sheet.pdf")}};
  ClickTool("StudyGuideForm", "Print");
  EXPECT_EQ(boxes_, QStringList{"print, selection too"});
  EXPECT_EQ(Printed("out/sheet.pdf"), Lines(Sheet().QuizBox));
  // 127 lines, 120 of them of 12 points: more than two pages of 9.5 inches, fewer than four.
  EXPECT_EQ(pages::Texts(Path("out/sheet.pdf")).size(), 3);
}

TEST_F(OutputTest, TheChoiceSelectionPrintsWhatIsSelected) {
  GoToStudySheet(5);
  const auto start = static_cast<int>(Sheet().QuizBox.PlainText().find(U"wordac"));
  Select(Sheet().QuizBox, start, 6);
  printings_ = {{.file = Path("out/word.pdf"), .selection = true}};
  ClickTool("StudyGuideForm", "Print");
  EXPECT_EQ(Printed("out/word.pdf"), "wordac\n");
  EXPECT_EQ(Sheet().QuizBox.SelLength(), 6);
}

TEST_F(OutputTest, CancelInThePrintDialogPrintsNothingAndSaysNothing) {
  GoToStudySheet(5);
  printings_ = {{.cancel = true}};
  ClickTool("StudyGuideForm", "Print");
  EXPECT_EQ(boxes_, QStringList{"print, selection too"});
  EXPECT_FALSE(program().Ended());
  EXPECT_EQ(Active(), "StudyGuideForm");
}

TEST_F(OutputTest, TheDialogOffersAFileThatIsNotThereYet) {
  GoToStudySheet(5);
  printings_ = {{Path("out/Study Guide.pdf")}, {.cancel = true}};
  ClickTool("StudyGuideForm", "Print");
  EXPECT_TRUE(offered_[0].endsWith("/Study Guide.pdf")) << offered_[0].toStdString();
  ClickTool("StudyGuideForm", "Print");
  EXPECT_EQ(offered_[1], Path("out/Study Guide 2.pdf"));
}

TEST_F(OutputTest, ASavedWorksheetIsPrintedToAFileOfItsName) {
  std::filesystem::create_directory(folder_.Path() / "worksheets");
  folder_.Write("worksheets/Planets Quiz.rtf", "{\\rtf1 Mars}");
  Start();
  OpenSaved(0);
  Answer();
  ClickTool("QuizForm", "Print");
  EXPECT_EQ(QFileInfo(offered_.value(0)).fileName(), "Planets Quiz.pdf");
}

TEST_F(OutputTest, APrintDialogThatGrowsStaysOnTheScreen) {
  GoToStudySheet(5);
  StopWatching();
  bool grown = false;
  OnBoxes([&](QDialog& box) {
    const QRect room = box.screen()->availableGeometry();
    if (!grown) {
      grown = true;
      box.move(room.bottomLeft() - QPoint(0, box.frameGeometry().height()));
      const auto buttons = box.findChildren<QPushButton*>();
      const auto options = std::find_if(buttons.begin(), buttons.end(), [](const auto* button) {
        return button->text().contains("Options");
      });
      ASSERT_NE(options, buttons.end());
      const int before = box.height();
      QTest::mouseClick(*options, Qt::LeftButton);
      Settle(100);
      EXPECT_GT(box.height(), before);
      EXPECT_LE(box.frameGeometry().bottom(), room.bottom());
    }
    box.reject();
  });
  ClickTool("StudyGuideForm", "Print");
  EXPECT_TRUE(grown);
}

TEST_F(OutputTest, AFileThatCannotBeWrittenIsRefusedByTheDialogItself) {
  GoToStudySheet(5);
  printings_ = {{Path("no such folder/sheet.pdf")}, {.cancel = true}};
  ClickTool("StudyGuideForm", "Print");
  EXPECT_EQ(boxes_, (QStringList{"print, selection too", "warning", "print, selection too"}));
  EXPECT_FALSE(program().Ended());
}

TEST_F(OutputTest, TheKeyHasADialogOfItsOwnWithoutSelection) {
  GoToStudySheet(5);
  ClickTool("StudyGuideForm", "Save");
  Click(Widget("StudyGuideForm", "QuizBox"));
  desktop_->loop().Act(*Loaded("StudyGuideForm")->FindControl("Back"),
                       [this] { Loaded("StudyGuideForm")->FindControl("Back")->UserClick(); });
  Settle();
  OpenSaved(1);
  boxes_.clear();
  printings_ = {{Path("out/sheet.pdf")}, {Path("out/key.pdf")}};
  ClickTool("QuizForm", "Print");
  EXPECT_EQ(boxes_, (QStringList{"print, selection too", "Print Answer Key?|Also Print Answer Key?",
                                 "print",
                                 "Activity Printed|This activity has been sent to your printer."}));
  EXPECT_EQ(Printed("out/sheet.pdf"), Lines(Opened().QuizBox));
  EXPECT_EQ(Printed("out/key.pdf"), "RichTextBox1\n");

  printings_ = {{Path("out/again.pdf")}, {.cancel = true}};
  ClickTool("QuizForm", "Print");
  EXPECT_FALSE(Widget("QuizForm", "QuizBox")->isVisible());
  EXPECT_TRUE(Widget("QuizForm", "AnswerBox")->isVisible());
}

// --- The word processor

TEST_F(OutputTest, TheWordProcessorOpensTheKeyAndTheWorksheetInTheProgramsFolder) {
  MakeWordProcessor("my writer");
  UseWordProcessor((folder_.Path() / "my writer").string());
  GoToStudySheet(3);
  ClickTool("StudyGuideForm", "QuickWord");
  const std::string folder = folder_.Path().string();
  EXPECT_EQ(Said(), folder + "\nopened " + folder +
                        "/worksheets/Everything Study Guide(Answer Key).rtf\nopened " + folder +
                        "/worksheets/Everything Study Guide.rtf\n");
  EXPECT_EQ(boxes_, QStringList{});
}

TEST_F(OutputTest, AStoredPathMayHoldArgumentsOfItsOwn) {
  MakeWordProcessor("writer");
  UseWordProcessor((folder_.Path() / "writer").string() + " --view as:pages");
  GoToStudySheet(3);
  program().shared.AnswerKeyWanted = 0;
  ClickTool("StudyGuideForm", "QuickWord");
  const std::string folder = folder_.Path().string();
  EXPECT_EQ(Said(), folder + "\ntold --view\ntold as:pages\nopened " + folder +
                        "/worksheets/Everything Study Guide.rtf\n");
}

class AWordProcessorThatCannotBeStarted : public OutputTest,
                                          public testing::WithParamInterface<const char*> {};

TEST_P(AWordProcessorThatCannotBeStarted, EndsTheProgram) {
  folder_.Write("no program.txt", "words");
  UseWordProcessor(GetParam());
  GoToStudySheet(3);
  ClickTool("StudyGuideForm", "QuickWord");
  EXPECT_EQ(boxes_, QStringList{"Brindlepage|Run-time error '53':\n\nFile not found"});
  EXPECT_TRUE(program().Ended());
  EXPECT_EQ(program().Status(), 1);
}

INSTANTIATE_TEST_SUITE_P(AsStored, AWordProcessorThatCannotBeStarted,
                         testing::Values("no-such-program", "C:\\Programs\\Writer.exe",
                                         "worksheets", "no program.txt", "/no/such/writer"));

TEST_F(OutputTest, ARealWordProcessorOpensTheWorksheetAndItsKey) {
  ASSERT_FALSE(QStandardPaths::findExecutable("soffice").isEmpty()) << "soffice is missing";
  const std::string folder = folder_.Path().string();
  UseWordProcessor("soffice -env:UserInstallation=file://" + folder +
                   "/profile --headless --convert-to pdf --outdir " + folder + "/out ");
  GoToStudySheet(60);
  program().shared.WorksheetTitle = "Everything";
  ClickTool("StudyGuideForm", "QuickWord");
  const QString sheet = Path("out/Everything.pdf");
  const QString key = Path("out/Everything(Answer Key).pdf");
  const auto written = [](const QString& file) { return !pages::WrittenLines(file).empty(); };
  ASSERT_TRUE(QTest::qWaitFor(
      [&] { return QFile::exists(sheet) && QFile::exists(key) && written(sheet) && written(key); },
      120000));
  EXPECT_EQ(pages::WrittenLines(sheet), Lines(Sheet().QuizBox));
  EXPECT_EQ(pages::WrittenLines(key), "RichTextBox1\n");
}

// --- Clipart

TEST_F(OutputTest, APictureIsLookedAtAndAddedAtTheCaret) {
  folder_.Write("sun.bmp", BitmapFile(48, 24));
  GoToStudySheet(3);
  Select(Sheet().QuizBox, 3, 0);
  ClickTool("StudyGuideForm", "Clipart");
  ASSERT_EQ(Active(), "AddPic");
  ClickRow("AddPic", "File1", 0);
  const QImage shown = Widget("AddPic", "Image1")->grab().toImage();
  EXPECT_EQ(shown.pixelColor(shown.rect().center()), QColor(Qt::red));
  Click("AddPic", "Command1");
  ASSERT_EQ(Active(), "StudyGuideForm");
  ASSERT_NE(Sheet().QuizBox.FormatAt(3).picture, nullptr);
  EXPECT_EQ(Sheet().QuizBox.FormatAt(3).picture->width, 720);

  printings_ = {{Path("out/sheet.pdf")}};
  ClickTool("StudyGuideForm", "Print");
  const QString images = pages::Ask("pdfimages", {"-list", Path("out/sheet.pdf")});
  EXPECT_TRUE(images.contains(QRegularExpression("\\s48\\s+24\\s"))) << images.toStdString();
}

TEST_F(OutputTest, ABrokenPictureInThePreviewEndsTheProgram) {
  folder_.Write("broken.bmp", "BM and no more");
  GoToStudySheet(3);
  ClickTool("StudyGuideForm", "Clipart");
  ClickRow("AddPic", "File1", 0);
  EXPECT_EQ(boxes_, QStringList{"Brindlepage|Run-time error '481':\n\nInvalid picture"});
  EXPECT_EQ(program().Status(), 1);
}

TEST_F(OutputTest, AWindowsMetafileIsListedForTheCrosswordAndADrawingStandsForIt) {
  folder_.Write("clip.wmf", std::string("\xD7\xCD\xC6\x9A") + std::string(40, '\0'));
  Start();
  Answer();
  desktop_->loop().Dispatch([this] { program().forms().Show(Screen::AddPic); });
  Settle();
  ClickRow("AddPic", "File1", 1);
  EXPECT_EQ(boxes_, QStringList{});
  ASSERT_NE(dynamic_cast<AddPic&>(*Loaded("AddPic")).Image1.Picture(), nullptr);
  const QImage preview = Widget("AddPic", "Image1")->grab().toImage();
  EXPECT_GT(preview.width(), 100);
  const QColor middle = preview.pixelColor(preview.width() / 2, preview.height() / 2);
  bool drawn = false;
  for (int x = 0; x < preview.width(); ++x) {
    drawn = drawn || preview.pixelColor(x, preview.height() / 2) != middle;
  }
  EXPECT_TRUE(drawn);
}

TEST_F(OutputTest, ThePreviewKeepsItsRoomWhileThereIsNone) {
  folder_.Write("sun.bmp", BitmapFile(48, 24));
  GoToStudySheet(3);
  ClickTool("StudyGuideForm", "Clipart");
  const int before = Widget("AddPic", "File1")->width();
  ClickRow("AddPic", "File1", 0);
  EXPECT_EQ(Widget("AddPic", "File1")->width(), before);
}

TEST_F(OutputTest, EscapeLeavesTheBrowserForTheWorksheet) {
  GoToStudySheet(3);
  ClickTool("StudyGuideForm", "Clipart");
  ASSERT_EQ(Active(), "AddPic");
  Press(Qt::Key_Escape);
  EXPECT_EQ(Active(), "StudyGuideForm");
}

// --- From the first save to the second

TEST_F(OutputTest, ASheetIsSavedPrintedReopenedGivenAPictureAndSavedAgainAndNothingIsLost) {
  folder_.Write("sun.bmp", BitmapFile(48, 24));
  GoToStudySheet(12);
  ClickTool("StudyGuideForm", "Save");
  EXPECT_EQ(boxes_[1],
            "Export Successful|This Study Sheet has been saved in the \"worksheets\" folder of "
            "your Brindlepage directory as \"Everything Study Guide.rtf\" . ");
  const std::u32string text = Sheet().QuizBox.PlainText();
  const std::string first = folder_.Read("worksheets/Everything Study Guide.rtf");
  printings_ = {{Path("out/first.pdf")}};
  ClickTool("StudyGuideForm", "Print");
  Control& back = *Loaded("StudyGuideForm")->FindControl("Back");
  desktop_->loop().Act(back, [&] { back.UserClick(); });
  Settle();

  OpenSaved(1);
  EXPECT_EQ(main().windowTitle(), "Everything Study Guide.rtf");
  EXPECT_EQ(Opened().QuizBox.PlainText(), text);
  printings_ = {{Path("out/second.pdf")}, {.cancel = true}};
  ClickTool("QuizForm", "Print");
  EXPECT_EQ(Printed("out/second.pdf"), Printed("out/first.pdf"));

  program().shared.WorksheetTitle = "Same";
  ClickTool("QuizForm", "Save");
  EXPECT_EQ(folder_.Read("worksheets/Same.rtf"), first);

  Select(Opened().QuizBox, 0, 0);
  ClickTool("QuizForm", "Clipart");
  ClickRow("AddPic", "File1", 0);
  Click("AddPic", "Command1");
  ClickTool("QuizForm", "Save");
  Control& leave = *Loaded("QuizForm")->FindControl("Back");
  desktop_->loop().Act(leave, [&] { leave.UserClick(); });
  Settle();

  OpenSaved(2);
  EXPECT_EQ(main().windowTitle(), "Same.rtf");
  EXPECT_EQ(Opened().QuizBox.PlainText(), U"\uFFFC" + text);
  const auto picture = Opened().QuizBox.FormatAt(0).picture;
  ASSERT_NE(picture, nullptr);
  EXPECT_EQ(picture->bytes, BitmapFile(48, 24));
  EXPECT_EQ(picture->width, 720);
  EXPECT_EQ(picture->height, 360);
}

}  // namespace
}  // namespace brindlepage
