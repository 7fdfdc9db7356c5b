#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "tests/rich_text_sheet.h"

namespace brindlepage {
namespace {

// --- Random operations against a slow and obvious document

// Each place has its paragraph's alignment; the last one is the end of the document, which is no
// character.
struct Place {
  char32_t character = 0;
  CharFormat format;
  Alignment alignment = kLeft;
  bool operator==(const Place&) const = default;
};

struct Model {
  std::vector<Place> places{Place{}};
  int caret = 0;
  int selected = 0;
  CharFormat caret_format = Design();

  int Length() const { return static_cast<int>(places.size()) - 1; }
  Place& At(int position) { return places[static_cast<std::size_t>(position)]; }
  const Place& At(int position) const { return places[static_cast<std::size_t>(position)]; }

  // `text` holds line ends as '\n' alone and nothing senseless.
  void Splice(int position, int removed, const std::u32string& text, const CharFormat& format) {
    const Alignment alignment = At(position).alignment;
    places.erase(places.begin() + position, places.begin() + position + removed);
    int to = position;
    for (const char32_t c : text) {
      const CharFormat own = c == 0xFFFC ? format : With(format, nullptr);
      places.insert(places.begin() + to++, Place{c, own, alignment});
    }
    for (int i = to; i <= Length(); ++i) {
      At(i).alignment = alignment;
      if (At(i).character == U'\n') break;
    }
  }

  CharFormat FormatAtCaret() const {
    if (Length() == 0) return Design();
    const int from = selected > 0 || caret == 0 ? caret : caret - 1;
    return With(At(from).format, nullptr);
  }

  void Select(int position, int length) {
    position = std::min(position, Length());
    length = std::min(length, Length() - position);
    if (position == caret && length == selected) return;
    caret = position;
    selected = length;
    caret_format = FormatAtCaret();
  }

  void Insert(const std::u32string& text, const CharFormat& format) {
    Splice(caret, selected, text, format);
    caret += static_cast<int>(text.size());
    selected = 0;
  }

  void Text(const std::u32string& text) {
    const Alignment alignment = At(caret).alignment;
    places.assign(1, Place{0, {}, alignment});
    Splice(0, 0, text, Design());
    caret = selected = 0;
    caret_format = Design();
  }

  void Replace(int position, int removed, const std::u32string& text, const CharFormat& format) {
    if (removed == 0 && text.empty()) return;
    Splice(position, removed, text, format);
    const int end = position + removed;
    const int inserted = static_cast<int>(text.size());
    bool touched = false;
    const auto move = [&](int p) {
      if (p < position) return p;
      if (p > end) return p + inserted - removed;
      touched = true;
      return position + inserted;
    };
    const int start = move(caret);
    selected = move(caret + selected) - start;
    caret = start;
    if (touched) caret_format = FormatAtCaret();
  }

  template <class Change>
  void Reformat(int position, int count, Change change) {
    for (int i = position; i < position + count; ++i) change(At(i).format);
  }

  template <class Change>
  void SetSelected(Change change) {
    if (selected == 0) {
      change(caret_format);
      return;
    }
    bool changed = false;
    for (int i = caret; i < caret + selected; ++i) {
      const CharFormat before = At(i).format;
      change(At(i).format);
      changed = changed || !(before == At(i).format);
    }
    if (changed) caret_format = FormatAtCaret();
  }

  // From the start of the first paragraph to the end of the last one.
  std::pair<int, int> Paragraphs(int position, int count) const {
    int start = position;
    while (start > 0 && At(start - 1).character != U'\n') --start;
    int end = position;
    if (count > 0) end = position + count == Length() ? Length() : position + count - 1;
    while (end < Length() && At(end).character != U'\n') ++end;
    return {start, end};
  }

  void Align(int position, int count, Alignment alignment) {
    const auto [start, end] = Paragraphs(position, count);
    for (int i = start; i <= end; ++i) At(i).alignment = alignment;
  }

  template <class T>
  std::optional<T> Selected(T CharFormat::*attribute) const {
    if (selected == 0) return caret_format.*attribute;
    for (int i = caret; i < caret + selected; ++i) {
      if (At(i).format.*attribute != At(caret).format.*attribute) return std::nullopt;
    }
    return At(caret).format.*attribute;
  }

  std::optional<Alignment> SelAlignment() const {
    const auto [start, end] = Paragraphs(caret, selected);
    for (int i = start; i <= end; ++i) {
      if (At(i).alignment != At(start).alignment) return std::nullopt;
    }
    return At(start).alignment;
  }
};

// Keeps a copy of the document by its reports alone, as a view does.
struct Mirror : RichTextObserver {
  explicit Mirror(const RichText& document) : sheet(document) {}

