#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <unordered_map>
#include <vector>

#include "toolkit/run_time_error.h"
#include "worksheet/gap_buffer.h"

namespace brindlepage {

enum class Alignment { Left = 0, Right = 1, Centre = 2 };

// Stands in a text where a picture does; the format there has the picture.
inline constexpr char32_t kPictureCharacter = 0xFFFC;

struct RichPicture {
  std::string format;  // "png", "jpg", "bmp", "wmf", "emf" or "gif"
  std::string bytes;   // the picture's file
  int width = 0;       // twips, as shown
  int height = 0;
};

// How a character looks. A line end has a format too.
struct CharFormat {
  std::string font;  // Windows-1252
  int size = 0;      // twentieths of a point
  bool bold = false;
  bool italic = false;
  bool underline = false;
  std::uint32_t color = 0;                     // 0xBBGGRR, red in the lowest byte
  std::shared_ptr<const RichPicture> picture;  // null for text

  bool operator==(const CharFormat&) const = default;
};

// A document, or a stretch of one, as files and the clipboard tell it.
struct RichContent {
  struct Span {
    std::size_t length;  // characters
    std::size_t format;  // index into `formats`
  };

  std::u32string text;  // a line end as one '\n', a picture as one U+FFFC
  std::vector<CharFormat> formats;
  std::vector<Span> spans;            // one behind the other over the whole text
  std::vector<Alignment> alignments;  // a paragraph each, the last one's included
};

// Follows a document. Every report comes after the change, when document, caret and selection
// are as they will stay. An observer may read the document, but not change it or stop observing
// while it is told. Positions count characters, a line end being one.
class RichTextObserver {
 public:
  virtual ~RichTextObserver() = default;

  // `removed` characters at `position` gave way to `inserted` ones. The formats of these, and the
  // alignments of all paragraphs from that of `position` to that of `position + inserted`, may be
  // new as well.
  virtual void Replaced(int position, int removed, int inserted) = 0;
  // With a `count` of 0 it is the caret format alone that was set.
  virtual void Reformatted(int position, int count) = 0;
  // The paragraphs that hold these characters; with a `count` of 0 the one that holds `position`.
  virtual void ParagraphsAligned(int position, int count) = 0;
  // The caret or the selection moved.
  virtual void CaretMoved() = 0;
};

// The document of a rich text box, and its caret. Text is Unicode; each character has a format,
// each paragraph an alignment, and a picture takes the place of one character, U+FFFC.
//
//   RichText sheet("Courier New", 9.75);
//   sheet.SelAlignment(Alignment::Centre);
//   sheet.SelBold(true);
//   sheet.SelText("Volcanoes\n");
//   sheet.SelBold(false);
//   sheet.SelText("lava, ash");  // plain, and centred like the paragraph before
//
// Text comes in with line ends "\n", "\r\n", a lone "\r" or U+2029, each of which ends a paragraph
// and is kept as one '\n'. Characters that make no sense (U+0000, surrogates, noncharacters,
// anything above U+10FFFF, and a U+FFFC that brings no picture) become U+FFFD.
//
// A line end belongs to the paragraph that it ends. A new paragraph takes the alignment of the one
// before; when two are joined, the first one's stays.
class RichText {
 public:
  // The box's design font; the size in points, 1 to 1638.
  RichText(std::string design_font, double design_points);
  RichText(const RichText&) = delete;
  RichText& operator=(const RichText&) = delete;

  // --- The operations of the box, by name. Positions count characters from 0, sizes are points,
  // bytes are Windows-1252. A getter of a mixed selection gives nothing; without a selection it
  // gives the value of the caret format, or of the caret's paragraph.

  // The whole text, a line end as two characters "\r\n".
  std::u32string Text() const;
  // Replaces the document. The caret goes to 0, the caret format back to the design font; every
  // paragraph takes the alignment of the one in which the caret stood.
  void Text(std::string_view bytes);
  // The length of Text(), in constant time. It can exceed the last caret position.
  int TextLength() const;

