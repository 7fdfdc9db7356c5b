#include <gtest/gtest.h>

#include <QAbstractScrollArea>
#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QImage>
#include <QPrinter>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest/QTest>
#include <filesystem>

#include "crossword/cross_print.h"
#include "crossword/cross_word.h"
#include "crossword/crossword_worksheet.h"
#include "crossword/new_cross1.h"
#include "crossword/quick_print.h"
#include "desktop/desktop.h"
#include "desktop/grid_view.h"
#include "desktop/qt_pages.h"
#include "desktop/text.h"
#include "tests/temp_folder.h"
#include "toolkit/placed_form.h"
#include "toolkit/run_time_error.h"

namespace brindlepage {
namespace {

class CrosswordDesktop : public testing::Test {
 protected:
  void SetUp() override {
    std::filesystem::copy(PROGRAM_FOLDER, folder_.Path(), std::filesystem::copy_options::recursive);
    QObject::connect(&boxes_, &QTimer::timeout, [this] {
      auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      if (box == nullptr) return;
      messages_ << box->windowTitle();
      box->accept();
    });
    boxes_.start(20);
    desktop_ = std::make_unique<Desktop>();
    desktop_->Start();
    main().activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&main()));
    QTest::qWait(20);
  }
  void TearDown() override { desktop_.reset(); }

  FormWindow& main() { return desktop_->windows().main(); }
  Forms& forms() { return desktop_->program().forms(); }
  bool Active(Screen id) { return forms().Active() != nullptr && forms().Active()->id() == id; }

  // A click on the control's own widget.
  void Click(Screen id, const char* name, int index = -1) {
    Form* form = forms().Find(id);
    ASSERT_NE(form, nullptr) << name;
    // The screen comes up as soon as the handler that showed it is done.
    ASSERT_TRUE(QTest::qWaitFor([&] { return desktop_->windows().Find(*form) != nullptr; }));
    ControlView* view = desktop_->windows().Find(*form)->Find(*form->FindControl(name, index));
    ASSERT_NE(view, nullptr) << name;
    ASSERT_TRUE(QTest::qWaitFor([&] { return view->widget()->isVisible(); })) << name;
    QTest::mouseClick(view->widget(), Qt::LeftButton);
    QTest::qWait(30);
  }
  void Act(Screen id, const char* name, int index = -1) {
    Control& control = *forms().Find(id)->FindControl(name, index);
    desktop_->loop().Act(control, [&] { control.UserClick(); });
    QTest::qWait(20);
  }
  GridView* GridOf(Screen id) {
    Form* form = forms().Find(id);
    FormView* view = form == nullptr ? nullptr : desktop_->windows().Find(*form);
    return view == nullptr ? nullptr : view->findChild<GridView*>();
  }

  // From the menu to the finished puzzle of a list's words.
  void MakePuzzle() {
    Act(Screen::Title, "Command1", 1);
    auto& lists =
        dynamic_cast<ListBox&>(*forms().Find(Screen::ChooseList)->FindControl("TheLists"));
    desktop_->loop().Act(lists, [&] { lists.ClickRow(2); });
    Act(Screen::ChooseList, "Command1");
    Click(Screen::QuizOptions5, "Command1");
    Click(Screen::CrossOption1, "Command1");
    Click(Screen::CrossOption2, "Command1");
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return forms().Find(Screen::CrossPrint) != nullptr; }, 20000));
    ASSERT_TRUE(QTest::qWaitFor([&] { return Active(Screen::CrossPrint); }, 20000));
  }

  TempFolder folder_;
  QTimer boxes_;
  QStringList messages_;
  std::unique_ptr<Desktop> desktop_;
};

QImage Decoded(const FormPicture& picture) {
  return QImage::fromData(QByteArray::fromStdString(picture.bytes), "png");
}

// A form with boxes of the test's choosing.
constexpr Screen kSketch{900};
class SketchForm : public Form {
 public:
  explicit SketchForm(Runtime& own_runtime) : Form(own_runtime, kSketch, "SketchForm", "Sketch") {
    PlaceControls();
  }
  Image CrossImage{*this, "CrossImage"};
  ControlArray<Label> Square{*this, "Square", 0, 3};

