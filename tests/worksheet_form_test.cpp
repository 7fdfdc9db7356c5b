#include "worksheet/worksheet_form.h"

#include "tests/teacher.h"
#include "toolkit/code_page.h"
#include "worksheet/study_guide_form.h"

namespace brindlepage {
namespace {

// A worksheet form of the plain kind, with a key.
class Sheet : public WorksheetForm {
 public:
  Sheet(Program& owner, const WorksheetDesign& design) : WorksheetForm(owner, design) {}
  using WorksheetForm::ShowKeyView;

 private:
  void Load() override {
    PrepareWorksheet();
    QuizBox.Text("");
    QuizBox.SelFontName("Times New Roman");
    QuizBox.SelFontSize(12);
    compose::AppendRun(QuizBox, "Mars is the red planet\n");
    AnswerBox.Text("the key");
    FinishWorksheetLoad();
  }
};

class WorksheetFormTest : public Teacher {
 protected:
  void Open(WorksheetDesign design = {}) {
    shared.ProgramDir = files::WorkingDirectory();
    design.id = Screen::QuizForm;
    design.name = "QuizForm";
    design.caption = "Quiz Form";
    design_ = design;
    desk.Dispatch([&] { desk.forms().Show(Screen::QuizForm); });
    sheet = desk.forms().Find<Sheet>(Screen::QuizForm);
  }
  void Press(Control& control) {
    desk.Dispatch([&] { control.UserClick(); });
  }
  void Toolbar(const char* caption) {
    desk.Dispatch([&] { sheet->Toolbar1.ButtonClick(*sheet->Toolbar1.FindCaption(caption)); });
  }
  void SelectText(int start, int length) {
    desk.Dispatch([&] {
      sheet->QuizBox.SelStart(start);
      sheet->QuizBox.SelLength(length);
    });
  }

