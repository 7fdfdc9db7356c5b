#include "worksheet/rtf_reader.h"

#include <algorithm>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "toolkit/run_time_error.h"
#include "worksheet/rich_text.h"
#include "worksheet/rtf_content.h"
#include "worksheet/rtf_pictures.h"
#include "worksheet/rtf_tables.h"
#include "worksheet/rtf_tokenizer.h"
#include "worksheet/rtf_words.h"

namespace brindlepage {

namespace {

using D = RtfDestination;

constexpr std::size_t kDeepest = 1000;                      // groups
constexpr std::size_t kLargestFile = std::size_t{1} << 29;  // bytes
constexpr int kWestern = 1252;
constexpr char kUsualFont[] = "Times New Roman";

// What a group inherits from the one around it, and loses at its end.
struct State {
  D destination = D::Text;
  bool entered = false;  // the destination, in this group
  RtfStyle style;        // looks and alignment, and which of them were set
  int unicode_count = 1;
};

class Reader {
 public:
  explicit Reader(std::string_view bytes) : tokens_(bytes) {}

  RichContent Read(bool keep_last_end);

 private:
  State& state() { return states_.back(); }
  D destination() { return state().destination; }
  D outer() { return states_[states_.size() - 2].destination; }

  void ReadStart();
  void OpenGroup();
  void CloseGroup();
  void LeaveDestination(State& left);
  void ShowPicture();
  bool IsFallback(RtfToken& token);

  void Take(const RtfToken& token);
  void TakeWord(const RtfToken& token);
  void TakeSymbol(unsigned char symbol);
  void TakeText(std::string_view bytes);
  void TakeByte(unsigned char byte);
  void TakeCharacter(char32_t character);
  void TakeData(std::string_view data);
  void TakeUnicode(int number);

  void Enter(D destination);
  bool TextWord(RtfWord word, const RtfToken& token);
  bool TableWord(RtfWord word, const RtfToken& token);
  void ParagraphStyle(int number);
  void CharacterStyle(int number);
  void ApplyStyle(const std::unordered_map<int, RtfStyle>& styles, int number);
  void TakeHex(std::string_view digits, std::string& to);

  const RtfFonts::Font* CurrentFont();
  // What comes in takes the looks of the moment; false if they hide it.
  bool UseLooks();
  // Whether text is shown here, and if so with the looks of the moment.
  bool Shows() { return destination() == D::Text && UseLooks(); }

  RtfTokenizer tokens_;
  std::vector<State> states_;
  RtfContent content_;

  const RtfCodePage* file_page_ = &RtfPageOf(kWestern);
  int default_font_ = 0;
  RtfFonts fonts_;
  RtfColors colors_;
  std::unordered_map<int, RtfStyle> paragraph_styles_;
  std::unordered_map<int, RtfStyle> character_styles_;
  int style_number_ = 0;
  bool style_is_of_characters_ = false;

  // What the looks of the moment come to.
  struct Format {
    std::size_t index;
    const RtfCodePage* page;
    bool signs;
  };
  std::unordered_map<RtfLooks, Format, RtfLooksHash> formats_;
  Format format_{};
  bool looks_changed_ = true;

  RtfPicture picture_;
  bool picture_shown_ = false;
  int high_digit_ = -1;  // of a byte of which the low digit is still to come

