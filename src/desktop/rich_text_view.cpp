#include "desktop/rich_text_view.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDrag>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextDocumentFragment>
#include <algorithm>

#include "desktop/rich_text_clipboard.h"
#include "desktop/rich_text_find_bar.h"
#include "desktop/rich_text_view_sheet.h"

namespace brindlepage {

namespace {

constexpr int kFindBarRoom = 10;  // pixels
constexpr int kColumnTwips = RichTextLayout::kColumnWidth * RichTextLayout::kTwipsPerDot;

}  // namespace

RichTextView::RichTextView(RichTextBox& box, Runtime& runtime, QWidget* parent)
    : PaperView(parent), sheet_(new Sheet(*this)), mirror_(box, *sheet_, runtime) {
  setObjectName(QString::fromStdString(box.Name()));
  sheet_->setTextInteractionFlags(Qt::TextEditorInteraction);
  sheet_->setDefaultTextColor(Qt::black);
  SetText(sheet_);
  connect(&mirror_, &RichTextMirror::StartShown, this, &RichTextView::ScrollToTop);
}

RichTextView::~RichTextView() {
  Leave();
  DeleteText();
}

void RichTextView::Leave() {
  if (mirror_.box() == nullptr) return;
  mirror_.Leave();
  sheet_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
}

// --- The teacher's commands

void RichTextView::Undo() { GoThroughChanges(qOverload<>(&QTextDocument::undo)); }

void RichTextView::Redo() { GoThroughChanges(qOverload<>(&QTextDocument::redo)); }

// The caret goes behind the text that was changed; where only its format was, the selection stays.
// (The library's own place would have a long document laid out to its end.)
void RichTextView::GoThroughChanges(void (QTextDocument::*step)()) {
  Mirror();
  QTextDocument& text = mirror_.layout().document();
  const int length = text.characterCount();
  int place = 0;
  const auto noting = connect(&text, &QTextDocument::contentsChange, this,
                              [&place](int position, int, int added) { place = position + added; });
  (text.*step)();
  disconnect(noting);
  if (text.characterCount() == length) return;
  QTextCursor changed(&text);
  changed.setPosition(std::min(place, text.characterCount() - 1));
  MoveCaret(changed);
}

void RichTextView::Cut() {
  Copy();
  Delete();
}

void RichTextView::Copy() {
  Mirror();
  if (QMimeData* mime = CopyOfSelection(Caret().selection()))
    QApplication::clipboard()->setMimeData(mime);
}

QMimeData* RichTextView::CopyOfSelection(const QTextDocumentFragment& shown) const {
  const RichTextBox* box = mirror_.box();
  if (box == nullptr || box->SelLength() == 0) return nullptr;
  return new RichTextMimeData(box->Content(box->SelStart(), box->SelLength()), shown);
}

// To a middle click, in place of what the library offers.
void RichTextView::OfferSelection() {
  QClipboard& clipboard = *QApplication::clipboard();
  if (!clipboard.supportsSelection()) return;
  if (QMimeData* mime = CopyOfSelection(Caret().selection()))
    clipboard.setMimeData(mime, QClipboard::Selection);
}

// A move within the sheet is done whole by the drop. Word processors take a page that is dropped in
// front of rich text, which has the pictures; so none is offered.
void RichTextView::DragSelection() {
  QMimeData* const mime = CopyOfSelection({});
  if (mime == nullptr) return;
  auto* const drag = new QDrag(viewport());
  drag->setMimeData(mime);
  // Within the sheet the drop moves it; another program gets a copy, whatever it takes it for.
  drag->exec(Qt::CopyAction | Qt::MoveAction, Qt::MoveAction);
}

void RichTextView::Paste() {
  if (const QMimeData* mime = QApplication::clipboard()->mimeData()) Insert(*mime);
}

void RichTextView::Delete() {
  mirror_.Do([](RichText& text) {
    if (text.SelLength() > 0)
      text.Replace(text.SelStart(), text.SelLength(), {}, text.CaretFormat());
  });
}

// What the teacher looks at stays in the window.
void RichTextView::SelectAll() {
  Mirror();
  const QPoint shown(horizontalScrollBar()->value(), verticalScrollBar()->value());
  QTextCursor cursor = Caret();
  cursor.select(QTextCursor::Document);
  MoveCaret(cursor);
  horizontalScrollBar()->setValue(shown.x());
  verticalScrollBar()->setValue(shown.y());
}

void RichTextView::Insert(const QMimeData& mime) {
  if (!CanInsertMimeData(mime)) return;
  mirror_.Do([&](RichText& text) { InsertMimeData(text, mime, kColumnTwips); });
}

void RichTextView::Drop(const QMimeData& mime, const QPointF& point, bool own, bool move) {
  const int target = PositionAt(point);
  if (!own) {
    mirror_.Do([&](RichText& text) {
      text.SelStart(target);
      InsertMimeData(text, mime, kColumnTwips);
    });
    return;
  }
  mirror_.Do([&](RichText& text) {
    const int start = text.SelStart();
    const int length = text.SelLength();
    if (target >= start && target <= start + length) return;
    const RichContent dragged = text.Content(start, length);
    int place = target;
    if (move) {
      text.Replace(start, length, {}, text.CaretFormat());
      if (target > start) place -= length;
    }
    text.SelStart(place);
    text.SelContent(dragged);
  });
}

void RichTextView::ToggleBold() {
  mirror_.Do([](RichText& text) { text.SelBold(!text.SelBold().value_or(false)); });
}

void RichTextView::ToggleItalic() {
  mirror_.Do([](RichText& text) { text.SelItalic(!text.SelItalic().value_or(false)); });
}

void RichTextView::ToggleUnderline() {
  mirror_.Do([](RichText& text) { text.SelUnderline(!text.SelUnderline().value_or(false)); });
}

// Typing over a selection takes the format of its first character, and every kind of Enter ends
// the paragraph.
bool RichTextView::TypeText(QKeyEvent* event) {
  const RichTextBox* box = mirror_.box();
  if (box == nullptr) return false;
  QTextCursor cursor = Caret();
  const QTextCharFormat format = mirror_.layout().Format(box->CaretFormatId());
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  const Qt::KeyboardModifiers held = event->modifiers() & (Qt::ControlModifier | Qt::AltModifier);
  const bool third_level = held == (Qt::ControlModifier | Qt::AltModifier);
  const bool types = !event->text().isEmpty() &&
                     (event->text()[0].isPrint() || event->text()[0] == QLatin1Char('\t')) &&
                     (held == Qt::NoModifier || third_level);
  if (enter && held == Qt::NoModifier) {
    const QTextBlock first = mirror_.layout().document().findBlock(cursor.selectionStart());
    const Alignment alignment = RichTextLayout::AlignmentOf(first.blockFormat());
    cursor.insertBlock(RichTextLayout::ParagraphFormat(alignment), format);
  } else if (types && cursor.hasSelection()) {
    cursor.insertText(event->text(), format);
  } else {
    return false;
  }
  sheet_->setTextCursor(cursor);
  event->accept();
  return true;
}

void RichTextView::MoveCaret(const QTextCursor& cursor) {
  const QScopedValueRollback<bool> guard(moving_caret_, true);
  sheet_->setTextCursor(cursor);
  ScrollTo(cursor);
  mirror_.TakeCaret();
}

void RichTextView::MovePage(bool up, bool select) {
  Mirror();
  QTextCursor cursor = Caret();
  const double page = viewport()->height() / PixelsPerDot() * 0.9;
  const QPointF from = CaretRect(cursor).center();
  const int position = mirror_.layout().document().documentLayout()->hitTest(
      from + QPointF(0, up ? -page : page), Qt::FuzzyHit);
  cursor.setPosition(position, select ? QTextCursor::KeepAnchor : QTextCursor::MoveAnchor);
  QScrollBar* bar = verticalScrollBar();
  bar->setValue(bar->value() + (up ? -1 : 1) * static_cast<int>(page * PixelsPerDot()));
  MoveCaret(cursor);
}

// --- Finding

void RichTextView::MakeFindBar() {
  find_bar_ = new RichTextFindBar(this);
  connect(find_bar_, &RichTextFindBar::Find, this, &RichTextView::FindNext);
  connect(find_bar_, &RichTextFindBar::FindAgain, this, [this] {
    QTextCursor from = Caret();
    from.setPosition(from.selectionStart());
    FindFrom(from, false);
  });
  connect(find_bar_, &RichTextFindBar::Closed, this, &RichTextView::CloseFindBar);
}

void RichTextView::OpenFindBar() {
  if (find_bar_ == nullptr) MakeFindBar();
  const QString selected = Caret().selectedText();
  const bool on_one_line = !selected.contains(QChar::ParagraphSeparator);
  PlaceFindBar();
  find_bar_->Open(on_one_line ? selected : QString());
}

void RichTextView::CloseFindBar() {
  find_bar_->hide();
  setFocus(Qt::OtherFocusReason);
}

void RichTextView::FindFrom(QTextCursor from, bool backward) {
  if (find_bar_ == nullptr) return;
  Mirror();
  const QString text = find_bar_->Text();
  if (text.isEmpty()) return find_bar_->ShowFound(true);
  const auto flags = backward ? QTextDocument::FindBackward : QTextDocument::FindFlags();
  QTextCursor found = document().find(text, from, flags);
  if (found.isNull()) {  // once around
    QTextCursor edge(&mirror_.layout().document());
    if (backward) edge.movePosition(QTextCursor::End);
    found = document().find(text, edge, flags);
  }
  find_bar_->ShowFound(!found.isNull());
  if (!found.isNull()) MoveCaret(found);
}

// --- Keys

RichTextView::Command RichTextView::CommandOf(const QKeyEvent& pressed) {
  auto& event = const_cast<QKeyEvent&>(pressed);  // matches() is not const
  const bool control = event.modifiers().testFlag(Qt::ControlModifier) &&
                       !event.modifiers().testFlag(Qt::AltModifier);
  const int key = event.key();
  if (event.matches(QKeySequence::Undo)) return &RichTextView::Undo;
  if (event.matches(QKeySequence::Redo)) return &RichTextView::Redo;
  if (event.matches(QKeySequence::Cut)) return &RichTextView::Cut;
  if (event.matches(QKeySequence::Copy)) return &RichTextView::Copy;
  if (event.matches(QKeySequence::Paste)) return &RichTextView::Paste;
  if (event.matches(QKeySequence::SelectAll)) return &RichTextView::SelectAll;
  if (event.matches(QKeySequence::Find)) return &RichTextView::OpenFindBar;
  if (event.matches(QKeySequence::FindNext)) return &RichTextView::FindForward;
  if (event.matches(QKeySequence::FindPrevious)) return &RichTextView::FindBackward;
  if (event.matches(QKeySequence::Bold)) return &RichTextView::ToggleBold;
  if (event.matches(QKeySequence::Italic)) return &RichTextView::ToggleItalic;
  if (event.matches(QKeySequence::Underline)) return &RichTextView::ToggleUnderline;
  if (!control) return nullptr;
  switch (key) {
    case Qt::Key_Y:
      return &RichTextView::Redo;
    case Qt::Key_Plus:
    case Qt::Key_Equal:
      return &RichTextView::ZoomIn;
    case Qt::Key_Minus:
      return &RichTextView::ZoomOut;
    case Qt::Key_0:
      return &RichTextView::ZoomToTrueSize;
    case Qt::Key_Tab:
      return &RichTextView::LeaveForward;
    case Qt::Key_Backtab:
      return &RichTextView::LeaveBackward;
    default:
      return nullptr;
  }
}

bool RichTextView::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride) {
    if (CommandOf(*static_cast<QKeyEvent*>(event)) != nullptr) {
      event->accept();
      return true;
    }
  }
  return PaperView::event(event);
}