  WorksheetDesign design_;
  Program desk{platform, random, [this](Screen id) -> std::unique_ptr<Form> {
                 if (id == Screen::QuizForm) return std::make_unique<Sheet>(desk, design_);
                 return MakeForm(id, desk);
               }};
  SharedState& shared = desk.shared;
  Sheet* sheet = nullptr;
};

TEST_F(WorksheetFormTest, TheFormComesUpMaximisedWithTheCaretAt1) {
  Open();
  EXPECT_EQ(sheet->WindowState, kMaximised);
  EXPECT_EQ(sheet->QuizBox.SelStart(), 1);
  EXPECT_EQ(sheet->cmbFontColor.Text(), "Black");
  EXPECT_EQ(sheet->cmbFontName.Text(), "Times New Roman");
  EXPECT_EQ(sheet->cmbFontSize.Text(), "12");
  EXPECT_TRUE(sheet->QuizBox.Visible);
  EXPECT_FALSE(sheet->AnswerBox.Visible);
  EXPECT_FALSE(sheet->Toolbar1.Button(4).Enabled);
}

TEST_F(WorksheetFormTest, TheFontBarOffersSizesFrom8To72AndFourColours) {
  Open();
  EXPECT_EQ(sheet->cmbFontSize.ListCount(), 33);
  EXPECT_EQ(sheet->cmbFontSize.List(0), "8");
  EXPECT_EQ(sheet->cmbFontSize.List(32), "72");
  EXPECT_EQ(sheet->cmbFontColor.ListCount(), 4);
  EXPECT_EQ(sheet->cmbFontColor.List(3), "Green");
  EXPECT_EQ(sheet->cmbFontName.List(0), "Arial");
}

TEST_F(WorksheetFormTest, FillingTheFontBarLeavesTheDocumentsLook) {
  Open();
  for (int i = 0; i < sheet->QuizBox.Length(); ++i) {
    EXPECT_EQ(sheet->QuizBox.FormatAt(i).font, "Times New Roman");
    EXPECT_EQ(sheet->QuizBox.FormatAt(i).size, 240);
  }
}

TEST_F(WorksheetFormTest, TheToolbarsButtonsStandInTheirOrder) {
  Open();
  const char* const captions[] = {"Print", "Clipart", "Save", "QuickWord", "Key", "Quit"};
  const char* const tips[] = {"Print Activity",
                              "Add Clipart",
                              "Save as File",
                              "Open in Word Processor",
                              "Switch Views Beween Worksheet and Answer Key",
                              "Exit Brindlepage"};
  ASSERT_EQ(sheet->Toolbar1.ButtonCount(), 6);
  for (int number = 1; number <= 6; ++number) {
    EXPECT_EQ(sheet->Toolbar1.Button(number).Caption(), captions[number - 1]);
    EXPECT_EQ(sheet->Toolbar1.Button(number).ToolTipText(), tips[number - 1]);
  }
}

TEST_F(WorksheetFormTest, QuickWordIsEnabledWhenAWordProcessorIsSet) {
  shared.QuickWordEnabled = true;
  Open();
  EXPECT_TRUE(sheet->Toolbar1.Button(4).Enabled);
}

TEST_F(WorksheetFormTest, TheCaretInBlackTextLeavesTheColourBlankAndInBlueShowsBlue) {
  Open();
  SelectText(5, 2);
  desk.Dispatch([&] { sheet->cmbFontColor.PickRow(1); });
  EXPECT_EQ(sheet->QuizBox.FormatAt(5).color, 0xFF0000u);
  SelectText(6, 0);
  EXPECT_EQ(sheet->cmbFontColor.Text(), "Blue");
  SelectText(3, 0);
  EXPECT_EQ(sheet->cmbFontColor.Text(), "");
  EXPECT_EQ(sheet->cmbFontColor.ListIndex, -1);
}

TEST_F(WorksheetFormTest, AMixedSelectionLeavesTheBarAlone) {
  Open();
  SelectText(0, 4);
  desk.Dispatch([&] {
    sheet->QuizBox.SelColor(255);
    sheet->QuizBox.SelFontSize(20);
  });
  SelectText(2, 0);
  EXPECT_EQ(sheet->cmbFontColor.Text(), "Red");
  EXPECT_EQ(sheet->cmbFontSize.Text(), "20");
  SelectText(2, 6);
  EXPECT_EQ(sheet->cmbFontColor.Text(), "Red");
  EXPECT_EQ(sheet->cmbFontSize.Text(), "20");
}

TEST_F(WorksheetFormTest, AnyOtherColourLeavesTheColourBoxAlone) {
  Open();
  SelectText(0, 4);
  desk.Dispatch([&] { sheet->QuizBox.SelColor(65280); });
  SelectText(8, 4);
  desk.Dispatch([&] { sheet->QuizBox.SelColor(0x123456); });
  SelectText(2, 0);
  EXPECT_EQ(sheet->cmbFontColor.Text(), "Green");
  SelectText(10, 0);
  EXPECT_EQ(sheet->cmbFontColor.Text(), "Green");
}

TEST_F(WorksheetFormTest, OddSizesAreShownThoughNeverOffered) {
  Open();
  SelectText(0, 4);
  desk.Dispatch([&] { sheet->QuizBox.SelFontSize(9.75); });
  SelectText(2, 0);
  EXPECT_EQ(sheet->cmbFontSize.Text(), "9.75");
  EXPECT_EQ(sheet->cmbFontSize.ListIndex, -1);
}

TEST_F(WorksheetFormTest, BoldOnAHalfBoldSelectionMakesAllOfItBoldAndThenPlain) {
  Open();
  SelectText(0, 4);
  Press(sheet->BoldButton);
  SelectText(0, 8);
  EXPECT_EQ(sheet->QuizBox.SelBold(), std::nullopt);
  Press(sheet->BoldButton);
  EXPECT_EQ(sheet->QuizBox.SelBold(), true);
  Press(sheet->BoldButton);
  EXPECT_EQ(sheet->QuizBox.SelBold(), false);
}

TEST_F(WorksheetFormTest, ItalicAndUnderlineTurnTheSelection) {
  Open();
  SelectText(0, 4);
  Press(sheet->ItalicButton);
  Press(sheet->UnderlineButton);
  EXPECT_TRUE(sheet->QuizBox.FormatAt(0).italic);
  EXPECT_TRUE(sheet->QuizBox.FormatAt(3).underline);
  EXPECT_FALSE(sheet->QuizBox.FormatAt(4).italic);
}

TEST_F(WorksheetFormTest, TheFontCombosSetTheSelectionAndGiveTheFocusBack) {
  Open();
  SelectText(0, 4);
  sheet->cmbFontName.SetFocus();
  desk.Dispatch([&] { sheet->cmbFontName.PickRow(0); });
  EXPECT_TRUE(sheet->QuizBox.HasFocus());
  desk.Dispatch([&] { sheet->cmbFontSize.PickRow(4); });
  EXPECT_EQ(sheet->QuizBox.FormatAt(0).font, "Arial");
  EXPECT_EQ(sheet->QuizBox.FormatAt(0).size, 320);
  EXPECT_EQ(sheet->QuizBox.FormatAt(4).font, "Times New Roman");
}

TEST_F(WorksheetFormTest, ATypedSizeIsTakenAndWhatIsNoSizeIsRefusedWithABeep) {
  Open();
  SelectText(0, 4);
  desk.Dispatch([&] { sheet->cmbFontSize.Type(U"13.5"); });
  EXPECT_EQ(sheet->QuizBox.FormatAt(0).size, 270);
  for (const char32_t* text : {U"", U"big", U"12x", U"0", U"-3", U"99999"}) {
    desk.Dispatch([&] { sheet->cmbFontSize.Type(text); });
    EXPECT_EQ(sheet->QuizBox.FormatAt(0).size, 270) << code_page::UnicodeToUtf8(text);
    EXPECT_EQ(sheet->cmbFontSize.Text(), "13.5") << code_page::UnicodeToUtf8(text);
  }
  EXPECT_EQ(platform.log.size(), 6u);
  EXPECT_FALSE(desk.Ended());
}

TEST_F(WorksheetFormTest, TheKeyButtonSwitchesTheViewsByItsCaption) {
  Open();
  Toolbar("Key");
  EXPECT_FALSE(sheet->QuizBox.Visible);
  EXPECT_TRUE(sheet->AnswerBox.Visible);
  EXPECT_EQ(sheet->Toolbar1.Button(5).Caption(), "Worksheet");
  Toolbar("Worksheet");
  EXPECT_TRUE(sheet->QuizBox.Visible);
  EXPECT_FALSE(sheet->AnswerBox.Visible);
  EXPECT_EQ(sheet->Toolbar1.Button(5).Caption(), "Key");
}

TEST_F(WorksheetFormTest, InKeyViewTheFontBarChangesTheHiddenWorksheet) {
  Open();
  SelectText(0, 4);
  Toolbar("Key");
  Press(sheet->BoldButton);
  EXPECT_TRUE(sheet->QuizBox.FormatAt(0).bold);
  EXPECT_FALSE(sheet->AnswerBox.FormatAt(0).bold);
}

TEST_F(WorksheetFormTest, AFormDraggedSmallKeepsItsBoxSizes) {
  Open();
  desk.Dispatch([&] { desk.forms().Resize(*sheet, 9000, 6000); });
  EXPECT_EQ(sheet->QuizBox.Width, 8950);
  EXPECT_EQ(sheet->QuizBox.Height, 6000 - sheet->Toolbar1.Height - 650);
  EXPECT_EQ(sheet->AnswerBox.Width, 8950);
  EXPECT_EQ(sheet->AnswerBox.Height, sheet->QuizBox.Height);
  for (const auto& [width, height] : {std::pair{9000, 2000}, std::pair{1000, 6000}}) {
    desk.Dispatch([&, w = width, h = height] { desk.forms().Resize(*sheet, w, h); });
    EXPECT_EQ(sheet->QuizBox.Width, 8950);
    EXPECT_EQ(sheet->QuizBox.Height, 6000 - sheet->Toolbar1.Height - 650);
  }
  desk.Dispatch([&] { desk.forms().Resize(*sheet, 1001, 2001); });
  EXPECT_EQ(sheet->QuizBox.Width, 951);
}

TEST_F(WorksheetFormTest, AnUnguardedFormMayGetNegativeSizes) {
  Open({.resize_guarded = false});
  desk.Dispatch([&] { desk.forms().Resize(*sheet, 40, 40); });
  EXPECT_EQ(sheet->QuizBox.Width, -10);
  EXPECT_LT(sheet->QuizBox.Height, 0);
}

TEST_F(WorksheetFormTest, TheCrosswordsKeyBoxFollowsTheWorksheet) {
  Open({.key_font = "Courier New",
        .key_points = 9.75,
        .has_answer_box1 = true,
        .resize_margin = 350});
  desk.Dispatch([&] { desk.forms().Resize(*sheet, 9000, 6000); });
  ASSERT_NE(sheet->AnswerBox1, nullptr);
  EXPECT_FALSE(sheet->AnswerBox1->Visible);
  EXPECT_EQ(sheet->AnswerBox1->Height, 6000 - sheet->Toolbar1.Height - 350);
  EXPECT_EQ(sheet->AnswerBox1->Width, 8950);
  EXPECT_EQ(sheet->AnswerBox.Width, 0);
  EXPECT_EQ(sheet->AnswerBox1->DesignFormat().font, "Courier New");
}

TEST_F(WorksheetFormTest, QuitOnTheToolbarEndsTheProgram) {
  Open();
  Toolbar("Quit");
  EXPECT_TRUE(desk.Ended());
}

TEST_F(WorksheetFormTest, TheMenuLeadsBackToTheMenuAndToTheOptions) {
  Open({.has_back_to_options = true});
  Press(*sheet->FindControl("QZBack"));
  EXPECT_EQ(desk.forms().Active()->id(), Screen::QuizOptions);
  EXPECT_EQ(desk.forms().Find(Screen::QuizForm), nullptr);
  Open();
  Press(*sheet->FindControl("Back"));
  EXPECT_EQ(desk.forms().Active()->id(), Screen::Title);
}

TEST_F(WorksheetFormTest, AboutOpensOnlyWhereItHasAHandler) {
  Open();
  Press(*sheet->FindControl("About"));
  EXPECT_EQ(desk.forms().Active()->id(), Screen::AboutForm);
  desk.Dispatch([&] { desk.forms().Unload(Screen::QuizForm); });
  Open({.about_caption = "About this program", .about_opens = false});
  Press(*sheet->FindControl("About"));
  EXPECT_EQ(desk.forms().Active()->id(), Screen::QuizForm);
}

TEST_F(WorksheetFormTest, AFormWithoutMenusHasNone) {
  Open({.has_menus = false});
  EXPECT_EQ(sheet->FindControl("Back"), nullptr);
  EXPECT_EQ(sheet->FindControl("Help"), nullptr);
}

TEST_F(WorksheetFormTest, AMissingBackgroundEndsTheProgram) {
  std::filesystem::remove("brindlepagebackground.jpg");
  Open();
  EXPECT_EQ(platform.log, std::vector<std::string>{"error 53 File not found"});
}

TEST_F(WorksheetFormTest, ABoxThatNothingFilledHoldsItsDesignText) {
  Open({.has_answer_box1 = true});
  EXPECT_EQ(sheet->AnswerBox1->PlainText(), U"RichTextBox1");
}

}  // namespace
}  // namespace brindlepage
