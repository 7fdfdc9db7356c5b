#pragma once

#include <cstdint>
#include <limits>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace brindlepage::walk {

// The script is wrong, and says why. It passes through the program's handlers and ends the walk.
class ScriptError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// A word of a line, or a text in double quotes. UTF-8, the escapes resolved.
struct Token {
  std::string text;
  bool quoted = false;
};
using Tokens = std::vector<Token>;

// The words and texts of a line, separated by blanks. In a text, `\"`, `\\`, `\n` and `\t` stand
// for what they look like and `\xHH` for a byte of the code page.
Tokens ReadTokens(std::string_view line);

// A blank line, or one that begins with #.
bool IsSkipped(std::string_view line);

// A whole number from `least` to `most`.
std::int64_t ReadNumber(const Token& token, std::int64_t least = 0,
                        std::int64_t most = std::numeric_limits<int>::max());
int ReadInt(const Token& token, int least = 0);
bool IsNumber(const Token& token);

// A random number r with 0 <= r < 1, taken in single precision.
float ReadDraw(const std::string& text);

// "Command1", or "Command1(3)" for an element.
struct NamePart {
  std::string name;
  std::optional<int> index;
};

// The parts of a name with dots: "Title.Command1(3).Caption".
std::vector<NamePart> ReadName(const std::string& dotted);

// A control, "Title.Command1(3)", or a form alone, "Title".
struct Target {
  std::string form;
  std::string control;  // empty for the form itself
  std::optional<int> index;

  bool IsForm() const { return control.empty(); }
};

Target ReadTarget(const Token& token);
// A target that names a control.
Target ReadControl(const Token& token);
// A form alone, by its name.
std::string ReadForm(const Token& token);

}  // namespace brindlepage::walk
