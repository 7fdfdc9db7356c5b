#include "walk/walk_arguments.h"

namespace brindlepage::walk {

namespace {

constexpr char kUsage[] =
    "usage: brindlepage-walk [--folder DIR] [--screen WxH] [--draw-limit N] [SCRIPT]";

Token Word(const std::string& text) { return {text, false}; }

// "800x600", in pixels.
Size ReadScreen(const std::string& text) {
  constexpr int kMost = 100'000;
  const auto cross = text.find('x');
  if (cross == std::string::npos) throw ScriptError("not a screen size: " + text);
  const auto pixels = [](const std::string& number) {
    return static_cast<int>(ReadNumber(Word(number), 1, kMost));
  };
  return {pixels(text.substr(0, cross)) * kTwipsPerPixel,
          pixels(text.substr(cross + 1)) * kTwipsPerPixel};
}

}  // namespace

Arguments ReadArguments(const std::vector<std::string>& arguments) try {
  Arguments result;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& argument = arguments[i];
    const auto value = [&]() -> const std::string& {
      if (i + 1 == arguments.size()) throw ScriptError(argument + " needs a value");
      return arguments[++i];
    };
    if (argument == "--folder") {
      result.folder = value();
    } else if (argument == "--screen") {
      result.settings.screen = ReadScreen(value());
    } else if (argument == "--draw-limit") {
      result.settings.draw_limit =
          ReadNumber(Word(value()), 0, std::numeric_limits<std::int64_t>::max());
    } else if (argument.starts_with("-") && argument != "-") {
      throw ScriptError("no such option: " + argument);
    } else if (result.script) {
      throw ScriptError("one script alone");
    } else {
      result.script = argument;
    }
  }
  if (result.script == "-") result.script.reset();
  return result;
} catch (const ScriptError& error) {
  throw UsageError(std::string(error.what()) + '\n' + kUsage);
}

}  // namespace brindlepage::walk
