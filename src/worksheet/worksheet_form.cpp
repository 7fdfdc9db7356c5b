#include "worksheet/worksheet_form.h"

#include <charconv>

namespace brindlepage {

namespace {

struct NamedColor {
  const char* name;
  std::uint32_t value;  // blue, green, red
};
// In the order of the list.
constexpr NamedColor kColors[] = {{"Black", 0}, {"Blue", 0xFF0000}, {"Red", 255}, {"Green", 65280}};

constexpr int kSmallestSize = 8;
constexpr int kLargestSize = 72;

// "10", or "9.75".
std::string SizeText(double points) {
  char digits[32];
  const auto end = std::to_chars(digits, digits + sizeof digits, points).ptr;
  return std::string(digits, end);
}

}  // namespace

WorksheetForm::WorksheetForm(Program& owner, const WorksheetDesign& design)
    : ProgramForm(owner, design.id, design.name, design.caption),
      AnswerBox(*this, "AnswerBox", design.key_font, design.key_points),
      design_(design) {
  if (design_.has_answer_box1) {
    AnswerBox1 =
        std::make_unique<RichTextBox>(*this, "AnswerBox1", design_.key_font, design_.key_points);
  }
  AnswerBox.Visible = false;
  KeyBox().Visible = false;
  AddToolbarButtons();
  if (design_.has_menus) AddMenus();
  ConnectFontBar();
  QuizBox.SetFocus();
  Arrange(Column(Toolbar1, FontBar(), Fill(QuizBox), Fill(KeyBox())));
}

void WorksheetForm::AddToolbarButtons() {
  Toolbar1.Add("Print", "print", "Print Activity", "print");
  Toolbar1.Add("Clipart", "clipart", "Add Clipart", "clipart");
  Toolbar1.Add("Save", "export", "Save as File", "save");
  Toolbar1.Add("QuickWord", "qw", "Open in Word Processor", "word-processor").Enabled = false;
  if (design_.has_key_button) Toolbar1.Add("Key", "", design_.key_tool_tip, "key");
  Toolbar1.Add("Quit", "quit", "Exit Brindlepage", "quit");
  Toolbar1.ButtonClick = [this](ToolbarButton& button) { ToolbarClick(button.Caption); };
}

void WorksheetForm::AddMenus() {
  Go = std::make_unique<Menu>(*this, "Go", "Go");
  if (design_.has_back_to_options) {
    QZBack = std::make_unique<MenuItem>(*Go, "QZBack", "Back to Quiz Options");
    QZBack->Click = [this] { StepTo(Screen::QuizOptions); };
  }
  Back = std::make_unique<MenuItem>(*Go, "Back", "Back to Main Screen");
  Back->Click = [this] { BackToMenu(); };
  Quit = std::make_unique<MenuItem>(*Go, "Quit", "Quit");
  Quit->Click = [this] { runtime().End(); };
  Help = std::make_unique<Menu>(*this, "Help", "Help");
  About = std::make_unique<MenuItem>(*Help, "About", design_.about_caption);
  if (design_.about_opens) About->Click = [this] { forms().Show(Screen::AboutForm); };
}

void WorksheetForm::ConnectFontBar() {
  cmbFontName.Click = [this] { SetFontName(); };
  cmbFontSize.Click = [this] { SetFontSize(); };
  cmbFontColor.Click = [this] { SetFontColor(); };
  BoldButton.Click = [this] { QuizBox.SelBold(!QuizBox.SelBold().value_or(false)); };
  ItalicButton.Click = [this] { QuizBox.SelItalic(!QuizBox.SelItalic().value_or(false)); };
  UnderlineButton.Click = [this] { QuizBox.SelUnderline(!QuizBox.SelUnderline().value_or(false)); };
}

Arrangement WorksheetForm::FontBar() {
  return Row(Wide(24, cmbFontName), Wide(5, cmbFontSize), Wide(8, cmbFontColor), Gap(), BoldButton,
             ItalicButton, UnderlineButton, Spring());
}

void WorksheetForm::PrepareWorksheet() {
  CentreForm();
  LoadBackground();
  KeyBox().Top = QuizBox.Top;
  KeyBox().Left = QuizBox.Left;
}

void WorksheetForm::FinishWorksheetLoad() {
  if (shared.QuickWordEnabled) Toolbar1.Button(kQuickWord).Enabled = true;
  FillFontBar();
  // Only now, so that composing the document costs nothing here.
  QuizBox.SelChange = [this] { SyncFontBar(); };
  QuizBox.SelStart(1);
  cmbFontColor.Text = "Black";
  WindowState = kMaximised;
}

void WorksheetForm::FillFontBar() {
  for (const NamedColor& color : kColors) cmbFontColor.AddItem(color.name);
  cmbFontColor.ListIndex = 0;
  for (std::string& font : runtime().platform().ScreenFonts()) {
    cmbFontName.AddItem(std::move(font));
  }
  cmbFontName.ListIndex = 0;
  cmbFontName.Text = "Courier New";
  for (int size = kSmallestSize; size <= kLargestSize; size += 2) {
    cmbFontSize.AddItem(std::to_string(size));
  }
  cmbFontSize.ListIndex = 1;
}

void WorksheetForm::SetFontName() {
  QuizBox.SelFontName(cmbFontName.Text());
  QuizBox.SetFocus();
}

void WorksheetForm::SetFontSize() {
  const std::string& text = cmbFontSize.Text;
  double points = 0;
  const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), points);
  // What was typed is no size: the bar goes back to the selection's.
  if (fault != std::errc() || end != text.data() + text.size() || points < 1 || points > 1638) {
    runtime().Beep();
    SyncFontBar();
  } else {
    QuizBox.SelFontSize(points);
  }
  QuizBox.SetFocus();
}

