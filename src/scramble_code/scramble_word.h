#pragma once

#include <string>
#include <string_view>

#include "toolkit/random_source.h"

namespace brindlepage {

// The characters of a word in an order drawn at random, which may be the one that they had. The
// source is reseeded first; letters are drawn until each place was hit.
//
// A word of more than 25 characters throws RunTimeError 9. A "*" marks a place that was hit, so a
// word that holds one never ends.
std::string ScrambleWord(std::string_view word, RandomSource& random);

}  // namespace brindlepage