  // A position past the end means the end. Setting it collapses the selection. A caret that really
  // moves takes the format of the character before it, at the start that of the one behind it, in
  // an empty document the design font; set to where it already stands, it changes nothing.
  // A negative position or length: RunTimeError "Invalid procedure call or argument".
  int SelStart() const { return caret_; }
  void SelStart(int position);
  // A length beyond the end reaches to the end. While characters are selected, the caret format
  // is that of the first of them.
  int SelLength() const { return selected_; }
  void SelLength(int length);

  // Replaces the selection, or inserts at the caret, in the caret format. The caret ends behind
  // the text and keeps that format.
  void SelText(std::string_view bytes);
  void SelUnicode(std::u32string_view text);
  // Replaces the selection by a stretch, in one change; the caret ends behind and takes the format
  // there. Paragraphs of the stretch keep their alignment, but not a first or last one that is
  // joined to what stands there; all are, of a stretch within a paragraph.
  void SelContent(const RichContent& content);

  // Setting applies to the selection, or without one to the caret format.
  std::optional<std::string> SelFontName() const;
  void SelFontName(std::string_view name);
  // Kept in twentieths of a point. Outside 1 to 1638: RunTimeError "Invalid procedure call or
  // argument".
  std::optional<double> SelFontSize() const;
  void SelFontSize(double points);
  std::optional<bool> SelBold() const;
  void SelBold(bool bold);
  std::optional<bool> SelItalic() const;
  void SelItalic(bool italic);
  std::optional<bool> SelUnderline() const;
  void SelUnderline(bool underline);
  std::optional<std::uint32_t> SelColor() const;  // 0xBBGGRR; anything above is dropped
  void SelColor(std::uint32_t color);

  // Of the paragraphs that hold the selected characters, or of the caret's paragraph.
  std::optional<Alignment> SelAlignment() const;
  void SelAlignment(Alignment alignment);

  // Replaces the selection by a picture and puts the caret behind it. What is typed there is text
  // in the caret format from before. Without a picture: RunTimeError "Invalid picture".
  void InsertPicture(std::shared_ptr<const RichPicture> picture);

  // --- Reading. A position out of range: RunTimeError "Subscript out of range". References and
  // pointers to formats hold, and ids keep their meaning, as long as the document lives.

  int Length() const { return cells_.Size(); }  // a line end counting one
  // A line end is '\n'.
  char32_t CharacterAt(int position) const { return CellAt(position).character; }
  const CharFormat& FormatAt(int position) const;
  // Equal formats have equal ids.
  std::uint32_t FormatIdAt(int position) const { return CellAt(position).format; }
  const CharFormat& Format(std::uint32_t id) const { return *formats_[id]; }
  // Of the paragraph that holds the position, 0 to Length().
  Alignment AlignmentAt(int position) const;

  const CharFormat& DesignFormat() const { return Format(design_format_); }
  // Never has a picture.
  const CharFormat& CaretFormat() const { return Format(caret_format_); }
  std::uint32_t CaretFormatId() const { return caret_format_; }
  void CaretFormat(const CharFormat& format);

  std::u32string PlainText() const;  // a line end as one '\n'

  struct Paragraph {
    int start;
    int length;  // its line end included
    Alignment alignment;
  };
  // There is always a last paragraph, the only one without a line end; it may be empty.
  std::vector<Paragraph> Paragraphs() const;

  struct Run {
    int start;
    int length;
    const CharFormat* format;
  };
  // The longest stretches of equal format in a paragraph, its line end included; a picture is a
  // run of its own. An empty paragraph has none.
  std::vector<Run> Runs(const Paragraph& paragraph) const;

  // --- Editing anywhere, for readers and views. Stretches are cut to the document.

