#include <gtest/gtest.h>

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QDialog>
#include <QPushButton>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextLayout>
#include <QTimer>
#include <QtTest/QTest>
#include <filesystem>

#include "desktop/desktop_random.h"
#include "desktop/loop.h"
#include "desktop/qt_platform.h"
#include "desktop/rich_text_view.h"
#include "desktop/windows.h"
#include "program/screens.h"
#include "quiz/quiz_form.h"
#include "tests/printed_pages.h"
#include "tests/temp_folder.h"

namespace brindlepage {
namespace {

// Dots from one character of 10 points to the next.
constexpr double kPitch = 10 * 0.6 * RichTextLayout::kDotsPerInch / 72;

// The program on the desktop with a clock of the test's own, on its way to a quiz.
class QuizDesktop : public testing::Test {
 protected:
  QuizDesktop() {
    std::filesystem::copy(PROGRAM_FOLDER, folder_.Path(), std::filesystem::copy_options::recursive);
    loop_.Attach(program_);
    QObject::connect(&loop_, &Loop::HandlerBegins, [this] { random_.BeginHandler(); });
  }
  // The windows go before the forms that they show.
  ~QuizDesktop() override { windows_.reset(); }

  void Click(const std::string& form_name, const std::string& name, int index = -1) {
    for (const auto& form : program_.forms().Loaded()) {
      if (form->Name() != form_name) continue;
      Control* control = form->FindControl(name, index);
      ASSERT_NE(control, nullptr) << name;
      return loop_.Act(*control, [&] { control->UserClick(); });
    }
    FAIL() << "not loaded: " << form_name;
  }

  // From the menu to the finished sheet, with all words of a list of that many.
  void MakeQuiz(const std::string& option, int words) {
    std::string lines = "Everything\r\n";
    for (int i = 1; i <= words; ++i) {
      const std::string number = std::to_string(i);
      lines += "word" + number + "\r\nmeaning " + number + "\r\n";
    }
    folder_.Write("TheLists.dat", lines);
    if (program_.forms().Find(Screen::Title) == nullptr) program_.Start();
    Click("Title", "Command1", kQuiz);
    auto* lists =
        dynamic_cast<ListBox*>(program_.forms().Find(Screen::ChooseList)->FindControl("TheLists"));
    loop_.Act(*lists, [&] { lists->ClickRow(0); });
    Click("ChooseList", "Command1");
    Click("QuizOptions3", option);
    Click("QuizOptions3", "Command1");
    Click("QuizOptions5", "Command1");
    Click("PickWords", "ChooseRandom");
    Click("PickWords", "Command2");
    windows_->Flush();
  }

  RichTextBox& Sheet() { return program_.forms().Find<QuizForm>(Screen::QuizForm)->QuizBox; }
  RichTextView& View() {
    FormView* form = windows_->Find(Sheet().form());
    auto* view = dynamic_cast<RichTextView*>(form->Find(Sheet())->widget());
    view->Mirror();
    view->document().documentLayout()->documentSize();  // lays out what is not yet
    return *view;
  }
  // Where a text stands in each of the paragraphs that hold it, in dots.
  std::vector<double> PlacesOf(const QString& text, const RichTextView& view) {
    std::vector<double> places;
    for (QTextBlock b = view.document().begin(); b.isValid(); b = b.next()) {
      const int at = static_cast<int>(b.text().indexOf(text));
      if (at >= 0) places.push_back(b.layout()->lineForTextPosition(at).cursorToX(at));
    }
    return places;
  }
  // The blanks at the end of the sheet.
  int Tail() {
    int end = Sheet().Length();
    while (end > 0 && Sheet().CharacterAt(end - 1) == U' ') --end;
    return Sheet().Length() - end;
  }

