#include "walk/script.h"

#include <charconv>
#include <cmath>

#include "toolkit/code_page.h"

namespace brindlepage::walk {

namespace {

bool IsBlank(char c) { return c == ' ' || c == '\t' || c == '\r'; }

// Walks through a line, a token at a time.
class TokenReader {
 public:
  explicit TokenReader(std::string_view line) : rest_(line) {}

  std::optional<Token> Next() {
    while (!rest_.empty() && IsBlank(rest_.front())) rest_.remove_prefix(1);
    if (rest_.empty()) return std::nullopt;
    return rest_.front() == '"' ? Text() : Word();
  }

 private:
  Token Word() {
    Token word;
    while (!rest_.empty() && !IsBlank(rest_.front())) {
      const char c = Take();
      if (c == '"') throw ScriptError("a quotation mark inside a word");
      word.text.push_back(c);
    }
    return word;
  }

  Token Text() {
    Token text{"", true};
    Take();
    for (char c = Take(); c != '"'; c = Take()) {
      if (c == '\\') {
        text.text += Escaped(Take());
      } else {
        text.text.push_back(c);
      }
    }
    if (!rest_.empty() && !IsBlank(rest_.front())) {
      throw ScriptError("a text is followed by something other than a blank");
    }
    return text;
  }

  std::string Escaped(char c) {
    switch (c) {
      case '"':
        return "\"";
      case '\\':
        return "\\";
      case 'n':
        return "\n";
      case 't':
        return "\t";
      case 'x':
        return CodePageByte();
      default:
        throw ScriptError(std::string("no such escape: \\") + c);
    }
  }

  std::string CodePageByte() {
    const char digits[] = {Take(), Take()};
    unsigned byte = 0;
    const auto [end, error] = std::from_chars(digits, digits + 2, byte, 16);
    if (error != std::errc() || end != digits + 2) {
      throw ScriptError("\\x needs two hexadecimal digits");
    }
    const char character = static_cast<char>(byte);
    return code_page::ToUtf8(std::string_view(&character, 1));
  }

  char Take() {
    if (rest_.empty()) throw ScriptError("a text without its closing quotation mark");
    const char c = rest_.front();
    rest_.remove_prefix(1);
    return c;
  }

  std::string_view rest_;
};

template <class T>
std::optional<T> Parsed(std::string_view text) {
  T number{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return number;
}

NamePart ReadPart(const std::string& part, const std::string& whole) {
  const auto bracket = part.find('(');
  NamePart result{part.substr(0, bracket), std::nullopt};
  if (bracket != std::string::npos) {
    if (part.back() != ')') throw ScriptError("not a name: " + whole);
    result.index = Parsed<int>(part.substr(bracket + 1, part.size() - bracket - 2));
    if (!result.index) throw ScriptError("not an index: " + whole);
  }
  if (result.name.empty()) throw ScriptError("not a name: " + whole);
  return result;
}

}  // namespace

Tokens ReadTokens(std::string_view line) {
  Tokens tokens;
  TokenReader reader(line);
  while (auto token = reader.Next()) tokens.push_back(std::move(*token));
  return tokens;
}

bool IsSkipped(std::string_view line) {
  while (!line.empty() && IsBlank(line.front())) line.remove_prefix(1);
  return line.empty() || line.front() == '#';
}

std::int64_t ReadNumber(const Token& token, std::int64_t least, std::int64_t most) {
  const auto number = Parsed<std::int64_t>(token.text);
  if (token.quoted || !number) throw ScriptError("not a whole number: " + token.text);
  if (*number < least || *number > most) throw ScriptError("out of range: " + token.text);
  return *number;
}

int ReadInt(const Token& token, int least) { return static_cast<int>(ReadNumber(token, least)); }

bool IsNumber(const Token& token) { return !token.quoted && Parsed<std::int64_t>(token.text); }

float ReadDraw(const std::string& text) {
  const auto exact = Parsed<double>(text);
  const auto draw = Parsed<float>(text);
  if (!exact || !draw || !(*exact >= 0 && *exact < 1)) {
    throw ScriptError("not a random number from 0 to below 1: " + text);
  }
  return *draw < 1 ? *draw : std::nextafter(1.0F, 0.0F);
}

std::vector<NamePart> ReadName(const std::string& dotted) {
  std::vector<NamePart> parts;
  for (std::size_t start = 0; start <= dotted.size();) {
    const auto end = std::min(dotted.find('.', start), dotted.size());
    parts.push_back(ReadPart(dotted.substr(start, end - start), dotted));
    start = end + 1;
  }
  return parts;
}

Target ReadTarget(const Token& token) {
  const auto parts = ReadName(token.text);
  if (parts.size() > 2 || parts[0].index) throw ScriptError("not a target: " + token.text);
  if (parts.size() == 1) return {parts[0].name, "", std::nullopt};
  return {parts[0].name, parts[1].name, parts[1].index};
}

Target ReadControl(const Token& token) {
  Target target = ReadTarget(token);
  if (target.IsForm()) throw ScriptError("not a control: " + token.text);
  return target;
}

std::string ReadForm(const Token& token) {
  const Target target = ReadTarget(token);
  if (!target.IsForm()) throw ScriptError("not a form: " + token.text);
  return target.form;
}

}  // namespace brindlepage::walk
