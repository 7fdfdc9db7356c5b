#include <filesystem>
#include <fstream>
#include <iostream>
#include <optional>
#include <string>
#include <vector>

#include "program/screens.h"
#include "walk/walk.h"
#include "walk/walk_arguments.h"

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <stdio.h>
#endif

namespace {

using namespace brindlepage::walk;
using brindlepage::Platform;
using brindlepage::Program;
using brindlepage::RandomSource;

WalkedProgram Brindlepage() {
  const auto start = [](Platform& platform, RandomSource& random) -> std::unique_ptr<Program> {
    auto program = std::make_unique<brindlepage::BrindlepageProgram>(platform, random);
    program->Start();
    return program;
  };
  return {start, brindlepage::ScreenNamed};
}

// The script, or nothing for standard input.
std::optional<std::ifstream> Open(const Arguments& arguments) {
  if (!arguments.script) return std::nullopt;
  const auto& path = *arguments.script;
  std::ifstream script(path);
  if (!script || std::filesystem::is_directory(path)) {
    throw UsageError("can't read " + path.string());
  }
  return script;
}

void EnterFolder(const Arguments& arguments) {
  if (!arguments.folder) return;
  std::error_code error;
  std::filesystem::current_path(*arguments.folder, error);
  if (error) throw UsageError("no such folder: " + arguments.folder->string());
}

// A walk prints the same bytes on every system: a line ends with a line feed alone.
void PrintBytesAsTheyAre() {
#ifdef _WIN32
  _setmode(_fileno(stdout), _O_BINARY);
#endif
}

int Run(const std::vector<std::string>& words) {
  Arguments arguments = ReadArguments(words);
  arguments.settings.script_folder = std::filesystem::current_path();
  auto script = Open(arguments);
  EnterFolder(arguments);
  Walk walk(Brindlepage(), arguments.settings, std::cout, std::cerr);
  return walk.Play(script ? *script : std::cin);
}

}  // namespace

int main(int count, char** arguments) {
  PrintBytesAsTheyAre();
  try {
    return Run(std::vector<std::string>(arguments + 1, arguments + count));
  } catch (const UsageError& error) {
    std::cerr << error.what() << std::endl;
    return kScriptWrong;
  }
}
