#include "desktop/control_view.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSlider>
#include <QStyle>
#include <algorithm>

#include "desktop/arranger.h"
#include "desktop/icons.h"
#include "desktop/large_button.h"
#include "desktop/list_view.h"
#include "desktop/picture_view.h"
#include "desktop/rich_text_view.h"
#include "desktop/text.h"
#include "desktop/tool_strip.h"
#include "toolkit/controls.h"
#include "toolkit/file_lists.h"

namespace brindlepage {

namespace {

constexpr int kNoColour = 0xFFFFFF;  // the design's, which the style sheet decides

QColor ToColour(int blue_green_red) {
  return {blue_green_red & 0xFF, (blue_green_red >> 8) & 0xFF, (blue_green_red >> 16) & 0xFF};
}

// A property that the style sheet looks at.
void SetStyleProperty(QWidget& widget, const char* name, const QVariant& value) {
  if (widget.property(name) == value) return;
  widget.setProperty(name, value);
  widget.style()->unpolish(&widget);
  widget.style()->polish(&widget);
}

// The mouse on a widget that has no clicks of its own, and the keys on one that takes them.
class Clicks : public QObject {
 public:
  Clicks(QWidget* widget, std::function<void()> click, std::function<void()> double_click)
      : QObject(widget), click_(std::move(click)), double_click_(std::move(double_click)) {
    widget->installEventFilter(this);
  }

  bool eventFilter(QObject*, QEvent* event) override {
    const auto type = event->type();
    if (type == QEvent::KeyPress) {
      const int key = static_cast<QKeyEvent*>(event)->key();
      const bool clicks = key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter;
      if (clicks) click_();
      return clicks;
    }
    if (type != QEvent::MouseButtonPress && type != QEvent::MouseButtonDblClick) return false;
    if (static_cast<QMouseEvent*>(event)->button() != Qt::LeftButton) return false;
    type == QEvent::MouseButtonPress ? click_() : double_click_();
    return true;
  }

 private:
  std::function<void()> click_;
  std::function<void()> double_click_;
};

// --- Labels.

class LabelView : public ViewOf<Label> {
 public:
  LabelView(Label& label, const ViewSetting& setting)
      : ViewOf(setting.loop, label, new QLabel(setting.parent)),
        caption_(setting.letters),
        partner_(setting.partner) {
    text().setTextFormat(partner_ ? Qt::AutoText : Qt::PlainText);
    text().setWordWrap(setting.wraps);
    static constexpr const char* kLooks[] = {"body", "heading", "note", "warning"};
    text().setProperty("look", kLooks[static_cast<int>(label.look)]);
    if (partner_ != nullptr) text().setBuddy(partner_);
    if (label.Click) {
      text().setCursor(Qt::PointingHandCursor);
      // One that stands for nothing else can be reached by the keys.
      if (partner_ == nullptr && label.Index() < 0) {
        text().setProperty("look", "link");
        text().setFocusPolicy(Qt::TabFocus);
      }
      new Clicks(
          &text(), [this] { Act([](Label& l) { l.UserClick(); }); },
          [this] { Act([](Label& l) { l.UserClick(); }); });
    } else if (label.DblClick) {
      new Clicks(
          &text(), [] {}, [this] { Act([](Label& l) { l.UserDoubleClick(); }); });
    }
  }

 protected:
  void SyncState() override {
    if (partner_ != nullptr) {
      // Blanks in front once made room for the mark, which stands beside the label now.
      const std::string& caption = box().Caption;
      const auto first = caption.find_first_not_of(' ');
      text().setText(caption_.Of(first == std::string::npos ? "" : caption.substr(first)));
      partner_->setAccessibleName(ToQString(caption));
    } else {
      text().setText(ToQString(box().Caption));
    }
    static constexpr Qt::Alignment kSides[] = {Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter};
    const int side = qBound(0, box().Alignment(), 2);
    text().setAlignment(kSides[side] | Qt::AlignVCenter);
    if (box().BackColor != kNoColour) {
      text().setAutoFillBackground(true);
      QPalette colours = text().palette();
      colours.setColor(QPalette::Window, ToColour(box().BackColor));
      text().setPalette(colours);
    }
    SyncFont();
  }