  void Put(int index, int left, int top, int side, const char* caption) {
    Label& square = Square(index);
    square.Left = left;
    square.Top = top;
    square.Width = side;
    square.Height = side;
    square.Caption = caption;
    square.BorderStyle = 1;
  }
};

class SketchDesktop : public testing::Test {
 protected:
  SketchDesktop() {
    for (int index = 0; index <= 3; ++index) form_.Square(index).Visible = index < 2;
  }
  Loop loop_;
  Windows windows_{loop_};
  QtPlatform platform_{loop_, windows_};
  SeededRandom random_{1};
  Runtime runtime_{platform_, random_, [](Screen) { return std::unique_ptr<Form>(); }};
  SketchForm form_{runtime_};
};

TEST_F(SketchDesktop, ThePictureIsDrawnAt360DotsAnInchFromTheSquaresGeometry) {
  form_.Put(0, 1000, 2000, 400, " 1");
  form_.Put(1, 1410, 2000, 400, "");
  form_.BackColor = 0x00C000;
  const FormPicture picture = platform_.PictureOf(form_);
  // 810 by 400 twips and a margin of 100 all around, as it stands.
  EXPECT_EQ(picture.width, 1010);
  EXPECT_EQ(picture.height, 600);
  const QImage image = Decoded(picture);
  EXPECT_EQ(image.size(), QSize(252, 150));  // four twips to a dot
  EXPECT_NEAR(image.dotsPerMeterX(), 360 / 0.0254, 1);

  EXPECT_EQ(image.pixelColor(5, 5), QColor(0, 0xC0, 0));     // the margin
  EXPECT_EQ(image.pixelColor(126, 75), QColor(0, 0xC0, 0));  // the gap: twips 1400 to 1410
  EXPECT_EQ(image.pixelColor(25, 75), QColor(Qt::black));    // the left border
  EXPECT_EQ(image.pixelColor(110, 110), QColor(Qt::white));  // inside
}

TEST_F(SketchDesktop, TheNumberStandsSmallInTheUpperLeftCornerOfItsSquare) {
  form_.Put(0, 0, 0, 400, " 7");
  form_.Put(1, 410, 0, 400, "");
  form_.Square(0).FontSize = 6;
  const QImage image = Decoded(platform_.PictureOf(form_));
  const auto dark = [&](const QRect& part) {
    int count = 0;
    for (int y = part.top(); y <= part.bottom(); ++y) {
      for (int x = part.left(); x <= part.right(); ++x) {
        if (image.pixelColor(x, y).lightness() < 100) ++count;
      }
    }
    return count;
  };
  // The square reaches from dot 25 to dot 125, its border being three dots wide at most.
  EXPECT_GT(dark(QRect(29, 29, 46, 40)), 10);
  EXPECT_EQ(dark(QRect(29, 75, 92, 46)), 0);
  EXPECT_EQ(dark(QRect(80, 29, 40, 92)), 0);
  EXPECT_EQ(dark(QRect(132, 29, 90, 90)), 0);
}

TEST_F(SketchDesktop, ALetterStandsInTheMiddleOfItsSquare) {
  form_.Put(0, 0, 0, 400, "w");
  form_.Square(1).Visible = false;
  form_.Square(0).Alignment = 2;
  form_.Square(0).FontSize = 10;
  const QImage image = Decoded(platform_.PictureOf(form_));
  int left = 0;
  int right = 0;
  for (int y = 30; y < 120; ++y) {
    for (int x = 30; x < 120; ++x) {
      if (image.pixelColor(x, y).lightness() < 100) ++(x < 75 ? left : right);
    }
  }
  EXPECT_GT(left, 20);
  EXPECT_NEAR(left, right, 0.35 * left);
}

TEST_F(SketchDesktop, AGridWiderThanTheColumnIsShrunkWhole) {
  form_.Put(0, 0, 0, 400, "");
  form_.Put(1, 21200, 9800, 400, "");
  const FormPicture picture = platform_.PictureOf(form_);
  // 21,600 by 10,200 twips and the margin.
  EXPECT_EQ(picture.width, 10800);
  EXPECT_EQ(picture.height, 10400 * 10800 / 21800);
  EXPECT_EQ(Decoded(picture).width(), 2700);
}

