#pragma once

#include <optional>
#include <string>
#include <string_view>

// Words, lists, settings and captions are single-byte text in Windows-1252. The five codes that
// the code page leaves open (0x81, 0x8D, 0x8F, 0x90, 0x9D) stand for the control characters of
// the same number, as they do on the teacher's desktop, so that every byte has its character.
namespace brindlepage::code_page {

char32_t ToUnicode(char byte);
// The byte of a character, or nothing if the code page lacks it.
std::optional<char> FromUnicode(char32_t character);

std::u32string ToUnicode(std::string_view bytes);
std::string ToUtf8(std::string_view bytes);
// Characters that the code page lacks become `substitute`.
std::string FromUnicode(std::u32string_view text, char substitute = '?');
std::string FromUtf8(std::string_view utf8, char substitute = '?');

// Malformed UTF-8 gives U+FFFD, never a failure.
std::u32string Utf8ToUnicode(std::string_view utf8);
std::string UnicodeToUtf8(std::u32string_view text);

// What a box of words takes of a text that is typed or pasted, a byte for each character that it
// keeps: line ends, other control characters and what the code page lacks are left out.
std::string KeepTypeable(std::u32string_view text);

// A letter whose capital the code page lacks stays as it is.
char UpperCase(char byte);
char LowerCase(char byte);
std::string UpperCase(std::string_view bytes);
std::string LowerCase(std::string_view bytes);

// The order of a sorted list: case ignored, accented letters beside their base letter, blank
// before punctuation before digits before letters. Texts that differ in case or accents alone
// are ordered by those, so that the order is total: 0 only for equal bytes.
int Compare(std::string_view left, std::string_view right);

}  // namespace brindlepage::code_page
