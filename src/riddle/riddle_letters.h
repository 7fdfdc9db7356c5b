#pragma once

#include <string>
#include <vector>

#include "toolkit/numbers.h"
#include "toolkit/random_source.h"

namespace brindlepage {

// What stands under the letters of a riddle sheet's words, and in its answer line.
struct RiddleCells {
  // Word by word from 1, letter by letter from 1: four blanks, or a number cell like " (7)",
  // "(12)" or "(123)".
  BoundedArray<BoundedArray<std::string, 0, 17>, 0, 150> words;
  // Character by character from 1: a number cell like "(7)", or the character itself.
  BoundedArray<std::string, 0, 300> answer;
};

// Hides the letters of an answer in words. The number of each is its place in the answer, and goes
// to a letter of a word that a thousand tries hit upon, case counting; a letter that they miss
// shares the number of its first place in the answer, or stands in clear there. The source is
// reseeded for each try, which draws a word and a letter.
//
// More than 150 words, more than 17 characters in one or more than 300 in the answer throw
// RunTimeError 9.
RiddleCells NumberLetters(const std::vector<std::string>& words, const std::string& answer,
                          RandomSource& random);

}  // namespace brindlepage
