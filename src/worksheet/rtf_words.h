#pragma once

#include <cstdint>
#include <string_view>

namespace brindlepage {

// What a group of a rich text file holds.
enum class RtfDestination : std::uint8_t {
  Text,
  Skipped,
  FontTable,
  FontEntry,
  ColorTable,
  StyleSheet,
  StyleEntry,
  Picture,
  PictureHeader,
  Shape,         // its pictures and texts are shown
  Alternatives,  // the text in bytes, and again in Unicode
  UnicodeText,
  PictureShown,     // a picture in a kind that not all readers know ...
  PictureFallback,  // ... and again in one that they do
  ShapeText,
  Transparent,  // known, and shown as if the word weren't there
};

// What a control word does, with `value` and the number behind the word.
enum class RtfEffect : std::uint8_t {
  None,
  Destination,  // value: an RtfDestination
  // Text.
  Character,  // value: the character that it stands for
  Paragraph,
  Line,
  Break,
  Cell,
  Row,
  Unicode,
  UnicodeCount,
  // Looks.
  Plain,
  Font,
  Size,
  ExactSize,
  Bold,
  Italic,
  Underline,
  NoUnderline,
  Hidden,
  Color,
  PlainParagraph,
  Align,  // value: an Alignment
  Style,
  CharacterStyle,
  TableStyle,
  BasedOn,
  // The file and its tables.
  CodePage,  // value: its number, or 0 for the number behind the word
  DefaultFont,
  Charset,
  FontCodePage,
  Red,
  Green,
  Blue,
  // Pictures.
  PictureKind,  // value: an index into kRtfPictureKinds
  PictureWidth,
  PictureHeight,
  GoalWidth,
  GoalHeight,
  ScaleWidth,
  ScaleHeight,
};

struct RtfWord {
  RtfEffect effect = RtfEffect::None;
  int value = 0;
};

// `name` without the backslash. A word that is unknown, or does nothing to a document, has no
// effect.
RtfWord FindRtfWord(std::string_view name);

}  // namespace brindlepage