void RichTextView::keyPressEvent(QKeyEvent* event) {
  const Command command = CommandOf(*event);
  const bool select = event->modifiers().testFlag(Qt::ShiftModifier);
  // Alt with a letter that nothing has is no letter.
  const bool alt_alone = event->modifiers().testFlag(Qt::AltModifier) &&
                         !event->modifiers().testFlag(Qt::ControlModifier);
  const bool prints = !event->text().isEmpty() && event->text()[0].isPrint();
  if (command != nullptr) {
    (this->*command)();
  } else if (event->key() == Qt::Key_Escape && find_bar_ != nullptr && find_bar_->isVisible()) {
    CloseFindBar();
  } else if (event->key() == Qt::Key_Escape || (alt_alone && prints)) {
    event->ignore();
  } else if (event->key() == Qt::Key_PageUp || event->key() == Qt::Key_PageDown) {
    MovePage(event->key() == Qt::Key_PageUp, select);
  } else {
    scene()->sendEvent(sheet_, event);
    // With the paper's edge.
    if (event->matches(QKeySequence::MoveToStartOfDocument)) ScrollToTop();
  }
}

// Tab is a character here; Ctrl+Tab leaves.
bool RichTextView::focusNextPrevChild(bool) { return false; }

// --- The mouse

// What the mouse has selected is offered to middle clicks, and a middle click takes what is
// offered.
void RichTextView::mouseReleaseEvent(QMouseEvent* event) {
  PaperView::mouseReleaseEvent(event);
  const QClipboard& clipboard = *QApplication::clipboard();
  if (event->button() != Qt::MiddleButton || !clipboard.supportsSelection()) {
    return OfferSelection();
  }
  if (const QMimeData* mime = clipboard.mimeData(QClipboard::Selection)) {
    Drop(*mime, mapToScene(IntoColumn(event->pos())), false, false);
  }
}