  // A caret inside or at the edges of the stretch ends behind the new text, with the format there
  // as after a real move; a caret elsewhere keeps its character and format. Both ends of a
  // selection move like that. A U+FFFC in the text becomes the picture of the format, the other
  // characters take the format without it.
  void Replace(int position, int removed, std::u32string_view text, const CharFormat& format);
  // A picture stays a picture: the format's, or its own when the format has none.
  void Reformat(int position, int count, const CharFormat& format);
  // The paragraphs that hold these characters, or with a count of 0 the one that holds `position`.
  // A stretch that reaches the end takes an empty last paragraph with it.
  void Align(int position, int count, Alignment alignment);
  // An empty document, aligned left, the caret format the design font.
  void Clear();

  // The whole document, or a stretch. Its formats are those in use, in the order of their first
  // use.
  RichContent Content() const { return Content(0, Length()); }
  RichContent Content(int position, int count) const;
  // Replaces the document, in one change. The caret goes to 0 and takes the format there. Every
  // span comes in as if it were inserted alone; paragraphs without an alignment are aligned left.
  void Load(const RichContent& content);

  // Observers are told in the order in which they came.
  void Observe(RichTextObserver* observer);
  void StopObserving(RichTextObserver* observer);

 private:
  // The alignment that a line end holds is that of the paragraph behind it. So the alignment of a
  // paragraph is found by looking back over the current line, and stays right through insertions.
  struct Cell {
    std::uint32_t character : 21;
    std::uint32_t alignment : 2;
    std::uint32_t format;
  };
  static_assert(sizeof(Cell) == 8);

  struct FormatHash {
    std::size_t operator()(const CharFormat& format) const;
  };

  struct Stretch {
    int position;
    int count;
    int End() const { return position + count; }
  };

  const Cell& CellAt(int position) const {
    if (position < 0 || position >= Length()) throw RunTimeError(Fault::Subscript);
    return cells_[position];
  }

  std::uint32_t Intern(CharFormat format);
  std::uint32_t InternWithoutPicture(CharFormat format);
  // The caret format that a real move gives to caret and selection as they stand.
  std::uint32_t FormatAtCaret();

  Stretch Cut(int position, int count) const;
  Stretch Selection() const { return {caret_, selected_}; }
  Alignment AlignmentBehind(int line_end) const;
  int ParagraphStart(int position) const;
  // Whether a line end, the start or the end of the document stands there.
  bool IsEdge(int position) const;
  void SetAlignment(int position, Alignment alignment);  // of the paragraph that holds it
  // The last position whose paragraph counts as one of the stretch.
  int LastPosition(const Stretch& stretch) const;

  // Puts `incoming_` in the place of a stretch and gives its length; the caret stays where it is.
  int Splice(const Stretch& removed, std::uint32_t text_format, std::uint32_t picture_format);
  void SpliceSelection(std::uint32_t picture_format);
  void SpliceAll(Alignment alignment);
  // Give the position behind what they put in.
  int InsertSpans(int position, const RichContent& content);
  template <class NextAlignment>
  int InsertSpan(int position, std::u32string_view text, std::uint32_t picture_format,
                 NextAlignment next_alignment);
  void Select(int position, int length);

  // Whether a format changed; `change` alters a CharFormat in place.
  template <class Change>
  bool ChangeFormats(const Stretch& stretch, Change change);
  template <class T>
  void SetSelected(T CharFormat::*attribute, const T& value);
  template <class T>
  std::optional<T> Selected(T CharFormat::*attribute) const;

  template <class... Arguments>
  void Report(void (RichTextObserver::*event)(Arguments...),
              std::type_identity_t<Arguments>... arguments) const;

  GapBuffer<Cell> cells_;
  int line_ends_ = 0;
  Alignment first_alignment_ = Alignment::Left;

  std::unordered_map<CharFormat, std::uint32_t, FormatHash> format_ids_;
  std::vector<const CharFormat*> formats_;  // the keys of format_ids_, by id
  std::uint32_t design_format_;

  int caret_ = 0;
  int selected_ = 0;
  std::uint32_t caret_format_;

  std::u32string incoming_;  // cleaned text on its way in; kept for its memory
  std::vector<RichTextObserver*> observers_;
};

}  // namespace brindlepage
