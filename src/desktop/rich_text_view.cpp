#include "desktop/rich_text_view.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGraphicsSceneDragDropEvent>
#include <QGraphicsTextItem>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionGraphicsItem>
#include <QTextBlock>
#include <QTextDocumentFragment>
#include <QTextLayout>
#include <algorithm>
#include <cmath>
#include <utility>

#include "desktop/rich_text_clipboard.h"
#include "desktop/rich_text_find_bar.h"
#include "desktop/style.h"

namespace brindlepage {

namespace {

constexpr int kSmallestZoom = 30;
constexpr int kLargestZoom = 400;
constexpr int kNotch = 120;        // of a mouse wheel
constexpr int kDragInterval = 40;  // milliseconds

// Dots of the layout.
constexpr double kPaperMargin = 0.5 * RichTextLayout::kDotsPerInch;
constexpr double kLeastMargin = kPaperMargin / 3;
constexpr int kGround = 10;  // pixels around the sheet
constexpr int kCaretWidth = 4;
constexpr int kCaretHeight = 48;  // where there is no line yet

constexpr int kColumnTwips = RichTextLayout::kColumnWidth * RichTextLayout::kTwipsPerDot;

// A format of a view's character that the box does not know; input methods can leave one.
constexpr std::uint32_t kNoFormat = 0xFFFFFFFF;

bool IsWide(char32_t c) { return c > 0xFFFF; }

// Calls `take(from, to)` for each stretch, within the first `count` cells, in which the formats of
// two documents differ and which has a single format in the second.
template <class Cells, class Take>
void ForEachFormatChange(const Cells& old, const Cells& now, std::size_t old_from,
                         std::size_t now_from, std::size_t count, Take take) {
  for (std::size_t i = 0; i < count;) {
    const auto differs = [&](std::size_t at) {
      return old[old_from + at].format != now[now_from + at].format;
    };
    std::size_t end = i + 1;
    if (differs(i)) {
      while (end < count && differs(end) &&
             now[now_from + end].format == now[now_from + i].format) {
        ++end;
      }
      take(i, end);
    }
    i = end;
  }
}

// How many cells two stretches share at their start and, behind those, at their end.
struct Shared {
  std::size_t before = 0;
  std::size_t behind = 0;
};

template <class Cells>
Shared SharedCharacters(const Cells& old, const Cells& now) {
  const std::size_t shorter = std::min(old.size(), now.size());
  Shared shared;
  while (shared.before < shorter && old[shared.before].character == now[shared.before].character) {
    ++shared.before;
  }
  while (shared.behind < shorter - shared.before &&
         old[old.size() - 1 - shared.behind].character ==
             now[now.size() - 1 - shared.behind].character) {
    ++shared.behind;
  }
  return shared;
}

}  // namespace

// The text on the scene. Before an event the box's changes are shown, after it the caret is taken
// over, so that nothing else has to watch for it.
class RichTextView::Sheet : public QGraphicsTextItem {
 public:
  explicit Sheet(RichTextView& view) : view_(view) {}

  void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override {
    QStyleOptionGraphicsItem plain = *option;
    plain.state &= ~(QStyle::State_HasFocus | QStyle::State_Selected);  // no frame
    QGraphicsTextItem::paint(painter, &plain, widget);
  }

 protected:
  bool sceneEvent(QEvent* event) override {
    view_.Mirror();
    const bool taken = QGraphicsTextItem::sceneEvent(event);
    view_.TakeCaret();
    return taken;
  }

  void keyPressEvent(QKeyEvent* event) override {
    if (!view_.TypeText(event)) QGraphicsTextItem::keyPressEvent(event);
  }

  void dropEvent(QGraphicsSceneDragDropEvent* event) override {
    QGraphicsSceneDragDropEvent leave(QEvent::GraphicsSceneDragLeave);
    QGraphicsTextItem::dragLeaveEvent(&leave);  // takes the drop's caret away
    const bool own = event->source() == &view_ || event->source() == view_.viewport();
    const bool move = own && event->dropAction() == Qt::MoveAction;
    event->setDropAction(Qt::CopyAction);  // a move is done here, whole
    event->accept();
    view_.Drop(*event->mimeData(), event->pos(), own, move);
  }

