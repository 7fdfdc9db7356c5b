#include "scramble_code/secret_code.h"

#include "toolkit/code_page.h"

namespace brindlepage {

namespace {

constexpr int kLetters = 26;
constexpr int kBeforeA = 64;
constexpr int kBehindZ = 91;
constexpr std::size_t kEntryWidth = 10;
constexpr int kEntriesInARow = 6;

int Code(char character) { return static_cast<unsigned char>(character); }

char LetterAt(int place) { return static_cast<char>(place + kBeforeA); }

// What stands for each letter of the alphabet, from element 1.
using Cells = BoundedArray<std::string, 0, kLetters>;

Cells MakeCells(const CodeTable& table, CodeStyle style) {
  Cells cells;
  for (int place = 1; place <= kLetters; ++place) {
    const int number = table(place);
    cells(place) = style == CodeStyle::Letters ? std::string(1, LetterAt(number))
                                               : "[" + std::to_string(number) + "]";
  }
  return cells;
}

int LetterOf(int number, const CodeTable& table) {
  int place = 0;
  while (table(place) != number) ++place;
  return place;
}

// One character, or none if the text is empty.
std::string_view DrawCharacter(std::string_view text, RandomSource& random) {
  return text.substr(static_cast<std::size_t>(random.DrawIndex(static_cast<int>(text.size())) - 1),
                     1);
}

// A wide test: it takes the neighbours of A and Z in.
bool IsClue(std::string_view character) {
  const int code = Code(character.front());
  return code >= kBeforeA && code <= kBehindZ;
}

std::string ClueText(std::string_view character, const CodeTable& table) {
  const char code = LetterAt(table(Code(character.front()) - kBeforeA));
  return code + (" = " + std::string(character));
}

}  // namespace

CodeTable MakeCodeTable(RandomSource& random) {
  CodeTable table;
  BoundedArray<bool, 0, kLetters> used;
  random.Reseed();
  for (int place = 1; place <= kLetters; ++place) {
    int number;
    do {
      number = random.DrawIndex(kLetters);
    } while (used(number));
    table(place) = number;
    used(number) = true;
  }
  return table;
}

std::string EncodeText(std::string_view text, const CodeTable& table, CodeStyle style) {
  const Cells cells = MakeCells(table, style);
  std::string coded;
  coded.reserve(text.size() * 4);
  for (const char character : text) {
    const char capital = code_page::UpperCase(character);
    if (capital >= 'A' && capital <= 'Z') {
      coded += cells(capital - kBeforeA);
    } else if (capital == ' ') {
      coded += "  ";
    } else {
      coded += capital;
    }
  }
  return coded;
}

std::string KeyTableText(const CodeTable& table) {
  std::string text;
  for (int number = 1; number <= kLetters; ++number) {
    std::string entry = DisplayForm(number) + "=" + LetterAt(LetterOf(number, table));
    entry.resize(kEntryWidth, ' ');
    text += entry;
    if (number % kEntriesInARow == 0) text += '\n';
  }
  return text + '\n';
}

std::string MakeCluePair(std::string_view answer, const CodeTable& table, RandomSource& random) {
  const std::string capitals = code_page::UpperCase(answer);
  std::string_view first;
  std::string_view second;
  do {
    first = DrawCharacter(capitals, random);
    do {
      second = DrawCharacter(capitals, random);
    } while (second == first);
  } while (!IsClue(first) || !IsClue(second));
  return "      Hint: " + ClueText(first, table) + " and " + ClueText(second, table);
}

}  // namespace brindlepage