void RichTextView::contextMenuEvent(QContextMenuEvent* event) {
  Mirror();
  QMenu menu(this);
  const auto add = [&](const QString& caption, QKeySequence::StandardKey key, Command command,
                       bool enabled) {
    QAction* action = menu.addAction(caption, this, command);
    action->setShortcut(key);
    action->setEnabled(enabled);
  };
  const QMimeData* pasted = QApplication::clipboard()->mimeData();
  const bool editable = mirror_.box() != nullptr;
  const bool selected = Caret().hasSelection();
  const bool can_paste = pasted != nullptr && CanInsertMimeData(*pasted);
  add(tr("Undo"), QKeySequence::Undo, &RichTextView::Undo, document().isUndoAvailable());
  add(tr("Redo"), QKeySequence::Redo, &RichTextView::Redo, document().isRedoAvailable());
  menu.addSeparator();
  add(tr("Cut"), QKeySequence::Cut, &RichTextView::Cut, editable && selected);
  add(tr("Copy"), QKeySequence::Copy, &RichTextView::Copy, editable && selected);
  add(tr("Paste"), QKeySequence::Paste, &RichTextView::Paste, editable && can_paste);
  add(tr("Delete"), QKeySequence::Delete, &RichTextView::Delete, editable && selected);
  menu.addSeparator();
  add(tr("Select All"), QKeySequence::SelectAll, &RichTextView::SelectAll, true);
  add(tr("Find..."), QKeySequence::Find, &RichTextView::OpenFindBar, true);
  menu.exec(event->globalPos());
}

// --- What it looks like

int RichTextView::PositionAt(const QPointF& point) const {
  return mirror_.positions().FromQt(document().documentLayout()->hitTest(point, Qt::FuzzyHit));
}

void RichTextView::PlaceFindBar() {
  if (find_bar_ == nullptr) return;
  find_bar_->adjustSize();
  find_bar_->move(viewport()->geometry().right() - find_bar_->width() - kFindBarRoom,
                  viewport()->geometry().top() + kFindBarRoom);
}

void RichTextView::showEvent(QShowEvent* event) {
  mirror_.ShowTop();
  PaperView::showEvent(event);
}

// What the program wrote while the sheet took no input is no deed of the teacher's.
void RichTextView::changeEvent(QEvent* event) {
  PaperView::changeEvent(event);
  if (event->type() != QEvent::EnabledChange || !isEnabled()) return;
  Mirror();
  mirror_.layout().document().clearUndoRedoStacks();
}

void RichTextView::resizeEvent(QResizeEvent* event) {
  PaperView::resizeEvent(event);
  PlaceFindBar();
}

}  // namespace brindlepage
