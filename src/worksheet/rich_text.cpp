#include "worksheet/rich_text.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <utility>

#include "toolkit/code_page.h"

namespace brindlepage {

namespace {

constexpr char32_t kLineEnd = U'\n';
constexpr char32_t kParagraphSeparator = 0x2029;
constexpr char32_t kReplacement = 0xFFFD;

bool MakesSense(char32_t c) {
  const bool surrogate = c >= 0xD800 && c <= 0xDFFF;
  const bool noncharacter = (c & 0xFFFE) == 0xFFFE || (c >= 0xFDD0 && c <= 0xFDEF);
  return c != 0 && c <= 0x10FFFF && !surrogate && !noncharacter;
}

// Most text is plain ASCII, which needs neither the code page nor a second look.
bool IsPlain(char32_t c) { return c >= 0x20 && c < 0x80; }

char32_t Decoded(char32_t character) { return character; }

char32_t Decoded(char byte) {
  const auto code = static_cast<unsigned char>(byte);
  return IsPlain(code) ? code : code_page::ToUnicode(byte);
}

// Bytes or characters as the document keeps them, put one by one: every line end one '\n', and
// U+FFFD for what makes no sense.
template <class Character, class Put>
void PutClean(std::basic_string_view<Character> raw, bool has_picture, Put put) {
  bool behind_return = false;
  for (const Character character : raw) {
    const char32_t c = Decoded(character);
    if (IsPlain(c)) {
      put(c);
    } else if (c == U'\n') {
      if (!behind_return) put(kLineEnd);
    } else if (c == U'\r' || c == kParagraphSeparator) {
      put(kLineEnd);
    } else {
      put(MakesSense(c) && (c != kPictureCharacter || has_picture) ? c : kReplacement);
    }
    behind_return = c == U'\r';
  }
}

template <class Character>
void Clean(std::basic_string_view<Character> raw, bool has_picture, std::u32string& clean) {
  clean.resize(raw.size());
  auto to = clean.begin();
  PutClean(raw, has_picture, [&to](char32_t c) { *to++ = c; });
  clean.erase(to, clean.end());
}

int Twentieths(double points) {
  if (!(points >= 1 && points <= 1638)) throw RunTimeError(Fault::InvalidCall);
  return static_cast<int>(std::lround(points * 20));
}

CharFormat PlainFormat(std::string font, double points) {
  CharFormat format;
  format.font = std::move(font);
  format.size = Twentieths(points);
  return format;
}

Alignment ParagraphAlignment(const RichContent& content, std::size_t paragraph) {
  return paragraph < content.alignments.size() ? content.alignments[paragraph] : Alignment::Left;
}

void RequireNotNegative(int number) {
  if (number < 0) throw RunTimeError(Fault::InvalidCall);
}

}  // namespace

RichText::RichText(std::string design_font, double design_points)
    : design_format_(Intern(PlainFormat(std::move(design_font), design_points))),
      caret_format_(design_format_) {}

// --- Text, caret and selection

std::u32string RichText::Text() const {
  std::u32string text;
  text.reserve(static_cast<std::size_t>(TextLength()));
  for (int i = 0; i < Length(); ++i) {
    if (cells_[i].character == kLineEnd) text.push_back(U'\r');
    text.push_back(cells_[i].character);
  }
  return text;
}

void RichText::Text(std::string_view bytes) {
  Clean(bytes, false, incoming_);
  SpliceAll(AlignmentAt(caret_));
}

int RichText::TextLength() const { return Length() + line_ends_; }

void RichText::SelStart(int position) {
  RequireNotNegative(position);
  Select(std::min(position, Length()), 0);
}

void RichText::SelLength(int length) {
  RequireNotNegative(length);
  Select(caret_, std::min(length, Length() - caret_));
}

void RichText::SelText(std::string_view bytes) {
  Clean(bytes, false, incoming_);
  SpliceSelection(caret_format_);
}

void RichText::SelUnicode(std::u32string_view text) {
  Clean(text, false, incoming_);
  SpliceSelection(caret_format_);
}

void RichText::SelContent(const RichContent& content) {
  const Stretch old = Selection();
  const int start = old.position;
  incoming_.clear();
  Splice(old, caret_format_, caret_format_);
  const Alignment there = AlignmentAt(start);
  const bool opens = IsEdge(start - 1);

  const int end = InsertSpans(start, content);
  if (old.count == 0 && end == start) return;
  const bool closes = IsEdge(end) && !IsEdge(end - 1);
  if (!closes) SetAlignment(end, there);
  if (opens && ParagraphStart(end) > start) SetAlignment(start, ParagraphAlignment(content, 0));
  caret_ = end;
  selected_ = 0;
  caret_format_ = FormatAtCaret();
  Report(&RichTextObserver::Replaced, start, old.count, end - start);
  Report(&RichTextObserver::CaretMoved);
}

void RichText::InsertPicture(std::shared_ptr<const RichPicture> picture) {
  if (!picture) throw RunTimeError(Fault::InvalidPicture);
  CharFormat format = CaretFormat();
  format.picture = std::move(picture);
  incoming_.assign(1, kPictureCharacter);
  SpliceSelection(Intern(std::move(format)));
}

// --- Attributes of the selection

std::optional<std::string> RichText::SelFontName() const { return Selected(&CharFormat::font); }

void RichText::SelFontName(std::string_view name) {
  SetSelected(&CharFormat::font, std::string(name));
}

std::optional<double> RichText::SelFontSize() const {
  const std::optional<int> size = Selected(&CharFormat::size);
  return size ? std::optional(*size / 20.0) : std::nullopt;
}

void RichText::SelFontSize(double points) { SetSelected(&CharFormat::size, Twentieths(points)); }

std::optional<bool> RichText::SelBold() const { return Selected(&CharFormat::bold); }

void RichText::SelBold(bool bold) { SetSelected(&CharFormat::bold, bold); }

std::optional<bool> RichText::SelItalic() const { return Selected(&CharFormat::italic); }

void RichText::SelItalic(bool italic) { SetSelected(&CharFormat::italic, italic); }

std::optional<bool> RichText::SelUnderline() const { return Selected(&CharFormat::underline); }

void RichText::SelUnderline(bool underline) { SetSelected(&CharFormat::underline, underline); }

std::optional<std::uint32_t> RichText::SelColor() const { return Selected(&CharFormat::color); }

void RichText::SelColor(std::uint32_t color) { SetSelected(&CharFormat::color, color & 0xFFFFFF); }

std::optional<Alignment> RichText::SelAlignment() const {
  const Alignment first = AlignmentAt(caret_);
  const int last = LastPosition(Selection());
  for (int i = caret_; i < last; ++i) {
    if (cells_[i].character == kLineEnd && AlignmentBehind(i) != first) return std::nullopt;
  }
  return first;
}

void RichText::SelAlignment(Alignment alignment) { Align(caret_, selected_, alignment); }

// --- Reading

const CharFormat& RichText::FormatAt(int position) const { return Format(FormatIdAt(position)); }

Alignment RichText::AlignmentAt(int position) const {
  if (position < 0 || position > Length()) throw RunTimeError(Fault::Subscript);
  const int start = ParagraphStart(position);
  return start == 0 ? first_alignment_ : AlignmentBehind(start - 1);
}

void RichText::CaretFormat(const CharFormat& format) {
  const std::uint32_t id = InternWithoutPicture(format);
  if (id == caret_format_) return;
  caret_format_ = id;
  Report(&RichTextObserver::Reformatted, caret_, 0);
}

std::u32string RichText::PlainText() const {
  std::u32string text;
  text.reserve(static_cast<std::size_t>(Length()));
  for (int i = 0; i < Length(); ++i) text.push_back(cells_[i].character);
  return text;
}

std::vector<RichText::Paragraph> RichText::Paragraphs() const {
  std::vector<Paragraph> paragraphs;
  paragraphs.reserve(static_cast<std::size_t>(line_ends_) + 1);
  int start = 0;
  Alignment alignment = first_alignment_;
  for (int i = 0; i < Length(); ++i) {
    if (cells_[i].character != kLineEnd) continue;
    paragraphs.push_back({start, i + 1 - start, alignment});
    start = i + 1;
    alignment = AlignmentBehind(i);
  }
  paragraphs.push_back({start, Length() - start, alignment});
  return paragraphs;
}

std::vector<RichText::Run> RichText::Runs(const Paragraph& paragraph) const {
  const Stretch stretch = Cut(paragraph.start, paragraph.length);
  std::vector<Run> runs;
  for (int i = stretch.position; i < stretch.End(); ++i) {
    const CharFormat* const format = &Format(cells_[i].format);
    const bool goes_on = !runs.empty() && runs.back().format == format && !format->picture;
    if (goes_on) {
      ++runs.back().length;
    } else {
      runs.push_back({i, 1, format});
    }
  }
  return runs;
}

// --- Editing anywhere

void RichText::Replace(int position, int removed, std::u32string_view text,
                       const CharFormat& format) {
  const Stretch old = Cut(position, removed);
  Clean(text, format.picture != nullptr, incoming_);
  const int inserted = Splice(old, InternWithoutPicture(format), Intern(format));
  if (old.count == 0 && inserted == 0) return;

  const auto touched = [&](int p) { return p >= old.position && p <= old.End(); };
  const auto moved = [&](int p) {
    if (p < old.position) return p;
    return std::max(p, old.End()) - old.count + inserted;
  };
  const Stretch before = Selection();
  caret_ = moved(before.position);
  selected_ = moved(before.End()) - caret_;
  if (touched(before.position) || touched(before.End())) caret_format_ = FormatAtCaret();

  Report(&RichTextObserver::Replaced, old.position, old.count, inserted);
  if (caret_ != before.position || selected_ != before.count) {
    Report(&RichTextObserver::CaretMoved);
  }
}

void RichText::Reformat(int position, int count, const CharFormat& format) {
  const Stretch stretch = Cut(position, count);
  const bool changed = ChangeFormats(stretch, [&](CharFormat& old) {
    auto picture = old.picture && format.picture ? format.picture : old.picture;
    old = format;
    old.picture = std::move(picture);
  });
  if (!changed) return;
  if (selected_ > 0) caret_format_ = FormatAtCaret();
  Report(&RichTextObserver::Reformatted, stretch.position, stretch.count);
}

void RichText::Align(int position, int count, Alignment alignment) {
  const Stretch stretch = Cut(position, count);
  const int start = ParagraphStart(stretch.position);
  const int last = LastPosition(stretch);
  bool changed = false;
  if (start == 0) {
    changed = first_alignment_ != alignment;
    first_alignment_ = alignment;
  }
  for (int i = std::max(start - 1, 0); i < last; ++i) {
    if (cells_[i].character != kLineEnd || AlignmentBehind(i) == alignment) continue;
    cells_[i].alignment = static_cast<std::uint32_t>(alignment) & 3;
    changed = true;
  }
  if (changed) Report(&RichTextObserver::ParagraphsAligned, stretch.position, stretch.count);
}

void RichText::Clear() {
  incoming_.clear();
  SpliceAll(Alignment::Left);
}

RichContent RichText::Content(int position, int count) const {
  constexpr std::size_t kUnused = static_cast<std::size_t>(-1);
  const Stretch stretch = Cut(position, count);
  RichContent content;
  content.text.resize(static_cast<std::size_t>(stretch.count));
  content.alignments.push_back(AlignmentAt(stretch.position));
  std::vector<std::size_t> indexes(formats_.size(), kUnused);
  char32_t* to = content.text.data();
  for (int i = stretch.position; i < stretch.End();) {
    const std::uint32_t id = cells_[i].format;
    if (indexes[id] == kUnused) {
      indexes[id] = content.formats.size();
      content.formats.push_back(Format(id));
    }
    const int start = i;
    for (; i < stretch.End() && cells_[i].format == id; ++i) {
      const Cell cell = cells_[i];
      *to++ = cell.character;
      if (cell.character == kLineEnd) content.alignments.push_back(AlignmentBehind(i));
    }
    content.spans.push_back({static_cast<std::size_t>(i - start), indexes[id]});
  }
  return content;
}

void RichText::Load(const RichContent& content) {
  const Stretch before = Selection();
  const int removed = Length();
  cells_.Remove(0, removed);
  line_ends_ = 0;
  first_alignment_ = ParagraphAlignment(content, 0);
  InsertSpans(0, content);
  caret_ = 0;
  selected_ = 0;
  caret_format_ = FormatAtCaret();

  Report(&RichTextObserver::Replaced, 0, removed, Length());
  if (before.position > 0 || before.count > 0) Report(&RichTextObserver::CaretMoved);
}

int RichText::InsertSpans(int position, const RichContent& content) {
  std::vector<std::uint32_t> ids;
  for (const CharFormat& format : content.formats) ids.push_back(Intern(format));
  std::size_t paragraph = 0;
  const auto next_alignment = [&] { return ParagraphAlignment(content, ++paragraph); };
  std::u32string_view rest = content.text;
  for (const RichContent::Span& span : content.spans) {
    position = InsertSpan(position, rest.substr(0, span.length), ids[span.format], next_alignment);
    rest.remove_prefix(span.length);
  }
  return position;
}

template <class NextAlignment>
int RichText::InsertSpan(int position, std::u32string_view text, std::uint32_t picture_format,
                         NextAlignment next_alignment) {
  const bool has_picture = Format(picture_format).picture != nullptr;
  const std::uint32_t text_format =
      has_picture ? InternWithoutPicture(Format(picture_format)) : picture_format;
  const int room = static_cast<int>(text.size());
  Cell* const cells = cells_.Insert(position, room);
  Cell* cell = cells;
  PutClean(text, has_picture, [&](char32_t c) {
    Cell inserted{.character = c & 0x1FFFFF, .alignment = 0, .format = text_format};
    if (c == kLineEnd) {
      inserted.alignment = static_cast<std::uint32_t>(next_alignment()) & 3;
      ++line_ends_;
    } else if (c == kPictureCharacter) {
      inserted.format = picture_format;
    }
    *cell++ = inserted;
  });
  const int inserted = static_cast<int>(cell - cells);
  cells_.Remove(position + inserted, room - inserted);
  return position + inserted;
}

// --- Observers

void RichText::Observe(RichTextObserver* observer) { observers_.push_back(observer); }

void RichText::StopObserving(RichTextObserver* observer) { std::erase(observers_, observer); }

template <class... Arguments>
void RichText::Report(void (RichTextObserver::*event)(Arguments...),
                      std::type_identity_t<Arguments>... arguments) const {
  for (RichTextObserver* const observer : observers_) (observer->*event)(arguments...);
}

// --- Formats

std::size_t RichText::FormatHash::operator()(const CharFormat& format) const {
  std::size_t hash = std::hash<std::string>()(format.font);
  const auto add = [&hash](std::size_t value) { hash = hash * 1000003 + value; };
  add(static_cast<std::size_t>(format.size));
  add(format.bold + 2U * format.italic + 4U * format.underline);
  add(format.color);
  add(std::hash<std::shared_ptr<const RichPicture>>()(format.picture));
  return hash;
}

std::uint32_t RichText::Intern(CharFormat format) {
  const auto next_id = static_cast<std::uint32_t>(formats_.size());
  const auto [entry, is_new] = format_ids_.try_emplace(std::move(format), next_id);
  if (is_new) formats_.push_back(&entry->first);
  return entry->second;
}

std::uint32_t RichText::InternWithoutPicture(CharFormat format) {
  format.picture = nullptr;
  return Intern(std::move(format));
}

std::uint32_t RichText::FormatAtCaret() {
  if (Length() == 0) return design_format_;
  const bool look_behind = selected_ > 0 || caret_ == 0;
  const std::uint32_t id = cells_[look_behind ? caret_ : caret_ - 1].format;
  return Format(id).picture ? InternWithoutPicture(Format(id)) : id;
}

template <class Change>
bool RichText::ChangeFormats(const Stretch& stretch, Change change) {
  bool changed = false;
  for (int i = stretch.position; i < stretch.End();) {
    const std::uint32_t old_id = cells_[i].format;
    CharFormat format = Format(old_id);
    change(format);
    const std::uint32_t new_id = Intern(std::move(format));
    changed |= new_id != old_id;
    for (; i < stretch.End() && cells_[i].format == old_id; ++i) cells_[i].format = new_id;
  }
  return changed;
}

template <class T>
void RichText::SetSelected(T CharFormat::*attribute, const T& value) {
  if (selected_ == 0) {
    CharFormat format = CaretFormat();
    format.*attribute = value;
    CaretFormat(format);
    return;
  }
  const auto set = [&](CharFormat& format) { format.*attribute = value; };
  if (!ChangeFormats(Selection(), set)) return;
  caret_format_ = FormatAtCaret();
  Report(&RichTextObserver::Reformatted, caret_, selected_);
}

template <class T>
std::optional<T> RichText::Selected(T CharFormat::*attribute) const {
  if (selected_ == 0) return CaretFormat().*attribute;
  const std::uint32_t first_id = cells_[caret_].format;
  const T& first = Format(first_id).*attribute;
  for (int i = caret_ + 1; i < caret_ + selected_; ++i) {
    const std::uint32_t id = cells_[i].format;
    if (id != first_id && Format(id).*attribute != first) return std::nullopt;
  }
  return first;
}

// --- Changing the cells

RichText::Stretch RichText::Cut(int position, int count) const {
  const auto inside = [this](std::int64_t p) {
    return static_cast<int>(std::clamp<std::int64_t>(p, 0, Length()));
  };
  const int start = inside(position);
  return {start, std::max(inside(std::int64_t{position} + count) - start, 0)};
}

Alignment RichText::AlignmentBehind(int line_end) const {
  return static_cast<Alignment>(cells_[line_end].alignment);
}

int RichText::ParagraphStart(int position) const {
  while (position > 0 && cells_[position - 1].character != kLineEnd) --position;
  return position;
}

bool RichText::IsEdge(int position) const {
  return position < 0 || position == Length() || cells_[position].character == kLineEnd;
}

void RichText::SetAlignment(int position, Alignment alignment) {
  const int start = ParagraphStart(position);
  if (start == 0) {
    first_alignment_ = alignment;
  } else {
    cells_[start - 1].alignment = static_cast<std::uint32_t>(alignment) & 3;
  }
}

int RichText::LastPosition(const Stretch& stretch) const {
  if (stretch.count == 0 || stretch.End() == Length()) return stretch.End();
  return stretch.End() - 1;
}

int RichText::Splice(const Stretch& removed, std::uint32_t text_format,
                     std::uint32_t picture_format) {
  const int inserted = static_cast<int>(incoming_.size());

  for (int i = removed.position; i < removed.End(); ++i) {
    line_ends_ -= cells_[i].character == kLineEnd;
  }
  cells_.Remove(removed.position, removed.count);

  const bool breaks = incoming_.find(kLineEnd) != std::u32string::npos;
  const Alignment alignment = breaks ? AlignmentAt(removed.position) : Alignment::Left;
  Cell* cell = cells_.Insert(removed.position, inserted);
  for (const char32_t c : incoming_) {
    *cell++ = {.character = c & 0x1FFFFF,
               .alignment = static_cast<std::uint32_t>(alignment) & 3,
               .format = c == kPictureCharacter ? picture_format : text_format};
    line_ends_ += c == kLineEnd;
  }
  return inserted;
}

void RichText::SpliceSelection(std::uint32_t picture_format) {
  const Stretch old = Selection();
  const int inserted = Splice(old, caret_format_, picture_format);
  if (old.count == 0 && inserted == 0) return;
  caret_ += inserted;
  selected_ = 0;
  Report(&RichTextObserver::Replaced, old.position, old.count, inserted);
  Report(&RichTextObserver::CaretMoved);
}

void RichText::SpliceAll(Alignment alignment) {
  first_alignment_ = alignment;
  const Stretch before = Selection();
  const int removed = Length();
  const int inserted = Splice({0, removed}, design_format_, design_format_);
  caret_ = 0;
  selected_ = 0;
  caret_format_ = design_format_;
  Report(&RichTextObserver::Replaced, 0, removed, inserted);
  if (before.position > 0 || before.count > 0) Report(&RichTextObserver::CaretMoved);
}

void RichText::Select(int position, int length) {
  if (position == caret_ && length == selected_) return;
  caret_ = position;
  selected_ = length;
  caret_format_ = FormatAtCaret();
  Report(&RichTextObserver::CaretMoved);
}

}  // namespace brindlepage