 private:
  QLabel& text() const { return static_cast<QLabel&>(*widget()); }

  void SyncFont() {
    if (box().FontName().empty() && box().FontSize <= 0) return;
    QString rule;
    if (!box().FontName().empty()) {
      rule += QString("font-family: \"%1\";").arg(ToQString(box().FontName).remove('"'));
    }
    if (box().FontSize > 0) rule += QString("font-size: %1pt;").arg(box().FontSize());
    if (text().styleSheet() != rule) text().setStyleSheet(rule);
  }

  LetteredCaption caption_;
  QWidget* partner_;
};

// --- Buttons.

class ButtonView : public ViewOf<CommandButton> {
 public:
  ButtonView(CommandButton& button, const ViewSetting& setting)
      : ViewOf(setting.loop, button, MakeButton(button, setting.parent)),
        caption_(setting.letters) {
    connect(&push(), &QPushButton::clicked, this,
            [this] { Act([](CommandButton& b) { b.UserClick(); }); });
  }

 protected:
  void SyncState() override {
    push().setText(caption_.Of(box().Caption));
    SetStyleProperty(push(), "main", box().Default());
  }

 private:
  QPushButton& push() const { return static_cast<QPushButton&>(*widget()); }

  static QPushButton* MakeButton(const CommandButton& button, QWidget* parent) {
    if (!button.icon.empty()) {
      auto* large = new LargeButton(parent);
      large->setIcon(NamedIcon(button.icon));
      return large;
    }
    auto* push = new QPushButton(parent);
    if (button.Caption().size() == 1) MakeSmall(*push, button.Caption()[0]);
    return push;
  }

  // A button of one letter is small, and B, I and U look like what they do.
  static void MakeSmall(QPushButton& push, char letter) {
    push.setProperty("small", true);
    QFont font = push.font();
    font.setBold(letter == 'B');
    font.setItalic(letter == 'I');
    font.setUnderline(letter == 'U');
    push.setFont(font);
  }

  LetteredCaption caption_;
};

// Shows a check box or an option button. Without a caption it takes no more room than its mark.
template <class Kind>
void SyncMark(QAbstractButton& mark, const Kind& box, LetteredCaption& caption) {
  constexpr int kMark = 24;  // pixels
  mark.setText(caption.Of(box.Caption));
  mark.setMaximumWidth(box.Caption().empty() ? kMark : QWIDGETSIZE_MAX);
  mark.setChecked(box.Value);
}

// A mark that the control turns, not the widget.
template <class Button>
class PassiveMark : public Button {
 public:
  using Button::Button;

 protected:
  void nextCheckState() override {}
};

class CheckBoxView : public ViewOf<CheckBox> {
 public:
  CheckBoxView(CheckBox& check, const ViewSetting& setting)
      : ViewOf(setting.loop, check, new PassiveMark<QCheckBox>(setting.parent)),
        caption_(setting.letters) {
    connect(&mark(), &QCheckBox::clicked, this,
            [this] { Act([](CheckBox& c) { c.UserClick(); }); });
  }

 protected:
  void SyncState() override { SyncMark(mark(), box(), caption_); }

 private:
  QCheckBox& mark() const { return static_cast<QCheckBox&>(*widget()); }