 private:
  RichTextView& view_;
};

RichTextView::RichTextView(RichTextBox& box, Runtime& runtime, QWidget* parent)
    : QGraphicsView(parent),
      box_(&box),
      runtime_(runtime),
      layout_(box),
      sheet_(new Sheet(*this)),
      find_bar_(new RichTextFindBar(this)) {
  setObjectName(QString::fromStdString(box.Name()));
  setFrameShape(QFrame::NoFrame);
  setAlignment(Qt::AlignHCenter | Qt::AlignTop);
  setResizeAnchor(QGraphicsView::NoAnchor);
  setBackgroundRole(QPalette::Base);
  viewport()->setCursor(Qt::IBeamCursor);

  QTextDocument& document = layout_.document();
  document.documentLayout()->setProperty("cursorWidth", kCaretWidth);
  sheet_->setDocument(&document);
  sheet_->setTextInteractionFlags(Qt::TextEditorInteraction);
  sheet_->setDefaultTextColor(Qt::black);
  scene_.setItemIndexMethod(QGraphicsScene::NoIndex);
  scene_.setStickyFocus(true);
  scene_.addItem(sheet_);
  setScene(&scene_);
  scene_.setFocusItem(sheet_);

  connect(&document, &QTextDocument::contentsChange, this, &RichTextView::TakeEdit);
  layout_.HangBlanks();
  connect(document.documentLayout(), &QAbstractTextDocumentLayout::documentSizeChanged, this,
          &RichTextView::PlaceSheet);
  connect(find_bar_, &RichTextFindBar::Find, this, &RichTextView::FindNext);
  connect(find_bar_, &RichTextFindBar::FindAgain, this, [this] {
    QTextCursor from = Caret();
    from.setPosition(from.selectionStart());
    FindFrom(from, false);
  });
  connect(find_bar_, &RichTextFindBar::Closed, this, &RichTextView::CloseFindBar);

  whole_ = true;
  difference_ = Difference{0, 0};
  Mirror();
  box.Observe(this);
  PlaceSheet();
  ScrollToTop();
}

RichTextView::~RichTextView() { Leave(); }

void RichTextView::Leave() {
  if (box_ == nullptr) return;
  box_->StopObserving(this);
  box_ = nullptr;
  sheet_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
}

// --- From the box to the view

void RichTextView::Replaced(int position, int removed, int inserted) {
  const int old_length = box_->Length() - inserted + removed;
  if (removed > 0 && removed == old_length && !taking_) whole_ = true;
  Note(position, position + inserted);
}

void RichTextView::Reformatted(int position, int count) { Note(position, position + count); }

void RichTextView::ParagraphsAligned(int position, int count) { Note(position, position + count); }

void RichTextView::CaretMoved() { MirrorSoon(); }

void RichTextView::Note(int position, int end) {
  const int behind = box_->Length() - end;
  difference_ = difference_ ? Difference{std::min(difference_->before, position),
                                         std::min(difference_->behind, behind)}
                            : Difference{position, behind};
  MirrorSoon();
}

void RichTextView::MirrorSoon() {
  if (!runtime_.InHandler() && !taking_) {
    Mirror();
  } else if (!mirror_soon_) {
    mirror_soon_ = true;
    QMetaObject::invokeMethod(this, &RichTextView::Mirror, Qt::QueuedConnection);
  }
}

void RichTextView::Mirror() {
  if (box_ == nullptr || mirroring_ || taking_) return;
  mirror_soon_ = false;
  const QScopedValueRollback<bool> guard(mirroring_, true);
  const auto difference = std::exchange(difference_, std::nullopt);
  if (std::exchange(whole_, false)) {
    layout_.Load(0, box_->Length());
    positions_ = {};
    positions_.Replace(0, 0, box_->Length(),
                       [this](int i) { return IsWide(box_->CharacterAt(i)); });
    ScrollToTop();
  } else if (difference) {
    ShowStretch(difference->before, box_->Length() - difference->behind,
                ViewLength() - difference->behind);
  }
  ShowCaret();
}

void RichTextView::ShowStretch(int start, int box_end, int view_end) {
  const Cells old = ViewCells(positions_.ToQt(start), positions_.ToQt(view_end));
  const Cells now = BoxCells(start, box_end);
  const auto [before, behind] = SharedCharacters(old, now);
  const auto at = [start](std::size_t cell) { return start + static_cast<int>(cell); };

  QTextCursor edit(&layout_.document());
  edit.beginEditBlock();
  if (before + behind < std::max(old.size(), now.size())) {
    QTextCursor cursor = Select(at(before), at(old.size() - behind));
    cursor.removeSelectedText();
    layout_.Insert(cursor, at(before), at(now.size() - behind));
    positions_.Replace(at(before), static_cast<int>(old.size() - behind - before),
                       static_cast<int>(now.size() - behind - before), [&, first = before](int i) {
                         return IsWide(now[first + static_cast<std::size_t>(i)].character);
                       });
  }
  const auto reformat = [&](std::size_t old_from, std::size_t now_from, std::size_t count) {
    ForEachFormatChange(old, now, old_from, now_from, count, [&](std::size_t from, std::size_t to) {
      Select(at(now_from + from), at(now_from + to))
          .setCharFormat(layout_.Format(now[now_from + from].format));
    });
  };
  reformat(0, 0, before);
  reformat(old.size() - behind, now.size() - behind, behind);

  const int qt_end = positions_.ToQt(box_end);
  for (QTextBlock block = layout_.document().findBlock(positions_.ToQt(start));
       block.isValid() && block.position() <= qt_end; block = block.next()) {
    const Alignment alignment = box_->AlignmentAt(positions_.FromQt(block.position()));
    if (RichTextLayout::AlignmentOf(block.blockFormat()) == alignment) continue;
    QTextCursor(block).setBlockFormat(RichTextLayout::ParagraphFormat(alignment));
  }
  edit.endEditBlock();
}

void RichTextView::ShowCaret() {
  const int start = box_->SelStart();
  const int end = start + box_->SelLength();
  const QTextCursor shown = Caret();
  if (positions_.ToQt(start) != shown.selectionStart() ||
      positions_.ToQt(end) != shown.selectionEnd()) {
    sheet_->setTextCursor(Select(start, end));
    // The start of a sheet shows with the paper's edge.
    if (start == 0 && end == 0) ScrollToTop();
  }
  ShowCaretFormat();
}

// What is typed without a selection takes the format that the cursor brings.
void RichTextView::ShowCaretFormat() {
  QTextCursor cursor = Caret();
  const std::uint32_t id = box_->CaretFormatId();
  if (cursor.hasSelection() || RichTextLayout::FormatId(cursor.charFormat()) == id) return;
  cursor.setCharFormat(layout_.Format(id));
  sheet_->setTextCursor(cursor);
}

// --- From the view to the box

void RichTextView::TakeEdit(int qt_position, int removed, int added) {
  if (mirroring_ || taking_ || box_ == nullptr) return;
  // Qt counts the end of the last paragraph as well.
  const int qt_old_length = positions_.ToQt(box_->Length());
  const int qt_old_end = std::min(qt_position + removed, qt_old_length);
  const int qt_end = std::min(qt_position + added, layout_.document().characterCount() - 1);
  const int start = positions_.FromQt(qt_position);
  const int box_end = positions_.FromQt(qt_old_end);

  const Cells now = ViewCells(qt_position, qt_end);
  positions_.Replace(start, box_end - start, static_cast<int>(now.size()),
                     [&](int i) { return IsWide(now[static_cast<std::size_t>(i)].character); });
  const QScopedValueRollback<bool> guard(taking_, true);
  TakeStretch(start, box_end, start + static_cast<int>(now.size()));
  // Should the two still differ, the box holds.
  if (box_ != nullptr && ViewLength() != box_->Length()) {
    whole_ = true;
    MirrorSoon();
  }
}

void RichTextView::TakeStretch(int start, int box_end, int view_end) {
  const Cells old = BoxCells(start, box_end);
  const Cells now = ViewCells(positions_.ToQt(start), positions_.ToQt(view_end));
  const auto [before, behind] = SharedCharacters(old, now);
  const auto at = [start](std::size_t cell) { return start + static_cast<int>(cell); };
  const auto format = [this](std::uint32_t id) -> const CharFormat& {
    return id == kNoFormat ? box_->CaretFormat() : box_->Format(id);
  };

  const auto replace = [&, first = before, end = now.size() - behind] {
    int to_remove = static_cast<int>(old.size() - behind - first);
    std::u32string text;
    for (std::size_t i = first; i < end || to_remove > 0;) {
      const std::size_t from = i;
      text.clear();
      for (; i < end && now[i].format == now[from].format; ++i) text.push_back(now[i].character);
      const CharFormat& run_format = from < end ? format(now[from].format) : box_->CaretFormat();
      box_->Replace(at(from), std::exchange(to_remove, 0), text, run_format);
    }
  };
  const auto reformat = [&](std::size_t old_from, std::size_t now_from, std::size_t count) {
    ForEachFormatChange(old, now, old_from, now_from, count, [&](std::size_t from, std::size_t to) {
      box_->Reformat(at(now_from + from), static_cast<int>(to - from),
                     format(now[now_from + from].format));
    });
  };
  const auto align = [&] {
    const int qt_end = positions_.ToQt(view_end);
    for (QTextBlock block = layout_.document().findBlock(positions_.ToQt(start));
         block.isValid() && block.position() <= qt_end; block = block.next()) {
      const int position = positions_.FromQt(block.position());
      const Alignment alignment = RichTextLayout::AlignmentOf(block.blockFormat());
      if (position <= box_->Length() && box_->AlignmentAt(position) != alignment) {
        box_->Align(position, 0, alignment);
      }
    }
  };
  runtime_.Dispatch([&] {
    replace();
    reformat(0, 0, before);
    reformat(old.size() - behind, now.size() - behind, behind);
    align();
  });
}

void RichTextView::TakeCaret() {
  if (box_ == nullptr || mirroring_) return;
  const QTextCursor cursor = Caret();
  const int start = positions_.FromQt(cursor.selectionStart());
  const int length = positions_.FromQt(cursor.selectionEnd()) - start;
  if (start != box_->SelStart() || length != box_->SelLength()) {
    runtime_.Dispatch([&] {
      if (start != box_->SelStart()) box_->SelStart(start);
      if (length != box_->SelLength()) box_->SelLength(length);
    });
  }
  if (box_ != nullptr) ShowCaretFormat();
}

// --- Reading both sides

RichTextView::Cells RichTextView::BoxCells(int start, int end) const {
  Cells cells;
  cells.reserve(static_cast<std::size_t>(std::max(end - start, 0)));
  for (int i = start; i < end; ++i) cells.push_back({box_->CharacterAt(i), box_->FormatIdAt(i)});
  return cells;
}

RichTextView::Cells RichTextView::ViewCells(int qt_start, int qt_end) const {
  Cells cells;
  cells.reserve(static_cast<std::size_t>(std::max(qt_end - qt_start, 0)));
  const auto id_of = [](const QTextCharFormat& format) {
    return RichTextLayout::FormatId(format).value_or(kNoFormat);
  };
  for (QTextBlock block = document().findBlock(qt_start);
       block.isValid() && block.position() < qt_end; block = block.next()) {
    for (auto it = block.begin(); !it.atEnd(); ++it) {
      const QTextFragment fragment = it.fragment();
      const int from = std::max(fragment.position(), qt_start);
      const int to = std::min(fragment.position() + fragment.length(), qt_end);
      if (from >= to) continue;
      const std::uint32_t id = id_of(fragment.charFormat());
      const QString text = fragment.text();
      for (const char32_t c :
           QStringView(text).mid(from - fragment.position(), to - from).toUcs4()) {
        cells.push_back({c, id});
      }
    }
    // The end of a paragraph has its format from the paragraph behind.
    const int line_end = block.position() + block.length() - 1;
    if (line_end >= qt_start && line_end < qt_end) {
      cells.push_back({U'\n', id_of(block.next().charFormat())});
    }
  }
  return cells;
}

int RichTextView::ViewLength() const {
  return document().characterCount() - 1 - positions_.Count();
}

QTextCursor RichTextView::Caret() const { return sheet_->textCursor(); }

QTextCursor RichTextView::Select(int start, int end) {
  QTextCursor cursor(&layout_.document());
  cursor.setPosition(positions_.ToQt(start));
  cursor.setPosition(positions_.ToQt(end), QTextCursor::KeepAnchor);
  return cursor;
}

// --- The teacher's commands

// A deed of the teacher's on the box, which can be undone.
template <class Deed>
void RichTextView::Do(Deed deed) {
  Mirror();
  if (box_ == nullptr) return;
  runtime_.Dispatch([&] { deed(*box_); });
  whole_ = false;
  Mirror();
  sheet_->setTextCursor(Caret());  // scrolls to it
  if (box_ != nullptr) ShowCaretFormat();
}

void RichTextView::Undo() {
  Mirror();
  QTextCursor cursor = Caret();
  layout_.document().undo(&cursor);
  MoveCaret(cursor);
}

void RichTextView::Redo() {
  Mirror();
  QTextCursor cursor = Caret();
  layout_.document().redo(&cursor);
  MoveCaret(cursor);
}

void RichTextView::Cut() {
  Copy();
  Delete();
}

void RichTextView::Copy() {
  Mirror();
  if (box_ == nullptr || box_->SelLength() == 0) return;
  auto* mime = new RichTextMimeData(*box_, box_->SelStart(), box_->SelStart() + box_->SelLength());
  mime->setHtml(Caret().selection().toHtml());
  QApplication::clipboard()->setMimeData(mime);
}

void RichTextView::Paste() {
  if (const QMimeData* mime = QApplication::clipboard()->mimeData()) Insert(*mime);
}

void RichTextView::Delete() {
  Do([](RichText& text) {
    if (text.SelLength() > 0)
      text.Replace(text.SelStart(), text.SelLength(), {}, text.CaretFormat());
  });
}

void RichTextView::SelectAll() {
  Mirror();
  QTextCursor cursor = Caret();
  cursor.select(QTextCursor::Document);
  MoveCaret(cursor);
}

void RichTextView::Insert(const QMimeData& mime) {
  if (!CanInsertMimeData(mime)) return;
  Do([&](RichText& text) { InsertMimeData(text, mime, kColumnTwips); });
}

void RichTextView::Drop(const QMimeData& mime, const QPointF& point, bool own, bool move) {
  const int target = PositionAt(point);
  if (!own) {
    Do([&](RichText& text) {
      text.SelStart(target);
      InsertMimeData(text, mime, kColumnTwips);
    });
    return;
  }
  Do([&](RichText& text) {
    const int start = text.SelStart();
    const int length = text.SelLength();
    if (target >= start && target <= start + length) return;
    const RichTextMimeData dragged(text, start, start + length);
    int place = target;
    if (move) {
      text.Replace(start, length, {}, text.CaretFormat());
      if (target > start) place -= length;
    }
    text.SelStart(place);
    dragged.InsertInto(text);
  });
}

void RichTextView::ToggleBold() {
  Do([](RichText& text) { text.SelBold(!text.SelBold().value_or(false)); });
}

void RichTextView::ToggleItalic() {
  Do([](RichText& text) { text.SelItalic(!text.SelItalic().value_or(false)); });
}

void RichTextView::ToggleUnderline() {
  Do([](RichText& text) { text.SelUnderline(!text.SelUnderline().value_or(false)); });
}

// Typing over a selection takes the format of its first character, and every kind of Enter ends
// the paragraph.
bool RichTextView::TypeText(QKeyEvent* event) {
  if (box_ == nullptr) return false;
  QTextCursor cursor = Caret();
  const QTextCharFormat format = layout_.Format(box_->CaretFormatId());
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  const Qt::KeyboardModifiers held = event->modifiers() & (Qt::ControlModifier | Qt::AltModifier);
  const bool third_level = held == (Qt::ControlModifier | Qt::AltModifier);
  const bool types = !event->text().isEmpty() &&
                     (event->text()[0].isPrint() || event->text()[0] == QLatin1Char('\t')) &&
                     (held == Qt::NoModifier || third_level);
  if (enter && held == Qt::NoModifier) {
    const QTextBlock first = layout_.document().findBlock(cursor.selectionStart());
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
  sheet_->setTextCursor(cursor);
  ensureVisible(CaretRect(cursor), 0, kGround);
  TakeCaret();
}

void RichTextView::MovePage(bool up, bool select) {
  Mirror();
  QTextCursor cursor = Caret();
  const double page = viewport()->height() / PixelsPerDot() * 0.9;
  const QPointF from = CaretRect(cursor).center();
  const int position = layout_.document().documentLayout()->hitTest(
      from + QPointF(0, up ? -page : page), Qt::FuzzyHit);
  cursor.setPosition(position, select ? QTextCursor::KeepAnchor : QTextCursor::MoveAnchor);
  QScrollBar* bar = verticalScrollBar();
  bar->setValue(bar->value() + (up ? -1 : 1) * static_cast<int>(page * PixelsPerDot()));
  MoveCaret(cursor);
}

// --- Finding

void RichTextView::OpenFindBar() {
  const QString selected = Caret().selectedText();
  const bool on_one_line = !selected.contains(QChar::ParagraphSeparator);
  PlaceFindBar();
  find_bar_->Open(on_one_line ? selected : QString());
}

void RichTextView::CloseFindBar() {
  find_bar_->hide();
  setFocus(Qt::OtherFocusReason);
}

void RichTextView::FindNext(bool backward) { FindFrom(Caret(), backward); }

void RichTextView::FindFrom(QTextCursor from, bool backward) {
  Mirror();
  const QString text = find_bar_->Text();
  if (text.isEmpty()) return find_bar_->ShowFound(true);
  const auto flags = backward ? QTextDocument::FindBackward : QTextDocument::FindFlags();
  QTextCursor found = document().find(text, from, flags);
  if (found.isNull()) {  // once around
    QTextCursor edge(&layout_.document());
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
  return QGraphicsView::event(event);
}

void RichTextView::keyPressEvent(QKeyEvent* event) {
  const Command command = CommandOf(*event);
  const bool select = event->modifiers().testFlag(Qt::ShiftModifier);
  if (command != nullptr) {
    (this->*command)();
  } else if (event->key() == Qt::Key_Escape && find_bar_->isVisible()) {
    CloseFindBar();
  } else if (event->key() == Qt::Key_Escape) {
    event->ignore();
  } else if (event->key() == Qt::Key_PageUp || event->key() == Qt::Key_PageDown) {
    MovePage(event->key() == Qt::Key_PageUp, select);
  } else {
    scene_.sendEvent(sheet_, event);
  }
}

// Tab is a character here; Ctrl+Tab leaves.
bool RichTextView::focusNextPrevChild(bool) { return false; }

// --- The mouse

// The point of the column that is nearest, so that a click beside the text is one into it.
QPoint RichTextView::IntoColumn(const QPoint& point) const {
  QRectF column = sheet_->sceneBoundingRect();
  column.adjust(1, 1, -1, -1);
  const QPointF from = mapToScene(point);
  const QPointF inside(std::clamp(from.x(), column.left(), column.right()),
                       std::clamp(from.y(), column.top(), column.bottom()));
  return mapFromScene(inside);
}

QMouseEvent RichTextView::InsideColumn(const QMouseEvent& event) const {
  const QPoint point = IntoColumn(event.pos());
  return QMouseEvent(event.type(), point, viewport()->mapToGlobal(point), event.button(),
                     event.buttons(), event.modifiers());
}

void RichTextView::mousePressEvent(QMouseEvent* event) {
  QMouseEvent inside = InsideColumn(*event);
  QGraphicsView::mousePressEvent(&inside);
}

void RichTextView::mouseDoubleClickEvent(QMouseEvent* event) {
  QMouseEvent inside = InsideColumn(*event);
  QGraphicsView::mouseDoubleClickEvent(&inside);
}

// A selection that is drawn beyond the edge scrolls on.
void RichTextView::mouseMoveEvent(QMouseEvent* event) {
  QGraphicsView::mouseMoveEvent(event);
  drag_point_ = event->pos();
  const bool outside =
      event->buttons().testFlag(Qt::LeftButton) && !viewport()->rect().contains(drag_point_);
  if (!outside) {
    drag_timer_.stop();
  } else if (!drag_timer_.isActive()) {
    drag_timer_.start(kDragInterval, this);
  }
}

void RichTextView::timerEvent(QTimerEvent* event) {
  if (event->timerId() != drag_timer_.timerId()) return QGraphicsView::timerEvent(event);
  const auto beyond = [](int at, int end) { return std::min(at, 0) + std::max(at - end, 0); };
  QScrollBar& across = *horizontalScrollBar();
  QScrollBar& down = *verticalScrollBar();
  across.setValue(across.value() + beyond(drag_point_.x(), viewport()->width()) / 2);
  down.setValue(down.value() + beyond(drag_point_.y(), viewport()->height()) / 2);
  QMouseEvent move(QEvent::MouseMove, drag_point_, viewport()->mapToGlobal(drag_point_),
                   Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
  QGraphicsView::mouseMoveEvent(&move);
}

void RichTextView::mouseReleaseEvent(QMouseEvent* event) {
  drag_timer_.stop();
  const QClipboard& clipboard = *QApplication::clipboard();
  if (event->button() != Qt::MiddleButton || !clipboard.supportsSelection()) {
    return QGraphicsView::mouseReleaseEvent(event);
  }
  if (const QMimeData* mime = clipboard.mimeData(QClipboard::Selection)) {
    Drop(*mime, mapToScene(IntoColumn(event->pos())), false, false);
  }
}

void RichTextView::wheelEvent(QWheelEvent* event) {
  if (!event->modifiers().testFlag(Qt::ControlModifier)) return QGraphicsView::wheelEvent(event);
  wheel_turned_ += event->angleDelta().y();
  Zoom(zoom_ + 10 * (wheel_turned_ / kNotch));
  wheel_turned_ %= kNotch;
  event->accept();
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
  const bool editable = box_ != nullptr;
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

QRectF RichTextView::CaretRect(const QTextCursor& cursor) const {
  const QTextBlock block = cursor.block();
  const QTextLayout& layout = *block.layout();
  const QTextLine line = layout.lineForTextPosition(cursor.positionInBlock());
  const QPointF origin = document().documentLayout()->blockBoundingRect(block).topLeft();
  if (!line.isValid()) return {origin, QSizeF(kCaretWidth, kCaretHeight)};
  const QPointF place(line.cursorToX(cursor.positionInBlock()), line.y());
  return {origin + place, QSizeF(kCaretWidth, line.height())};
}

int RichTextView::PositionAt(const QPointF& point) const {
  return positions_.FromQt(document().documentLayout()->hitTest(point, Qt::FuzzyHit));
}

double RichTextView::PixelsPerDot() const {
  return logicalDpiX() * zoom_ / 100.0 / RichTextLayout::kDotsPerInch;
}

void RichTextView::Zoom(int percent) {
  percent = std::clamp(percent, kSmallestZoom, kLargestZoom);
  if (percent == zoom_) return;
  zoom_ = percent;
  PlaceSheet();
}

// The sheet is as high as its text, or as the window when that is more; its margins give way in a
// narrow window before the column has to be scrolled.
void RichTextView::PlaceSheet() {
  const double scale = PixelsPerDot();
  const double ground = kGround / scale;
  const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
  const double width = (this->width() - bar) / scale - 2 * ground;
  const double height = (this->height() - 1) / scale - 2 * ground;
  const double margin =
      std::clamp((width - RichTextLayout::kColumnWidth) / 2, kLeastMargin, kPaperMargin);
  const double text_height = document().size().height();
  paper_ = QRectF(-margin, -kPaperMargin, RichTextLayout::kColumnWidth + 2 * margin,
                  std::max(text_height + 2 * kPaperMargin, std::floor(height)));
  setTransform(QTransform::fromScale(scale, scale));
  setSceneRect(paper_.adjusted(-ground, -ground, ground, ground));
  viewport()->update();
}

void RichTextView::ScrollToTop() { verticalScrollBar()->setValue(verticalScrollBar()->minimum()); }

void RichTextView::PlaceFindBar() {
  find_bar_->adjustSize();
  find_bar_->move(viewport()->geometry().right() - find_bar_->width() - kGround,
                  viewport()->geometry().top() + kGround);
}

void RichTextView::resizeEvent(QResizeEvent* event) {
  QGraphicsView::resizeEvent(event);
  PlaceSheet();
  PlaceFindBar();
}

void RichTextView::drawBackground(QPainter* painter, const QRectF& exposed) {
  painter->fillRect(exposed, palette::kPaperShade);
  painter->fillRect(paper_.intersected(exposed), Qt::white);
  painter->setPen(QPen(palette::kPale, 0));
  painter->drawRect(paper_);
}

}  // namespace brindlepage
