#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalBlocker>

#include "desktop/control_views.h"
#include "desktop/text.h"

namespace brindlepage {

namespace {

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
    const QString before = line().text();
    const int caret = line().cursorPosition();
    // Behind a letter that the program has put behind the text, typing goes on.
    const bool lengthened = caret == before.size() && text.size() == caret + 1;
    line().setText(text);
    if (lengthened && text.startsWith(before)) return;
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

}  // namespace

std::unique_ptr<ControlView> MakeView(TextBox& text_box, const ViewSetting& setting) {
  if (text_box.multi_line) return std::make_unique<WrappedTextBoxView>(text_box, setting);
  return std::make_unique<TextBoxView>(text_box, setting);
}

}  // namespace brindlepage