  LetteredCaption caption_;
};

// The option of a group that is on takes the Tab key; the arrow keys turn the next one on.
class OptionButtonView : public ViewOf<OptionButton> {
 public:
  OptionButtonView(OptionButton& option, const ViewSetting& setting)
      : ViewOf(setting.loop, option, new PassiveMark<QRadioButton>(setting.parent)),
        caption_(setting.letters) {
    mark().setAutoExclusive(false);
    mark().installEventFilter(this);
    connect(&mark(), &QRadioButton::clicked, this,
            [this] { Act([](OptionButton& o) { o.UserClick(); }); });
  }

  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() != QEvent::KeyPress) return false;
    switch (static_cast<QKeyEvent*>(event)->key()) {
      case Qt::Key_Up:
      case Qt::Key_Left:
        TurnOnNeighbour(-1);
        return true;
      case Qt::Key_Down:
      case Qt::Key_Right:
        TurnOnNeighbour(+1);
        return true;
      default:
        return false;
    }
  }

 protected:
  void SyncState() override {
    SyncMark(mark(), box(), caption_);
    mark().setFocusPolicy(box().Value ? Qt::StrongFocus : Qt::ClickFocus);
  }

 private:
  QRadioButton& mark() const { return static_cast<QRadioButton&>(*widget()); }

  // The group as it stands on screen, from top to bottom.
  void TurnOnNeighbour(int step) {
    if (control() == nullptr) return;
    std::vector<OptionButton*> group;
    ForEachControl(box().form().arrangement(), [&](Control& neighbour) {
      auto* option = dynamic_cast<OptionButton*>(&neighbour);
      if (option == nullptr || option->container() != box().container()) return;
      if (option->CanAct()) group.push_back(option);
    });
    const auto here = std::find(group.begin(), group.end(), &box());
    if (here == group.end()) return;
    const auto count = static_cast<std::ptrdiff_t>(group.size());
    const auto next = ((here - group.begin()) + step + count) % count;
    OptionButton& neighbour = *group[static_cast<std::size_t>(next)];
    loop().Act(neighbour, [&] {
      neighbour.UserClick();
      neighbour.SetFocus();
    });
  }

  LetteredCaption caption_;
};

// --- Boxes of text.

// How many of these characters a box of words takes.
int CountTaken(const QString& text) {
  return static_cast<int>(code_page::KeepTypeable(text.toStdU32String()).size());
}

class TextBoxView : public ViewOf<TextBox> {
 public:
  TextBoxView(TextBox& text_box, const ViewSetting& setting)
      : ViewOf(setting.loop, text_box, new QLineEdit(setting.parent)) {
    connect(&line(), &QLineEdit::textEdited, this, [this](const QString& text) { Typed(text); });
  }

 protected:
  void SyncState() override {
    const QString text = ToQString(box().Text);
    if (line().text() == text) return;
    const int caret = line().cursorPosition();
    line().setText(text);
    line().setCursorPosition(qMin(caret, static_cast<int>(text.size())));
  }

 private:
  QLineEdit& line() const { return static_cast<QLineEdit&>(*widget()); }

  void Typed(const QString& text) {
    // What is refused in front of the caret moves it back.
    const int caret = CountTaken(text.left(line().cursorPosition()));
    Act([&](TextBox& text_box) { text_box.Type(text.toStdU32String()); });
    if (control() == nullptr || line().text() == ToQString(box().Text)) return;
    SyncState();
    line().setCursorPosition(caret);
  }
};

// Long text wraps; the Enter key is the form's.
class WrappedEdit : public QPlainTextEdit {
 public:
  explicit WrappedEdit(QWidget* parent) : QPlainTextEdit(parent) { setTabChangesFocus(true); }

  QSize sizeHint() const override { return {320, fontMetrics().lineSpacing() * 4 + 24}; }
  QSize minimumSizeHint() const override { return {120, fontMetrics().lineSpacing() * 2 + 24}; }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter || event->key() == Qt::Key_Escape) return event->ignore();
    QPlainTextEdit::keyPressEvent(event);
  }
};

class WrappedTextBoxView : public ViewOf<TextBox> {
 public:
  WrappedTextBoxView(TextBox& text_box, const ViewSetting& setting)
      : ViewOf(setting.loop, text_box, new WrappedEdit(setting.parent)) {
    connect(&edit(), &QPlainTextEdit::textChanged, this, [this] { Typed(); });
  }

