// Files at fault on real widgets: what the logic's tests of faults can't see.

#include <QAbstractButton>
#include <QBuffer>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QImage>
#include <QLineEdit>
#include <QPointer>
#include <QPrintDialog>
#include <QPrinter>

#include "desktop/decode_picture.h"
#include "desktop/qt_pages.h"
#include "tests/bitmaps.h"
#include "tests/desktop_fixture.h"
#include "tests/expect_fault.h"
#include "tests/faults/full_disk.h"
#include "worksheet/study_guide_form.h"

namespace brindlepage {
namespace {

namespace fs = std::filesystem;

std::string Encoded(const char* format) {
  QImage image(40, 30, QImage::Format_RGB32);
  image.fill(Qt::red);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  EXPECT_TRUE(image.save(&buffer, format)) << format;
  return bytes.toStdString();
}

TEST(DecodePicture, CutAtAnyByteAPictureDoesNoHarm) {
  for (const std::string& whole :
       {Encoded("JPG"), Encoded("PNG"), Encoded("ICO"), BitmapFile(9, 9), BitmapFile(9, -9),
        OldBitmapFile(9, 9), BitmapFile(9, 9).substr(14)}) {
    EXPECT_FALSE(DecodePicture(whole).isNull());
    for (std::size_t size = 0; size < whole.size(); ++size) {
      const QImage image = DecodePicture(std::string_view(whole).substr(0, size));
      EXPECT_TRUE(size >= 16 || image.isNull()) << size;
    }
  }
}

class FaultsDesktop : public DesktopTest {
 protected:
  QString Path(const std::string& name) {
    return QString::fromStdString((folder_.Path() / name).string());
  }
  void GoToAlphabetizeSheet() {
    UseOneList(5);
    Start();
    Click("Title", "Command4");
    ClickRow("ChooseList", "TheLists", 0);
    Click("ChooseList", "Command1");
    Click("QuizOptions5", "Command1");
    Click("PickWords", "ChooseRandom");
    Click("PickWords", "Command2");
    ASSERT_EQ(Active(), "QuizForm");
  }
  // From now on each box is noted and gets its first answer. Prints go to 1.pdf, 2.pdf.
  void Answer() {
    OnBoxes([this](QDialog& box) {
      if (&box == answered_) return;
      answered_ = &box;
      if (auto* print = qobject_cast<QPrintDialog*>(&box)) return PrintIntoFile(*print);
      const auto* text = box.findChild<QLabel*>("Text");
      boxes_ << box.windowTitle() + "|" + (text == nullptr ? QString() : text->text());
      for (const char* button : {"OK", "Yes"}) {
        if (auto* shown = box.findChild<QPushButton*>(button)) {
          return QTest::mouseClick(shown, Qt::LeftButton);
        }
      }
    });
  }
  void PrintIntoFile(QPrintDialog& dialog) {
    boxes_ << "print";
    dialog.findChild<QLineEdit*>("filename")->setText(Path(std::to_string(++prints_) + ".pdf"));
    auto* ok = dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
    QTimer::singleShot(0, ok, [ok] { QTest::mouseClick(ok, Qt::LeftButton); });
  }