  void Replaced(int position, int removed, int inserted) override {
    places.erase(places.begin() + position, places.begin() + position + removed);
    places.insert(places.begin() + position, static_cast<std::size_t>(inserted), Place{});
    for (int i = position; i < position + inserted; ++i) {
      At(i).character = sheet.CharacterAt(i);
      At(i).format = sheet.FormatAt(i);
    }
    CopyAlignments(position, position + inserted);
  }
  void Reformatted(int position, int count) override {
    for (int i = position; i < position + count; ++i) At(i).format = sheet.FormatAt(i);
  }
  void ParagraphsAligned(int position, int count) override {
    const bool to_end = position + count == sheet.Length();
    CopyAlignments(position, count == 0 || to_end ? position + count : position + count - 1);
  }
  void CaretMoved() override {
    caret = sheet.SelStart();
    selected = sheet.SelLength();
  }

  Place& At(int position) { return places[static_cast<std::size_t>(position)]; }
  // Of whole paragraphs, from that of `first` to that of `last`.
  void CopyAlignments(int first, int last) {
    while (first > 0 && At(first - 1).character != U'\n') --first;
    while (At(last).character != U'\n' && last + 1 < static_cast<int>(places.size())) ++last;
    for (int i = first; i <= last; ++i) At(i).alignment = sheet.AlignmentAt(i);
  }

  const RichText& sheet;
  std::vector<Place> places{Place{}};
  int caret = 0;
  int selected = 0;
};

std::vector<Place> PlacesOf(const RichText& sheet) {
  std::vector<Place> places;
  for (int i = 0; i < sheet.Length(); ++i) {
    places.push_back({sheet.CharacterAt(i), sheet.FormatAt(i), sheet.AlignmentAt(i)});
  }
  places.push_back({0, {}, sheet.AlignmentAt(sheet.Length())});
  return places;
}

// The same, put together from paragraphs and runs.
std::vector<Place> PlacesOfRuns(const RichText& sheet) {
  std::vector<Place> places;
  const auto paragraphs = sheet.Paragraphs();
  for (const auto& paragraph : paragraphs) {
    const CharFormat* before = nullptr;
    for (const auto& run : sheet.Runs(paragraph)) {
      EXPECT_EQ(run.start, static_cast<int>(places.size()));
      EXPECT_TRUE(before != run.format || run.format->picture) << "two runs of one format";
      before = run.format;
      for (int i = run.start; i < run.start + run.length; ++i) {
        places.push_back({sheet.CharacterAt(i), *run.format, paragraph.alignment});
      }
    }
    EXPECT_EQ(paragraph.start + paragraph.length, static_cast<int>(places.size()));
  }
  places.push_back({0, {}, paragraphs.back().alignment});
  return places;
}

std::u32string TextOf(const Model& model) {
  std::u32string text;
  for (int i = 0; i < model.Length(); ++i) {
    if (model.At(i).character == U'\n') text += U'\r';
    text += model.At(i).character;
  }
  return text;
}

class RandomSession {
 public:
  explicit RandomSession(unsigned seed) : random_(seed) {
    for (const bool bold : {false, true}) {
      CharFormat format = Design();
      format.bold = bold;
      formats_.push_back(format);
      format.font = "Times New Roman";
      format.size = 240;
      formats_.push_back(format);
      formats_.push_back(With(format, pictures_[bold ? 0 : 1]));
    }
    sheet_.Observe(&mirror_);
  }

  void Run(int steps) {
    for (int step = 0; step < steps; ++step) {
      const int operation = Draw(16);
      Act(operation);
      Compare();
      if (testing::Test::HasFailure()) {
        ADD_FAILURE() << "step " << step << ", operation " << operation;
        return;
      }
    }
  }

 private:
  int Draw(int n) { return static_cast<int>(random_() % static_cast<unsigned>(n)); }
  bool DrawBool() { return Draw(2) == 1; }
  Alignment DrawAlignment() { return static_cast<Alignment>(Draw(3)); }
  const CharFormat& DrawFormat() { return formats_[static_cast<std::size_t>(Draw(6))]; }
  std::u32string DrawText(bool pictures) {
    std::u32string text;
    for (int length = Draw(7); length > 0; --length) {
      const int kind = Draw(8);
      text += kind == 0 ? U'\n' : kind == 1 && pictures ? U'\uFFFC' : U"abcdef"[Draw(6)];
    }
    return text;
  }