 protected:
  void SyncState() override {
    const QString text = ToQString(box().Text);
    if (edit().toPlainText() == text) return;
    const QSignalBlocker quiet(edit());
    const int caret = edit().textCursor().position();
    edit().setPlainText(text);
    MoveCaret(qMin(caret, static_cast<int>(text.size())));
  }

 private:
  QPlainTextEdit& edit() const { return static_cast<QPlainTextEdit&>(*widget()); }

  void MoveCaret(int position) {
    QTextCursor cursor = edit().textCursor();
    cursor.setPosition(position);
    edit().setTextCursor(cursor);
  }

  void Typed() {
    const QString text = edit().toPlainText();
    const int caret = CountTaken(text.left(edit().textCursor().position()));
    Act([&](TextBox& text_box) { text_box.Type(text.toStdU32String()); });
    if (control() == nullptr || text == ToQString(box().Text)) return;
    SyncState();
    MoveCaret(caret);
  }
};

// --- Lists.

class ListBoxView : public ViewOf<ListBox> {
 public:
  ListBoxView(ListBox& list_box, const ViewSetting& setting)
      : ViewOf(setting.loop, list_box, new ListView(setting.parent)) {
    list().setModel(&rows_);
    list().on_click = [this](int row) { Act([row](ListBox& box) { Click(box, row); }); };
    list().on_double_click = [this](int row) {
      Act([row](ListBox& box) {
        Click(box, row);
        box.UserDoubleClick();
      });
    };
    list().on_key = [this](Key key) { Act([key](ListBox& box) { box.Press(key); }); };
    list().on_search = [this](int row) { Act([row](ListBox& box) { box.MoveByKey(row); }); };
    if (dynamic_cast<DirListBox*>(&list_box) != nullptr) {
      list().on_enter = [this] { Act([](ListBox& box) { box.UserDoubleClick(); }); };
    }
  }

 protected:
  void SyncState() override {
    rows_.TakeOver(box());
    list().Select(box().ListIndex);
  }

 private:
  ListView& list() const { return static_cast<ListView&>(*widget()); }

  // Anywhere on a row of check boxes is a click on its box.
  static void Click(ListBox& box, int row) {
    if (box.style() == ListStyle::CheckBoxes && row >= 0) {
      box.ClickCheck(row);
    } else {
      box.ClickRow(row);
    }
  }

  ListRows rows_;
};

// Fills a combo box with the rows of a list when they have changed.
template <class List>
void SyncRows(QComboBox& combo, const List& list, QStringList& shown) {
  QStringList rows;
  for (int row = 0; row < list.ListCount(); ++row) rows << ToQString(list.List(row));
  if (rows == shown) return;
  shown = rows;
  combo.clear();
  combo.addItems(rows);
}

class DriveListView : public ViewOf<DriveListBox> {
 public:
  DriveListView(DriveListBox& drives, const ViewSetting& setting)
      : ViewOf(setting.loop, drives, new QComboBox(setting.parent)) {
    connect(&combo(), &QComboBox::activated, this,
            [this](int row) { Act([row](DriveListBox& box) { box.Move(box.List(row)); }); });
  }

 protected:
  void SyncState() override {
    SyncRows(combo(), box(), rows_);
    combo().setCurrentText(ToQString(box().Drive));
  }

 private:
  QComboBox& combo() const { return static_cast<QComboBox&>(*widget()); }

  QStringList rows_;
};