  QPointer<QDialog> answered_;
  int prints_ = 0;
};

// --- A full disk

class APrintOnAFullDisk : public FaultsDesktop, public testing::WithParamInterface<std::size_t> {};

TEST_P(APrintOnAFullDisk, EndsItWithoutAWord) {
  GoToAlphabetizeSheet();
  Answer();
  {
    const FullDisk disk(GetParam());
    ClickTool("QuizForm", "Print");
  }
  EXPECT_EQ(boxes_, QStringList{"print"});
  EXPECT_FALSE(program().Ended());
  EXPECT_EQ(Active(), "QuizForm");
  EXPECT_LE(fs::file_size("1.pdf"), GetParam());
}

INSTANTIATE_TEST_SUITE_P(OfBytes, APrintOnAFullDisk, testing::Values(0, 1, 500, 4000));

TEST_F(FaultsDesktop, APrintThatIsWholeIsToldAsSent) {
  GoToAlphabetizeSheet();
  Answer();
  ClickTool("QuizForm", "Print");
  ASSERT_FALSE(boxes_.isEmpty());
  EXPECT_EQ(boxes_.back(), "Activity Printed|This activity has been sent to your printer.");
}

TEST_F(FaultsDesktop, PagesOnAFullDiskFailAsAFullDiskDoes) {
  QPrinter printer;
  printer.setOutputFileName(Path("pages.pdf"));
  QtPages pages(printer);
  pages.DrawBox({100, 100, 1000, 1000});
  const FullDisk disk(100);
  EXPECT_FAULT(61, pages.EndDoc());
}

TEST_F(FaultsDesktop, ASaveOnAFullDiskShowsTheRunTimesMessageAndEndsTheProgram) {
  GoToAlphabetizeSheet();
  Answer();
  {
    const FullDisk disk(100);
    ClickTool("QuizForm", "Save");
  }
  EXPECT_EQ(boxes_.back(), "Brindlepage|Run-time error '61':\n\nDisk full");
  EXPECT_TRUE(program().Ended());
  EXPECT_EQ(program().Status(), 1);
}

// --- A start without its files

TEST_F(FaultsDesktop, AFolderThatIsGoneIsToldBeforeThereIsAScreen) {
  fs::remove_all(folder_.Path());
  Answer();
  Start();
  EXPECT_EQ(boxes_, QStringList{"Brindlepage|Run-time error '76':\n\nPath not found"});
  EXPECT_TRUE(program().Ended());
  EXPECT_EQ(program().Status(), 1);
}

TEST_F(FaultsDesktop, SettingsThatAreGoneAreToldAndEndTheProgram) {
  fs::remove("brindlepage.dat");
  Answer();
  Start();
  ASSERT_EQ(boxes_.size(), 1);
  EXPECT_TRUE(boxes_[0].startsWith("Error!|Some required files cannot be found by the program."));
  EXPECT_TRUE(program().Ended());
  EXPECT_EQ(program().Status(), 0);
}

// --- Pictures that are cut

TEST_F(FaultsDesktop, ACutPictureOfTheMenuLeavesItWithoutOne) {
  const std::string whole = folder_.Read("titleback.jpg");
  for (const std::size_t size :
       {std::size_t{3}, std::size_t{40}, std::size_t{700}, whole.size() / 2, whole.size() - 1}) {
    folder_.Write("titleback.jpg", whole.substr(0, size));
    folder_.Write("brindlepagebackground.jpg", whole.substr(0, size));
    Start();
    EXPECT_EQ(Active(), "Title") << size;
    Click("Title", "Command1", 4);
    EXPECT_EQ(Active(), "ChooseList") << size;
    EXPECT_FALSE(main().grab().isNull());
    desktop_.reset();
  }
}

TEST_F(FaultsDesktop, ACutPictureIsShownAndAddedOrIsAnInvalidOne) {
  const std::string whole = BitmapFile(40, 30);
  for (const std::size_t size :
       {std::size_t{2}, std::size_t{30}, std::size_t{54}, std::size_t{200}, whole.size() - 1}) {
    SCOPED_TRACE(size);
    folder_.Write("sun.bmp", whole.substr(0, size));
    boxes_.clear();
    GoToAlphabetizeSheet();
    Answer();
    ClickTool("QuizForm", "Clipart");
    ClickRow("AddPic", "File1", 0);
    const bool shown = !DecodePicture(whole.substr(0, size)).isNull();
    if (shown) {
      Click("AddPic", "Command1");
      EXPECT_EQ(Active(), "QuizForm");
      EXPECT_FALSE(main().grab().isNull());
    } else {
      EXPECT_EQ(boxes_, QStringList{"Brindlepage|Run-time error '481':\n\nInvalid picture"});
      EXPECT_EQ(program().Status(), 1);
    }
    StopWatching();
    desktop_.reset();
  }
}

// --- Word processors that can't be named

class AProgramsName : public FaultsDesktop, public testing::WithParamInterface<const char*> {};

TEST_P(AProgramsName, ThatTheSettingsCannotHoldIsNotTaken) {
  const fs::path file = folder_.Path() / GetParam();
  folder_.Write(file, "#!/bin/sh\n");
  fs::permissions(file, fs::perms::owner_all);
  Start();
  const std::string started = folder_.Read("brindlepage.dat");
  ClickTool("Title", "Opts");
  Click("ProgramOptions", "Command5");
  OnBoxes([&file](QDialog& box) {
    auto* dialog = qobject_cast<QFileDialog*>(&box);
    if (dialog == nullptr) return QTest::mouseClick(box.findChild<QPushButton*>(), Qt::LeftButton);
    dialog->selectFile(QString::fromStdU32String(file.u32string()));
    static_cast<QDialog*>(dialog)->accept();
  });
  QTest::mouseClick(Widget("QuickWordOption", "Label1"), Qt::LeftButton);
  Settle(300);
  StopWatching();
  EXPECT_FALSE(program().Ended());
  EXPECT_FALSE(Widget<QAbstractButton>("QuickWordOption", "Checks1")->isChecked());
  EXPECT_EQ(folder_.Read("brindlepage.dat"), started);
}

INSTANTIATE_TEST_SUITE_P(OfAFile, AProgramsName,
                         testing::Values("\xE4\xBD\x9C\xE5\xAE\xB6", "two\nlines"));

}  // namespace
}  // namespace brindlepage
