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

std::string CodeOf(char capital, const CodeTable& table, CodeStyle style) {
  const int number = table(Code(capital) - kBeforeA);
  if (style == CodeStyle::Letters) return std::string(1, LetterAt(number));
  return "[" + std::to_string(number) + "]";
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
  return CodeOf(character.front(), table, CodeStyle::Letters) + " = " + std::string(character);
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
  std::string coded;
  for (const char character : text) {
    const char capital = code_page::UpperCase(character);
    if (capital >= 'A' && capital <= 'Z') {
      coded += CodeOf(capital, table, style);
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