class ComboBoxView : public ViewOf<ComboBox> {
 public:
  ComboBoxView(ComboBox& combo_box, const ViewSetting& setting)
      : ViewOf(setting.loop, combo_box, new QComboBox(setting.parent)) {
    combo().setEditable(true);
    combo().setInsertPolicy(QComboBox::NoInsert);
    combo().setMaxVisibleItems(18);
    combo().installEventFilter(this);
    connect(&combo(), &QComboBox::activated, this,
            [this](int row) { Act([row](ComboBox& box) { box.PickRow(row); }); });
    connect(combo().lineEdit(), &QLineEdit::returnPressed, this, [this] { Confirm(); });
    connect(combo().lineEdit(), &QLineEdit::editingFinished, this, [this] {
      // What was typed and not confirmed goes when the focus goes.
      if (control() != nullptr && !combo().hasFocus()) SyncText();
    });
  }

  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() != QEvent::KeyPress) return false;
    if (static_cast<QKeyEvent*>(event)->key() != Qt::Key_Escape) return false;
    if (control() == nullptr || combo().currentText() == ToQString(box().Text)) return false;
    SyncText();
    return true;
  }

 protected:
  void SyncState() override {
    SyncRows(combo(), box(), rows_);
    SyncText();
  }

 private:
  QComboBox& combo() const { return static_cast<QComboBox&>(*widget()); }

  void SyncText() {
    combo().setCurrentIndex(box().ListIndex);
    const QString text = ToQString(box().Text);
    if (combo().currentText() == text) return;
    combo().setEditText(text);
    combo().lineEdit()->setCursorPosition(0);
  }

  // A text of the list has been picked by Qt already.
  void Confirm() {
    const QString text = combo().currentText();
    if (combo().findText(text, Qt::MatchFixedString) >= 0) return;
    Act([&](ComboBox& box) { box.Type(text.toStdU32String()); });
  }

  QStringList rows_;
};

// --- The rest.

class FrameView : public ViewOf<Frame> {
 public:
  FrameView(Frame& frame, const ViewSetting& setting)
      : ViewOf(setting.loop, frame, new QGroupBox(setting.parent)) {}

 protected:
  void SyncState() override {
    group().setTitle(PlainCaption(box().Caption()));
    SetStyleProperty(group(), "plain", box().Caption().empty());
  }

 private:
  QGroupBox& group() const { return static_cast<QGroupBox&>(*widget()); }
};

class ImageControlView : public ViewOf<Image> {
 public:
  ImageControlView(Image& image, const ViewSetting& setting)
      : ViewOf(setting.loop, image, new PictureView(NamedIcon(image.icon), setting.parent)) {
    new Clicks(
        widget(), [this] { Act([](Image& i) { i.UserClick(); }); },
        [this] { Act([](Image& i) { i.UserDoubleClick(); }); });
    if (image.Click) widget()->setCursor(Qt::PointingHandCursor);
    if (image.key == Key::PageUp) Click(Qt::Key_PageUp, setting.parent);
    if (image.key == Key::PageDown) Click(Qt::Key_PageDown, setting.parent);
  }

 protected:
  void SyncState() override { static_cast<PictureView*>(widget())->Show(box().Picture); }

 private:
  // The key clicks the image, whatever has the focus.
  void Click(Qt::Key key, QWidget* form) {
    auto* shortcut =
        new QShortcut(QKeySequence(key), form, nullptr, nullptr, Qt::WidgetWithChildrenShortcut);
    connect(shortcut, &QShortcut::activated, this,
            [this] { Act([](Image& i) { i.UserClick(); }); });
  }
};

class ScrollBarView : public ViewOf<HScrollBar> {
 public:
  ScrollBarView(HScrollBar& bar, const ViewSetting& setting)
      : ViewOf(setting.loop, bar, new QSlider(Qt::Horizontal, setting.parent)) {
    slider().setMinimumWidth(160);
    connect(&slider(), &QSlider::valueChanged, this,
            [this](int value) { Act([value](HScrollBar& b) { b.Move(value); }); });
  }

 protected:
  void SyncState() override {
    const QSignalBlocker quiet(slider());
    slider().setRange(box().Min, box().Max);
    slider().setSingleStep(box().SmallChange);
    slider().setPageStep(box().LargeChange);
    slider().setValue(box().Value);
  }

