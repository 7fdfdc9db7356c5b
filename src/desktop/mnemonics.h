#pragma once

#include <QSet>
#include <QString>
#include <string_view>

namespace brindlepage {

// Chooses the letters that work with Alt, no letter twice: one screen's captions share one of
// these, and so do the items of one menu.
class Mnemonics {
 public:
  // The caption as Qt takes it: '&' in front of its letter. The first letter of a word is taken
  // if one is free, else any letter, else none.
  QString Assign(std::string_view caption);

 private:
  QSet<QChar> taken_;
};

// The caption as Qt takes it, without a letter.
QString PlainCaption(std::string_view caption);

}  // namespace brindlepage
