#pragma once

#include <string>
#include <string_view>

#include "toolkit/numbers.h"
#include "toolkit/random_source.h"

namespace brindlepage {

// The code of the n-th letter of the alphabet, for n from 1 to 26: each of the numbers 1 to 26
// once. Element 0 stays 0.
using CodeTable = BoundedArray<Integer, 0, 26>;

// Reseeds the source and draws a table. A letter may get its own number.
CodeTable MakeCodeTable(RandomSource& random);

// What stands for a letter: its number in brackets, or the letter at that place of the alphabet.
enum class CodeStyle { Numbers, Letters };

// Letters A to Z are coded, small ones like capitals; a blank becomes two, and anything else
// stands in clear as its capital. In numbers, with 3 for C, 9 for A, 14 for T and 2 for S:
//
//   EncodeText("cat's", table, CodeStyle::Numbers) == "[3][9][14]'[2]"
std::string EncodeText(std::string_view text, const CodeTable& table, CodeStyle style);

// The table as a pupil reads it, in order of the numbers: entries like " 3=C" of ten characters,
// six to a line.
std::string KeyTableText(const CodeTable& table);

// Two different characters of an answer with their codes: "      Hint: Q = A and D = T". They are
// drawn as a pair until both are capitals or one of the two characters beside them, "@" and "[":
// "@" stands for itself, and "[" throws RunTimeError 9. An answer without two different characters
// never ends, nor does one in which no pair passes.
std::string MakeCluePair(std::string_view answer, const CodeTable& table, RandomSource& random);

}  // namespace brindlepage