void WorksheetForm::SetFontColor() {
  forms().Show(id());
  const int index = cmbFontColor.ListIndex;
  if (index >= 0 && index < static_cast<int>(std::size(kColors))) {
    QuizBox.SelColor(kColors[index].value);
  }
  QuizBox.SetFocus();
}

void WorksheetForm::SyncFontBar() {
  if (const auto points = QuizBox.SelFontSize()) cmbFontSize.Text = SizeText(*points);
  if (const auto font = QuizBox.SelFontName()) cmbFontName.Text = *font;
  const auto color = QuizBox.SelColor();
  if (!color) return;
  // Black shows as no colour at all.
  if (*color == 0) cmbFontColor.ListIndex = -1;
  for (int i = 1; i < static_cast<int>(std::size(kColors)); ++i) {
    if (*color == kColors[i].value) cmbFontColor.ListIndex = i;
  }
}

void WorksheetForm::ShowKeyView() {
  Toolbar1.Button(kKey).Caption = "Worksheet";
  KeyBox().Visible = true;
  QuizBox.Visible = false;
}

void WorksheetForm::ShowWorksheetView() {
  if (design_.has_key_button) Toolbar1.Button(kKey).Caption = "Key";
  QuizBox.Visible = true;
  KeyBox().Visible = false;
}

void WorksheetForm::Resize() {
  if (design_.resize_guarded && (Height <= 2000 || Width <= 1000)) return;
  QuizBox.Height = Height - Toolbar1.Height - design_.resize_margin;
  QuizBox.Width = Width - 50;
  if (!design_.resize_key_box) return;
  KeyBox().Height = QuizBox.Height;
  KeyBox().Width = QuizBox.Width;
  if (AnswerBox1) {
    KeyBox().Top = QuizBox.Top;
    KeyBox().Left = QuizBox.Left;
  }
}

void WorksheetForm::ToolbarClick(const std::string& caption) {
  if (caption == "Key") return ShowKeyView();
  if (caption == "Worksheet") return ShowWorksheetView();
  if (caption == "Save") return SaveWorksheet();
  if (caption == "Print") return PrintWorksheet();
  if (caption == "Quit") runtime().End();
  if (caption == "QuickWord") return OpenInWordProcessor();
  if (caption == "Clipart") return OpenClipart();
}

}  // namespace brindlepage
