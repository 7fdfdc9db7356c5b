#include "desktop/rich_text_mirror.h"

#include <QGraphicsTextItem>
#include <QScopedValueRollback>
#include <QTextBlock>
#include <algorithm>
#include <utility>

namespace brindlepage {

namespace {

// A format of a shown character that the box does not know; input methods can leave one.
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

RichTextMirror::RichTextMirror(RichTextBox& box, QGraphicsTextItem& sheet, Runtime& runtime)
    : box_(&box), sheet_(sheet), runtime_(runtime), layout_(box) {
  sheet_.setDocument(&layout_.document());
  connect(&layout_.document(), &QTextDocument::contentsChange, this, &RichTextMirror::TakeEdit);
  layout_.HangBlanks();
  box.Observe(this);
}

RichTextMirror::~RichTextMirror() { Leave(); }

void RichTextMirror::Leave() {
  if (box_ == nullptr) return;
  box_->StopObserving(this);
  box_ = nullptr;
}

void RichTextMirror::Do(const std::function<void(RichText&)>& deed) {
  ShowBox();
  if (box_ == nullptr) return;
  runtime_.Dispatch([&] { deed(*box_); });
  whole_ = false;
  ShowBox();
  // Scrolls to the caret, but not along all that is selected.
  if (QTextCursor caret = sheet_.textCursor(); !caret.hasSelection()) sheet_.setTextCursor(caret);
  if (box_ != nullptr) ShowCaretFormat();
}

// --- From the box to the sheet

void RichTextMirror::Replaced(int position, int removed, int inserted) {
  const int old_length = box_->Length() - inserted + removed;
  if (removed > 0 && removed == old_length && !taking_) whole_ = true;
  Note(position, position + inserted);
}

void RichTextMirror::Reformatted(int position, int count) { Note(position, position + count); }

void RichTextMirror::ParagraphsAligned(int position, int count) {
  Note(position, position + count);
}

void RichTextMirror::CaretMoved() { ShowBoxSoon(); }

void RichTextMirror::Note(int position, int end) {
  const int behind = box_->Length() - end;
  difference_ = difference_ ? Difference{std::min(difference_->before, position),
                                         std::min(difference_->behind, behind)}
                            : Difference{position, behind};
  ShowBoxSoon();
}

void RichTextMirror::ShowBoxSoon() {
  if (!begun_) return;
  if (!runtime_.InHandler() && !taking_) {
    ShowTop();
  } else if (!show_soon_) {
    show_soon_ = true;
    QMetaObject::invokeMethod(this, &RichTextMirror::ShowTop, Qt::QueuedConnection);
  }
}

void RichTextMirror::Show(Extent extent) {
  if (box_ == nullptr || showing_ || taking_) return;
  show_soon_ = false;
  begun_ = true;
  const QScopedValueRollback<bool> guard(showing_, true);
  const auto difference = std::exchange(difference_, std::nullopt);
  if (rest_ && difference) whole_ = true;  // nothing has been done with the sheet yet
  if (std::exchange(whole_, false)) {
    LoadWhole(extent);
    positions_ = {};
    positions_.Replace(0, 0, box_->Length(),
                       [this](int i) { return IsWide(box_->CharacterAt(i)); });
    emit StartShown();
  } else if (difference) {
    ShowStretch(difference->before, box_->Length() - difference->behind,
                SheetLength() - difference->behind);
  } else if (rest_ && (extent == Extent::All || CaretEnd() >= *rest_)) {
    LoadRest();
  }
  ShowCaret();
}

void RichTextMirror::LoadWhole(Extent extent) {
  // The text would push the caret on to its end, and to draw it there have all laid out.
  sheet_.setTextCursor({});
  const int end = extent == Extent::Top ? TopEnd() : box_->Length();
  layout_.Load(0, end);
  rest_ = end < box_->Length() ? std::optional(end) : std::nullopt;
  sheet_.setTextCursor(QTextCursor(&layout_.document()));
}

void RichTextMirror::LoadRest() {
  layout_.LoadMore(*rest_, box_->Length());
  rest_.reset();
}

// Behind the lines that even a large screen shows of it.
int RichTextMirror::TopEnd() const {
  constexpr int kMuch = 12'000;  // characters
  for (int end = kMuch; end < box_->Length(); ++end) {
    if (box_->CharacterAt(end - 1) == U'\n') return CaretEnd() < end ? end : box_->Length();
  }
  return box_->Length();
}

int RichTextMirror::CaretEnd() const { return box_->SelStart() + box_->SelLength(); }

void RichTextMirror::ShowStretch(int start, int box_end, int sheet_end) {
  const Cells old = SheetCells(positions_.ToQt(start), positions_.ToQt(sheet_end));
  const Cells now = BoxCells(start, box_end);
  const auto [before, behind] = SharedCharacters(old, now);
  const auto at = [start](std::size_t cell) { return start + static_cast<int>(cell); };

  QTextCursor edit = sheet_.textCursor();  // where undo leads back to
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

void RichTextMirror::ShowCaret() {
  const int start = box_->SelStart();
  const int end = CaretEnd();
  const QTextCursor shown = sheet_.textCursor();
  if (positions_.ToQt(start) != shown.selectionStart() ||
      positions_.ToQt(end) != shown.selectionEnd()) {
    sheet_.setTextCursor(Select(start, end));
    // The start of a sheet, where the program puts the caret behind the first character, shows with
    // the paper's edge.
    if (end <= 1) emit StartShown();
  }
  ShowCaretFormat();
}

// What is typed without a selection takes the format that the cursor brings.
void RichTextMirror::ShowCaretFormat() {
  QTextCursor cursor = sheet_.textCursor();
  const std::uint32_t id = box_->CaretFormatId();
  if (cursor.hasSelection() || RichTextLayout::FormatId(cursor.charFormat()) == id) return;
  cursor.setCharFormat(layout_.Format(id));
  sheet_.setTextCursor(cursor);
}

// --- From the sheet to the box

void RichTextMirror::TakeEdit(int qt_position, int removed, int added) {
  if (showing_ || taking_ || box_ == nullptr) return;
  // Qt counts the end of the last paragraph as well.
  const int qt_old_length = positions_.ToQt(box_->Length());
  const int qt_old_end = std::min(qt_position + removed, qt_old_length);
  const int qt_end = std::min(qt_position + added, layout_.document().characterCount() - 1);
  const int start = positions_.FromQt(qt_position);
  const int box_end = positions_.FromQt(qt_old_end);

  const Cells now = SheetCells(qt_position, qt_end);
  positions_.Replace(start, box_end - start, static_cast<int>(now.size()),
                     [&](int i) { return IsWide(now[static_cast<std::size_t>(i)].character); });
  const QScopedValueRollback<bool> guard(taking_, true);
  TakeStretch(start, box_end, start + static_cast<int>(now.size()));
  // Should the two still differ, the box holds.
  if (box_ != nullptr && SheetLength() != box_->Length()) {
    whole_ = true;
    ShowBoxSoon();
  }
}

void RichTextMirror::TakeStretch(int start, int box_end, int sheet_end) {
  const Cells old = BoxCells(start, box_end);
  const Cells now = SheetCells(positions_.ToQt(start), positions_.ToQt(sheet_end));
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
    const int qt_end = positions_.ToQt(sheet_end);
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

void RichTextMirror::TakeCaret() {
  if (box_ == nullptr || showing_) return;
  const QTextCursor cursor = sheet_.textCursor();
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

RichTextMirror::Cells RichTextMirror::BoxCells(int start, int end) const {
  Cells cells;
  cells.reserve(static_cast<std::size_t>(std::max(end - start, 0)));
  for (int i = start; i < end; ++i) cells.push_back({box_->CharacterAt(i), box_->FormatIdAt(i)});
  return cells;
}

RichTextMirror::Cells RichTextMirror::SheetCells(int qt_start, int qt_end) const {
  Cells cells;
  cells.reserve(static_cast<std::size_t>(std::max(qt_end - qt_start, 0)));
  const auto id_of = [](const QTextCharFormat& format) {
    return RichTextLayout::FormatId(format).value_or(kNoFormat);
  };
  for (QTextBlock block = layout_.document().findBlock(qt_start);
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

int RichTextMirror::SheetLength() const {
  return layout_.document().characterCount() - 1 - positions_.Count();
}

QTextCursor RichTextMirror::Select(int start, int end) {
  QTextCursor cursor(&layout_.document());
  cursor.setPosition(positions_.ToQt(start));
  cursor.setPosition(positions_.ToQt(end), QTextCursor::KeepAnchor);
  return cursor;
}

}  // namespace brindlepage