  TempFolder folder_;
  Milliseconds now_ = 0;
  Milliseconds step_ = 0;  // by which each look at the clock finds it later
  Loop loop_;
  std::unique_ptr<Windows> windows_ = std::make_unique<Windows>(loop_);
  QtPlatform platform_{loop_, *windows_};
  DesktopRandom random_{[this] { return now_ += step_; },
                        [this] {
                          if (!platform_.AskToWait()) program_.End();
                        }};
  BrindlepageProgram program_{platform_, random_};
};

TEST_F(QuizDesktop, TheChoicesStandInStraightColumnsInTheWindow) {
  MakeQuiz("MC", 120);
  for (const auto& [letter, column] :
       {std::pair("A) ", 10), {"B) ", 40}, {"C) ", 10}, {"D) ", 40}}) {
    const std::vector<double> places = PlacesOf(letter, View());
    EXPECT_EQ(places.size(), 120u) << letter;
    for (const double place : places) ASSERT_NEAR(place, column * kPitch, 2) << letter;
  }
}

TEST_F(QuizDesktop, TheWordsOfABankStandInStraightColumnsInTheWindow) {
  for (const char* option : {"FillYes", "Match"}) {
    MakeQuiz(option, 100);
    const RichTextView& view = View();
    int rows = 0;
    for (QTextBlock b = view.document().begin(); b.isValid(); b = b.next()) {
      if (!b.text().startsWith(u' ') || !b.text().contains("word")) continue;
      ++rows;
      EXPECT_EQ(b.layout()->lineCount(), 1);
      for (const int column : {1, 26, 51, 76}) {
        EXPECT_NE(b.text()[column + (b.text()[column] == u' ')], u' ');
        ASSERT_NEAR(b.layout()->lineAt(0).cursorToX(column), column * kPitch, 2);
      }
    }
    EXPECT_EQ(rows, 25);
    Click("QuizForm", "Back");
  }
}

TEST_F(QuizDesktop, TheBlanksAtTheEndTakeNoLineAndNoWidth) {
  for (const auto& [option, words] : {std::pair("MC", 6),
                                      {"MC", 20},
                                      {"MC", 60},
                                      {"MC", 240},
                                      {"Match", 1},
                                      {"Match", 300},
                                      {"FillYes", 1},
                                      {"FillYes", 4},
                                      {"FillYes", 60},
                                      {"FillYes", 300}}) {
    SCOPED_TRACE(std::string(option) + std::to_string(words));
    MakeQuiz(option, words);
    const RichTextView& view = View();
    EXPECT_GE(Tail(), 69);
    EXPECT_EQ(view.document().lastBlock().layout()->lineCount(), 1);
    EXPECT_LE(view.document().size().width(), RichTextLayout::kColumnWidth + 3);
    Click("QuizForm", "Back");
  }
}

// --- On paper.

class PrintedQuiz : public QuizDesktop {
 protected:
  void Print(int start = 0, int length = 0) { pages::Print(Sheet(), file_, start, length); }
  int Pages() {
    const QRegularExpression count("Pages:\\s+(\\d+)");
    return count.match(pages::Ask("pdfinfo", {file_})).captured(1).toInt();
  }
  // Where the words of that look begin on paper, in points.
  std::vector<double> PlacesOf(const QString& word) {
    std::vector<double> places;
    const QRegularExpression line("<word xMin=\"([0-9.]+)\"[^>]*>" + word + "</word>");
    auto matches = line.globalMatch(pages::Ask("pdftotext", {"-bbox", file_, "-"}));
    while (matches.hasNext()) places.push_back(matches.next().captured(1).toDouble());
    return places;
  }

 private:
  QTemporaryDir paper_;
  QString file_ = paper_.filePath("quiz.pdf");
};

TEST_F(PrintedQuiz, TheChoicesStandInStraightColumns) {
  MakeQuiz("MC", 60);
  Print();
  // The column of 7.5 inches begins half an inch from the left; a character is 6 points wide.
  for (const auto& [letter, column] : {std::pair("A", 10), {"B", 40}, {"C", 10}, {"D", 40}}) {
    const std::vector<double> places = PlacesOf(QString(letter) + "\\)");
    EXPECT_EQ(places.size(), 60u) << letter;
    for (const double place : places) ASSERT_NEAR(place, 36 + 6 * column, 1.5) << letter;
  }
}

TEST_F(PrintedQuiz, TheBlanksAtTheEndTakeNoPage) {
  for (const auto& [option, words] :
       {std::pair("MC", 6), {"MC", 12}, {"MC", 60}, {"MC", 240}, {"Match", 12}, {"FillYes", 300}}) {
    SCOPED_TRACE(std::string(option) + std::to_string(words));
    MakeQuiz(option, words);
    Print();
    const int pages = Pages();
    Print(0, Sheet().Length() - Tail() - 1);
    EXPECT_GE(pages, 1);
    EXPECT_EQ(pages, Pages());
    Click("QuizForm", "Back");
  }
}

// --- Draws without end.

// Each look at the clock finds it six seconds later, so that every third asks the teacher.
TEST_F(QuizDesktop, AQuizOfFourWordsReachesTheWaitingBoxAndCanBeClosed) {
  int asked = 0;
  QTimer boxes;
  QObject::connect(&boxes, &QTimer::timeout, [&] {
    auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (box == nullptr) return;
    EXPECT_EQ(box->windowTitle(), "Brindlepage");
    QTest::mouseClick(box->findChild<QPushButton*>(++asked == 1 ? "Wait" : "Close the program"),
                      Qt::LeftButton);
  });
  boxes.start(20);
  step_ = 6000;
  MakeQuiz("MC", 4);
  EXPECT_EQ(asked, 2);
  EXPECT_TRUE(program_.Ended());
  EXPECT_EQ(program_.Status(), 0);
}

TEST_F(QuizDesktop, AQuizOfThreeMeaningsReachesTheWaitingBoxToo) {
  int asked = 0;
  QTimer boxes;
  QObject::connect(&boxes, &QTimer::timeout, [&] {
    auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (box == nullptr) return;
    ++asked;
    QTest::mouseClick(box->findChild<QPushButton*>("Close the program"), Qt::LeftButton);
  });
  boxes.start(20);
  step_ = 6000;
  MakeQuiz("MC2", 3);
  EXPECT_EQ(asked, 1);
  EXPECT_TRUE(program_.Ended());
}

}  // namespace
}  // namespace brindlepage