 private:
  QSlider& slider() const { return static_cast<QSlider&>(*widget()); }
};

class ProgressBarView : public ViewOf<ProgressBar> {
 public:
  ProgressBarView(ProgressBar& bar, const ViewSetting& setting)
      : ViewOf(setting.loop, bar, new QProgressBar(setting.parent)) {
    progress().setTextVisible(false);
  }

 protected:
  void SyncState() override {
    progress().setRange(0, qMax(1, box().Max()));
    progress().setValue(qBound(0, box().Value(), progress().maximum()));
  }

 private:
  QProgressBar& progress() const { return static_cast<QProgressBar&>(*widget()); }
};

class RichTextBoxView : public ViewOf<RichTextBox> {
 public:
  RichTextBoxView(RichTextBox& rich, const ViewSetting& setting)
      : ViewOf(setting.loop, rich, new RichTextView(rich, setting.loop.runtime(), setting.parent)) {
  }

  void Detach() override {
    if (control() != nullptr) view().Leave();
    ControlView::Detach();
  }

 protected:
  void SyncState() override {}

 private:
  RichTextView& view() const { return static_cast<RichTextView&>(*widget()); }
};

// A control that has no face of its own.
class EmptyView : public ControlView {
 public:
  EmptyView(Control& control, const ViewSetting& setting)
      : ControlView(setting.loop, control, new QWidget(setting.parent)) {}

 protected:
  void SyncState() override {}
};

template <class ControlType, class View>
std::unique_ptr<ControlView> TryMake(Control& control, const ViewSetting& setting) {
  auto* known = dynamic_cast<ControlType*>(&control);
  return known != nullptr ? std::make_unique<View>(*known, setting) : nullptr;
}

}  // namespace

ControlView::ControlView(Loop& loop, Control& control, QWidget* widget)
    : loop_(loop), control_(&control), widget_(widget) {
  widget->setObjectName(ToQString(control.Name()));
}

void ControlView::Sync() {
  in_sync = true;
  if (control_ == nullptr) return;
  SyncState();
  widget_->setEnabled(control_->Enabled);
  widget_->setVisible(control_->Visible);
  widget_->setToolTip(ToQString(control_->ToolTipText));
}

const QString& LetteredCaption::Of(const std::string& caption) {
  const QByteArray key = QByteArray::fromStdString(caption);
  const auto known = known_.find(key);
  if (known != known_.end()) return *known;
  return *known_.insert(key, letters_.Assign(caption));
}

std::unique_ptr<ControlView> MakeControlView(Control& control, const ViewSetting& setting) {
  using Maker = std::unique_ptr<ControlView> (*)(Control&, const ViewSetting&);
  // A kind stands in front of the kind that it is a kind of.
  static constexpr Maker kMakers[] = {
      TryMake<Label, LabelView>,
      TryMake<CommandButton, ButtonView>,
      TryMake<CheckBox, CheckBoxView>,
      TryMake<OptionButton, OptionButtonView>,
      TryMake<ComboBox, ComboBoxView>,
      TryMake<DriveListBox, DriveListView>,
      TryMake<ListBox, ListBoxView>,
      TryMake<Frame, FrameView>,
      TryMake<Image, ImageControlView>,
      TryMake<HScrollBar, ScrollBarView>,
      TryMake<Toolbar, ToolStripView>,
      TryMake<ProgressBar, ProgressBarView>,
      TryMake<RichTextBox, RichTextBoxView>,
  };
  if (auto* text_box = dynamic_cast<TextBox*>(&control)) {
    if (text_box->multi_line) return std::make_unique<WrappedTextBoxView>(*text_box, setting);
    return std::make_unique<TextBoxView>(*text_box, setting);
  }
  for (const Maker make : kMakers) {
    if (auto view = make(control, setting)) return view;
  }
  return std::make_unique<EmptyView>(control, setting);
}

}  // namespace brindlepage