  bool may_be_unknown_ = false;  // behind a \*
  int fallbacks_ = 0;            // characters to come in place of a Unicode one
};

// --- Groups

RichContent Reader::Read(bool keep_last_end) {
  ReadStart();
  while (true) {
    RtfToken token = tokens_.Next();
    switch (token.kind) {
      case RtfToken::Kind::End:
        throw RunTimeError(Fault::InvalidFormat);
      case RtfToken::Kind::GroupOpen:
        OpenGroup();
        break;
      case RtfToken::Kind::GroupClose:
        if (states_.size() == 1) {
          return std::move(content_).Take(state().style.alignment, keep_last_end);
        }
        CloseGroup();
        break;
      default:
        if (!IsFallback(token)) Take(token);
    }
  }
}

void Reader::ReadStart() {
  const RtfToken open = tokens_.Next();
  const RtfToken word = tokens_.Next();
  const bool starts = open.kind == RtfToken::Kind::GroupOpen && word.kind == RtfToken::Kind::Word &&
                      word.text == "rtf";
  if (!starts) throw RunTimeError(Fault::InvalidFormat);
  states_.emplace_back();
}

void Reader::OpenGroup() {
  if (states_.size() == kDeepest) throw RunTimeError(Fault::InvalidFormat);
  fallbacks_ = 0;
  may_be_unknown_ = false;
  states_.push_back(state());
  state().entered = false;
  switch (destination()) {
    case D::FontTable:
      state().destination = D::FontEntry;
      break;
    case D::StyleSheet:
      state().destination = D::StyleEntry;
      state().entered = true;
      state().style = {};
      style_number_ = 0;
      style_is_of_characters_ = false;
      looks_changed_ = true;
      break;
    case D::Text:
    case D::Shape:
      break;
    default:
      state().destination = D::Skipped;
  }
}

void Reader::CloseGroup() {
  fallbacks_ = 0;
  may_be_unknown_ = false;
  State left = std::move(states_.back());
  states_.pop_back();
  looks_changed_ |= left.style.looks != state().style.looks;
  if (left.entered) LeaveDestination(left);
}

void Reader::LeaveDestination(State& left) {
  switch (left.destination) {
    case D::FontTable:
      fonts_.End();
      formats_.clear();
      looks_changed_ = true;
      break;
    case D::ColorTable:
      formats_.clear();
      looks_changed_ = true;
      break;
    case D::StyleEntry:
      (style_is_of_characters_ ? character_styles_ : paragraph_styles_)[style_number_] = left.style;
      break;
    case D::Picture:
      ShowPicture();
      break;
    case D::PictureHeader:
      high_digit_ = -1;
      break;
    default:
      break;
  }
}

void Reader::ShowPicture() {
  auto picture = PictureFromRtf(std::exchange(picture_, {}));
  if (!picture || !UseLooks()) return;
  content_.Picture(std::move(picture));
  picture_shown_ = true;
}

// Destination words count at the start of a group alone. In the outermost they would swallow the
// rest of the file.
void Reader::Enter(D wanted) {
  if (states_.size() == 1 || state().entered) return;
  const auto enter = [this](D entered) {
    state().destination = entered;
    state().entered = true;
  };
  const D now = destination();
  const bool shown = now == D::Text || now == D::Shape;
  switch (wanted) {
    case D::Transparent:
      break;
    case D::UnicodeText:
      if (outer() == D::Alternatives) enter(D::Text);
      break;
    case D::PictureHeader:
      if (outer() != D::Picture) break;
      picture_.header.emplace();
      high_digit_ = -1;
      enter(wanted);
      break;
    case D::ShapeText:
      if (now == D::Shape) enter(D::Text);
      break;
    case D::Picture:
      if (!shown) break;
      picture_ = {};
      high_digit_ = -1;
      enter(wanted);
      break;
    case D::PictureShown:
      picture_shown_ = false;
      break;
    case D::PictureFallback:
      if (std::exchange(picture_shown_, false)) enter(D::Skipped);
      break;
    default:
      if (now == D::Text) enter(wanted);
  }
}

// --- Tokens

// Behind a Unicode character stand as many characters for readers that know of none; a control word
// counts as one.
bool Reader::IsFallback(RtfToken& token) {
  if (fallbacks_ == 0) return false;
  if (token.kind == RtfToken::Kind::Text) {
    const std::size_t left_out = std::min(token.text.size(), static_cast<std::size_t>(fallbacks_));
    token.text.remove_prefix(left_out);
    fallbacks_ -= static_cast<int>(left_out);
    return token.text.empty();
  }
  if (token.kind == RtfToken::Kind::Word && token.text == "u") {
    fallbacks_ = 0;
    return false;
  }
  --fallbacks_;
  return true;
}

void Reader::Take(const RtfToken& token) {
  switch (token.kind) {
    case RtfToken::Kind::Text:
      TakeText(token.text);
      break;
    case RtfToken::Kind::Word:
      TakeWord(token);
      break;
    case RtfToken::Kind::Symbol:
      TakeSymbol(token.byte);
      break;
    case RtfToken::Kind::Hex:
      TakeByte(token.byte);
      break;
    default:
      TakeData(token.text);
  }
}

void Reader::TakeWord(const RtfToken& token) {
  const RtfWord word = FindRtfWord(token.text);
  const bool unknown = word.effect == RtfEffect::None;
  if (std::exchange(may_be_unknown_, false) && unknown && states_.size() > 1) {
    state().destination = D::Skipped;
    return;
  }
  if (unknown) return;
  if (word.effect == RtfEffect::Destination) return Enter(static_cast<D>(word.value));
  if (destination() == D::Skipped) return;
  if (TextWord(word, token) || TableWord(word, token)) return;
  if (state().style.Take(word, token)) {
    looks_changed_ = true;
  } else {
    picture_.Take(word, token);
  }
}

void Reader::TakeSymbol(unsigned char symbol) {
  switch (symbol) {
    case '*':
      may_be_unknown_ = true;
      break;
    case '\\':
    case '{':
    case '}':
      TakeByte(symbol);
      break;
    case '~':
      TakeCharacter(0xA0);
      break;
    case '-':
      TakeCharacter(0xAD);
      break;
    case '_':
      TakeCharacter(0x2011);
      break;
    case '\t':
      TakeCharacter(U'\t');
      break;
    case '\r':
    case '\n':
      if (Shows()) content_.EndParagraph(state().style.alignment);
      break;
    default:
      break;
  }
}

void Reader::TakeText(std::string_view bytes) {
  switch (destination()) {
    case D::Text:
      if (Shows()) content_.Text(bytes, *format_.page);
      break;
    case D::FontTable:
    case D::FontEntry:
      fonts_.Name(bytes);
      break;
    case D::ColorTable:
      for (auto count = std::count(bytes.begin(), bytes.end(), ';'); count > 0; --count) {
        colors_.End();
      }
      break;
    case D::Picture:
      TakeHex(bytes, picture_.data);
      break;
    case D::PictureHeader:
      TakeHex(bytes, *picture_.header);
      break;
    default:
      break;
  }
}

void Reader::TakeByte(unsigned char byte) {
  if (destination() == D::FontTable || destination() == D::FontEntry) {
    fonts_.NameByte(byte);
  } else if (Shows()) {
    content_.Character((*format_.page)[byte], state().style.alignment);
  }
}

void Reader::TakeCharacter(char32_t character) {
  if (destination() == D::FontTable || destination() == D::FontEntry) {
    fonts_.NameCharacter(character);
  } else if (Shows()) {
    content_.Character(character, state().style.alignment);
  }
}

void Reader::TakeData(std::string_view data) {
  if (destination() == D::Picture) picture_.data += data;
}

// The number is one of 16 bits with a sign; some writers give the whole character instead.
void Reader::TakeUnicode(int number) {
  fallbacks_ = state().unicode_count;
  auto character = static_cast<char32_t>(number < 0 ? number + 0x10000 : number);
  const bool sign = character > 0xF000 && character <= 0xF0FF;
  if (sign && Shows() && format_.signs) character = RtfSigns()[character - 0xF000];
  TakeCharacter(character);
}

void Reader::TakeHex(std::string_view digits, std::string& to) {
  const std::size_t start = to.size();
  to.resize(start + digits.size() / 2 + 1);
  char* next = to.data() + start;
  int high = high_digit_;
  for (const char digit : digits) {
    const int value = HexValue(static_cast<unsigned char>(digit));
    if (value < 0) continue;
    if (high < 0) {
      high = value;
    } else {
      *next++ = static_cast<char>(high << 4 | value);
      high = -1;
    }
  }
  high_digit_ = high;
  to.resize(static_cast<std::size_t>(next - to.data()));
}

// --- Control words

bool Reader::TextWord(RtfWord word, const RtfToken& token) {
  const Alignment alignment = state().style.alignment;
  switch (word.effect) {
    case RtfEffect::Character:
      TakeCharacter(static_cast<char32_t>(word.value));
      return true;
    case RtfEffect::Paragraph:
      if (Shows()) content_.EndParagraph(alignment);
      return true;
    case RtfEffect::Line:
      if (Shows()) content_.EndLine(alignment);
      return true;
    case RtfEffect::Break:
      if (Shows()) content_.BreakLine(alignment);
      return true;
    case RtfEffect::Cell:
      if (Shows()) content_.EndCell();
      return true;
    case RtfEffect::Row:
      if (Shows()) content_.EndRow();
      return true;
    case RtfEffect::Unicode:
      TakeUnicode(token.number);
      return true;
    case RtfEffect::UnicodeCount:
      state().unicode_count = std::max(token.NumberOr(1), 0);
      return true;
    default:
      return false;
  }
}

bool Reader::TableWord(RtfWord word, const RtfToken& token) {
  switch (word.effect) {
    case RtfEffect::Font:
      if (destination() != D::FontTable && destination() != D::FontEntry) return false;
      fonts_.Begin(token.number, *file_page_);
      return true;
    case RtfEffect::Style:
      ParagraphStyle(token.number);
      return true;
    case RtfEffect::CharacterStyle:
      CharacterStyle(token.number);
      return true;
    case RtfEffect::TableStyle:
      if (destination() == D::StyleEntry) state().destination = D::Skipped;
      return true;
    case RtfEffect::BasedOn:
      if (destination() == D::StyleEntry) {
        const RtfStyle own = state().style;
        ApplyStyle(style_is_of_characters_ ? character_styles_ : paragraph_styles_, token.number);
        own.LayOver(state().style);
      }
      return true;
    case RtfEffect::CodePage:
      file_page_ = &RtfPageOf(word.value != 0 ? word.value : token.number);
      return true;
    case RtfEffect::DefaultFont:
      default_font_ = token.number;
      return true;
    case RtfEffect::Charset:
      fonts_.Charset(token.number);
      return true;
    case RtfEffect::FontCodePage:
      fonts_.CodePage(token.number);
      return true;
    case RtfEffect::Red:
      colors_.Red(token.number);
      return true;
    case RtfEffect::Green:
      colors_.Green(token.number);
      return true;
    case RtfEffect::Blue:
      colors_.Blue(token.number);
      return true;
    default:
      return false;
  }
}

// --- Styles

// In the style sheet these words number the entry; in the text they apply it.
void Reader::ParagraphStyle(int number) {
  if (destination() == D::StyleEntry) {
    style_number_ = number;
  } else {
    ApplyStyle(paragraph_styles_, number);
  }
}

void Reader::CharacterStyle(int number) {
  if (destination() == D::StyleEntry) {
    style_number_ = number;
    style_is_of_characters_ = true;
  } else {
    ApplyStyle(character_styles_, number);
  }
}

void Reader::ApplyStyle(const std::unordered_map<int, RtfStyle>& styles, int number) {
  const auto found = styles.find(number);
  if (found == styles.end()) return;
  found->second.LayOver(state().style);
  looks_changed_ = true;
}

// --- Looks

const RtfFonts::Font* Reader::CurrentFont() {
  const RtfFonts::Font* const font = fonts_.Find(state().style.looks.font);
  return font ? font : fonts_.Find(default_font_);
}

bool Reader::UseLooks() {
  const RtfLooks& looks = state().style.looks;
  if (looks.hidden) return false;
  if (!std::exchange(looks_changed_, false)) return true;

  auto [known, is_new] = formats_.try_emplace(looks);
  if (is_new) {
    const RtfFonts::Font* const font = CurrentFont();
    CharFormat format;
    format.font = font ? font->name : kUsualFont;
    format.size = looks.size;
    format.bold = looks.bold;
    format.italic = looks.italic;
    format.underline = looks.underline;
    format.color = colors_.At(looks.color);
    known->second = {.index = content_.AddFormat(std::move(format)),
                     .page = font ? font->page : file_page_,
                     .signs = font && font->signs};
  }
  format_ = known->second;
  content_.UseFormat(format_.index);
  return true;
}

}  // namespace

void ReadRtf(std::string_view bytes, RichText& document) {
  document.Load(ReadRtfStretch(bytes, false));
}

RichContent ReadRtfStretch(std::string_view bytes, bool ends_paragraph) {
  if (bytes.size() > kLargestFile) throw RunTimeError(Fault::InvalidFormat);
  return Reader(bytes).Read(ends_paragraph);
}

}  // namespace brindlepage
