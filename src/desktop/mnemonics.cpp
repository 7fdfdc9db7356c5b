#include "desktop/mnemonics.h"

#include "desktop/text.h"

namespace brindlepage {

namespace {

// Letters that every keyboard layout has a key for.
bool Usable(QChar c) { return c.unicode() < 0x80 && c.isLetterOrNumber(); }

}  // namespace

QString Mnemonics::Assign(std::string_view caption) {
  const QString text = ToQString(caption);
  const auto find = [&](bool word_starts) -> qsizetype {
    for (qsizetype i = 0; i < text.size(); ++i) {
      const bool start = i == 0 || !text[i - 1].isLetterOrNumber();
      if (word_starts && !start) continue;
      if (Usable(text[i]) && !taken_.contains(text[i].toLower())) return i;
    }
    return -1;
  };
  qsizetype at = find(true);
  if (at < 0) at = find(false);
  if (at < 0) return PlainCaption(caption);

  taken_.insert(text[at].toLower());
  return text.left(at).replace("&", "&&") + "&" + text.mid(at).replace("&", "&&");
}

QString PlainCaption(std::string_view caption) { return ToQString(caption).replace("&", "&&"); }

}  // namespace brindlepage