TEST_F(SketchDesktop, ABackgroundGraphicFillsWhatTheSquaresLeave) {
  form_.Put(0, 0, 0, 400, "");
  form_.Put(1, 410, 410, 400, "");
  QImage red(20, 20, QImage::Format_RGB32);
  red.fill(Qt::red);
  QTemporaryDir folder;
  const QString file = folder.filePath("red.png");
  ASSERT_TRUE(red.save(file));
  QFile bytes(file);
  ASSERT_TRUE(bytes.open(QIODevice::ReadOnly));
  form_.CrossImage.Picture =
      std::make_shared<Picture>(Picture{"red.png", "png", bytes.readAll().toStdString()});
  QImage image = Decoded(platform_.PictureOf(form_));
  EXPECT_EQ(image.pixelColor(190, 60), QColor(Qt::red));
  EXPECT_EQ(image.pixelColor(75, 75), QColor(Qt::white));
  form_.CrossImage.Visible = false;
  image = Decoded(platform_.PictureOf(form_));
  EXPECT_EQ(image.pixelColor(190, 60), QColor(Qt::white));
}

TEST_F(CrosswordDesktop, APuzzleIsMadePreviewedAndTurnedIntoAWorksheetByMouseAlone) {
  MakePuzzle();
  Click(Screen::CrossPrint, "Command1");
  ASSERT_TRUE(Active(Screen::CrossWord));
  ASSERT_TRUE(QTest::qWaitFor([&] { return GridOf(Screen::CrossWord) != nullptr; }));
  GridView* preview = GridOf(Screen::CrossWord);
  ASSERT_TRUE(QTest::qWaitFor([&] { return preview->isVisible(); }));
  QTest::mouseClick(preview, Qt::LeftButton);
  QTest::qWait(30);
  EXPECT_TRUE(Active(Screen::CrossPrint));
  Click(Screen::CrossPrint, "Command1");
  QTest::keyClick(GridOf(Screen::CrossWord), Qt::Key_Space);
  QTest::qWait(30);
  EXPECT_TRUE(Active(Screen::CrossPrint));

  Click(Screen::CrossPrint, "ColorLabel", 6);
  EXPECT_EQ(forms().Find(Screen::CrossWord)->BackColor, 0x80FFFF);
  Click(Screen::CrossPrint, "Command5");
  // What is typed meanwhile spoils nothing.
  ASSERT_TRUE(QTest::qWaitFor(
      [&] {
        if (QWidget* keys = QApplication::focusWidget()) QTest::keyClick(keys, Qt::Key_X);
        return messages_.contains("All done!");
      },
      20000));
  EXPECT_EQ(messages_, QStringList({"Create Worksheet", "All done!"}));

  auto* sheet = forms().Find<CrosswordWorksheet>(Screen::CrosswordWorksheet);
  ASSERT_NE(sheet, nullptr);
  // Nor does undo take back what the program wrote.
  QTest::qWait(50);
  QWidget* keys = desktop_->windows().Find(*sheet)->Find(sheet->QuizBox)->widget();
  for (int i = 0; i < 5; ++i) QTest::keyClick(keys, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_FALSE(QString::fromStdU32String(sheet->QuizBox.PlainText()).contains("xx"));
  for (RichTextBox* box : {&sheet->QuizBox, sheet->AnswerBox1.get()}) {
    int pictures = 0;
    for (int i = 0; i < box->Length(); ++i) {
      const auto& picture = box->FormatAt(i).picture;
      if (picture == nullptr) continue;
      ++pictures;
      EXPECT_EQ(picture->format, "png");
      EXPECT_LE(picture->width, 10800);
      const QImage image = QImage::fromData(QByteArray::fromStdString(picture->bytes), "png");
      EXPECT_GE(image.width() * 1440.0 / picture->width, 300);  // dots an inch
      EXPECT_EQ(image.pixelColor(3, 3), QColor(0xFF, 0xFF, 0x80));
    }
    EXPECT_EQ(pictures, 1);
  }
}

TEST_F(CrosswordDesktop, TheFinishedWorksheetHasTheKeysAndFollowsTheCaret) {
  MakePuzzle();
  Click(Screen::CrossPrint, "Command5");
  ASSERT_TRUE(QTest::qWaitFor([&] { return messages_.contains("All done!"); }, 20000));
  main().activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&main()));
  QTest::qWait(50);
  auto& sheet = *forms().Find<CrosswordWorksheet>(Screen::CrosswordWorksheet);
  ControlView* view = desktop_->windows().Find(sheet)->Find(sheet.QuizBox);
  ASSERT_EQ(QApplication::focusWidget(), view->widget());
  QTest::keyClick(view->widget(), Qt::Key_End, Qt::ControlModifier);
  EXPECT_GT(qobject_cast<QAbstractScrollArea*>(view->widget())->verticalScrollBar()->value(), 0);
}

