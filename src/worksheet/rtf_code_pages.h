#pragma once

#include <array>

namespace brindlepage {

// What each byte of a text stands for.
using RtfCodePage = std::array<char16_t, 256>;

// The code page of that number (437, 1250, 10000, ...); one that is unknown reads as Windows-1252.
const RtfCodePage& RtfPageOf(int number);

// The bytes of a font of signs instead of letters.
const RtfCodePage& RtfSigns();
inline constexpr int kRtfSignsCharset = 2;

// The number of the code page that a font's charset (\fcharset) stands for; 0 if it names none.
int RtfPageOfCharset(int charset);

}  // namespace brindlepage
