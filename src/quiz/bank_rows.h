#pragma once

#include <string>
#include <string_view>

#include "core/shared_state.h"
#include "toolkit/random_source.h"
#include "worksheet/rich_text.h"

// A bank of words above the questions: a header, rows of four words, a rule.
namespace brindlepage {

// The length of a rule and of a row's blanks, in characters.
inline constexpr int kLineWidth = 70;

// By question, its word until that goes into a row, and then nothing. Used from element 1.
using Bank = SharedState::Words<std::string>;

// The number of an entry that is not empty, from 1 to `range`. The source is reseeded first; then
// entries are drawn until there is one, so on an empty bank it never returns.
int PickBankWord(const Bank& bank, int range, RandomSource& random);

// Rows of blanks into which words are inserted, at fixed offsets from the row's start. The blanks
// give way to the right, and what is left of them ends at the end of the document.
//
//   BankRows rows(box);  // in the format of the caret
//   for (const std::string& word : words) rows.PutBankWord(word);
//   rows.Close();
class BankRows {
 public:
  explicit BankRows(RichText& box);

  // Columns are straight as long as words are shorter than 25 characters.
  void PutBankWord(std::string_view text);
  // Ends a row that has begun.
  void Close();

 private:
  void StartBankRow();

  RichText& box_;
  int row_start_ = 0;  // caret position
  int column_ = 1;     // the next word's offset
};

// To the end of the document: the text and underscores up to the line's width, bold and underlined,
// and a line end that is neither.
void WriteBankHeader(RichText& box, std::string_view text);

// A line of underscores, bold and underlined. They stay set.
void WriteRule(RichText& box);

// What the bank and what stands below the rule are written in.
void UseBankFont(RichText& box, bool bold);
void UseBodyFont(RichText& box);

}  // namespace brindlepage