TEST_F(CrosswordDesktop, ARemadePuzzleComesUpAfterTheRequestToWait) {
  MakePuzzle();
  QTest::qWait(1100);
  // No event is handled before the look, for the request lasts no longer than the making.
  Control& remake = *forms().Find(Screen::CrossPrint)->FindControl("Command6");
  desktop_->loop().Act(remake, [&] { remake.UserClick(); });
  EXPECT_TRUE(Active(Screen::PleaseWait));
  ASSERT_TRUE(QTest::qWaitFor([&] { return Active(Screen::CrossPrint); }, 20000));
  ASSERT_TRUE(QTest::qWaitFor([&] { return !forms().Find(Screen::PleaseWait)->Visible; }, 3000));
}

TEST_F(CrosswordDesktop, PaintingInTheMiddleOfAHandlerLetsNoTimerFire) {
  MakePuzzle();
  bool box_went = false;
  desktop_->loop().Dispatch([&] {
    desktop_->program().keyboard().Sleep(1200);
    box_went = !forms().Find(Screen::PleaseWait)->Visible;
  });
  EXPECT_FALSE(box_went);
  ASSERT_TRUE(QTest::qWaitFor([&] { return !forms().Find(Screen::PleaseWait)->Visible; }, 3000));
}

// --- Quick print

// A desktop whose printer writes a PDF file.
class PdfPlatform : public QtPlatform {
 public:
  PdfPlatform(Loop& loop, Windows& windows, const QString& file) : QtPlatform(loop, windows) {
    printer_.setOutputFormat(QPrinter::PdfFormat);
    printer_.setOutputFileName(file);
    printer_.setPageSize(QPageSize(QPageSize::Letter));
    printer_.setPageOrientation(QPageLayout::Landscape);
  }
  std::unique_ptr<PrinterPages> StartPages() override {
    return std::make_unique<QtPages>(printer_);
  }

 private:
  QPrinter printer_{QPrinter::HighResolution};
};

QByteArray FileBytes(const QString& name) {
  QFile file(name);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

TEST_F(CrosswordDesktop, TheQuickPrintWritesAnUprightPage) {
  MakePuzzle();
  QTemporaryDir folder;
  const QString file = folder.filePath("puzzle.pdf");
  PdfPlatform printer(desktop_->loop(), desktop_->windows(), file);
  EXPECT_EQ(printer.StartPages()->PageSize(), (Size{12240, 15840}));
  PrintCrossword(printer, *forms().Find<CrossWordFill>(Screen::CrossWordFill), "Computers");
  const QByteArray pdf = FileBytes(file);
  EXPECT_TRUE(pdf.startsWith("%PDF"));
  const auto box = pdf.indexOf("/MediaBox [");
  EXPECT_TRUE(pdf.mid(box, 40).startsWith("/MediaBox [0 0 612.0"))
      << pdf.mid(box, 40).toStdString();
  EXPECT_GE(pdf.count("/Type /Page\n"), 1);
}

TEST_F(CrosswordDesktop, TheSolvedGridIsPrintedOnAPageOfItsOwn) {
  MakePuzzle();
  QTemporaryDir folder;
  const QString file = folder.filePath("key.pdf");
  PdfPlatform printer(desktop_->loop(), desktop_->windows(), file);
  PrintPicture(printer, *forms().Find(Screen::CrossWord));
  const QByteArray pdf = FileBytes(file);
  EXPECT_EQ(pdf.count("/Type /Page\n"), 1);
  EXPECT_TRUE(pdf.contains("/Subtype /Image"));
}

TEST_F(CrosswordDesktop, PagesThatNothingCanBeWrittenToFailAsAPrinterDoes) {
  QPrinter printer;
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName("no such folder/puzzle.pdf");
  EXPECT_THROW(QtPages{printer}, RunTimeError);
}

}  // namespace
}  // namespace brindlepage