  void Act(int operation) {
    const int position = Draw(model_.Length() + 1);
    const int count = Draw(model_.Length() - position + 1);
    switch (operation) {
      case 0:
      case 1:
      case 2: {
        const std::u32string text = DrawText(false);
        sheet_.SelText(std::string(text.begin(), text.end()));
        model_.Insert(text, model_.caret_format);
        break;
      }
      case 3:
      case 4: {
        const int target = position + Draw(3);
        sheet_.SelStart(target);
        model_.Select(target, 0);
        break;
      }
      case 5: {
        const int length = Draw(10);
        sheet_.SelLength(length);
        model_.Select(model_.caret, length);
        break;
      }
      case 6: {
        const bool bold = DrawBool();
        sheet_.SelBold(bold);
        model_.SetSelected([&](CharFormat& format) { format.bold = bold; });
        break;
      }
      case 7: {
        const int points = 8 + 2 * Draw(3);
        sheet_.SelFontSize(points);
        model_.SetSelected([&](CharFormat& format) { format.size = points * 20; });
        break;
      }
      case 8: {
        const char* const font = DrawBool() ? "Courrier New" : "Courier New";
        sheet_.SelFontName(font);
        model_.SetSelected([&](CharFormat& format) { format.font = font; });
        break;
      }
      case 9: {
        const std::uint32_t color = DrawBool() ? 0xFF0000 : 0;
        sheet_.SelColor(color);
        model_.SetSelected([&](CharFormat& format) { format.color = color; });
        break;
      }
      case 10: {
        const Alignment alignment = DrawAlignment();
        sheet_.SelAlignment(alignment);
        model_.Align(model_.caret, model_.selected, alignment);
        break;
      }
      case 11: {
        const auto& picture = pictures_[Draw(2)];
        sheet_.InsertPicture(picture);
        model_.Insert(U"\uFFFC", With(model_.caret_format, picture));
        break;
      }
      case 12: {
        const CharFormat& format = DrawFormat();
        const std::u32string text = DrawText(format.picture != nullptr);
        sheet_.Replace(position, count, text, format);
        model_.Replace(position, count, text, format);
        break;
      }
      case 13: {
        const CharFormat& format = DrawFormat();
        sheet_.Reformat(position, count, format);
        ReformatModel(position, count, format);
        break;
      }
      case 14: {
        const Alignment alignment = DrawAlignment();
        sheet_.Align(position, count, alignment);
        model_.Align(position, count, alignment);
        break;
      }
      case 15:
        if (Draw(4) == 0) {
          const std::u32string text = DrawText(false);
          sheet_.Text(std::string(text.begin(), text.end()));
          model_.Text(text);
        }
        break;
      default:
        break;
    }
  }

  void ReformatModel(int position, int count, const CharFormat& format) {
    bool changed = false;
    model_.Reformat(position, count, [&](CharFormat& old) {
      const CharFormat before = old;
      old = format;
      if (!before.picture || !format.picture) old.picture = before.picture;
      changed = changed || !(before == old);
    });
    if (changed && model_.selected > 0) model_.caret_format = model_.FormatAtCaret();
  }

  void Compare() {
    EXPECT_EQ(sheet_.Length(), model_.Length());
    EXPECT_EQ(sheet_.SelStart(), model_.caret);
    EXPECT_EQ(sheet_.SelLength(), model_.selected);
    EXPECT_TRUE(sheet_.CaretFormat() == model_.caret_format);
    EXPECT_TRUE(PlacesOf(sheet_) == model_.places);
    EXPECT_TRUE(PlacesOfRuns(sheet_) == model_.places);
    EXPECT_TRUE(mirror_.places == model_.places);
    EXPECT_EQ(mirror_.caret, model_.caret);
    EXPECT_EQ(mirror_.selected, model_.selected);
    EXPECT_TRUE(sheet_.Text() == TextOf(model_));
    EXPECT_EQ(sheet_.TextLength(), static_cast<int>(TextOf(model_).size()));
    EXPECT_EQ(sheet_.SelBold(), model_.Selected(&CharFormat::bold));
    EXPECT_EQ(sheet_.SelFontName(), model_.Selected(&CharFormat::font));
    EXPECT_EQ(sheet_.SelColor(), model_.Selected(&CharFormat::color));
    const auto size = model_.Selected(&CharFormat::size);
    EXPECT_EQ(sheet_.SelFontSize(), size ? std::optional(*size / 20.0) : std::nullopt);
    EXPECT_EQ(sheet_.SelAlignment(), model_.SelAlignment());
  }

  std::mt19937 random_;
  std::shared_ptr<const RichPicture> pictures_[2] = {Picture(), Picture()};
  std::vector<CharFormat> formats_;
  Sheet sheet_;
  Mirror mirror_{sheet_};
  Model model_;
};

TEST(RichText, RandomOperationsGiveWhatASlowAndObviousDocumentGives) {
  for (unsigned seed = 0; seed < 5000; ++seed) {
    RandomSession(seed).Run(40);
    ASSERT_FALSE(HasFailure()) << "seed " << seed;
  }
}

}  // namespace
}  // namespace brindlepage
