// A teacher without a plan at the real desktop's widgets, with mouse and keys.
//
//     random_teacher_desktop PROGRAM_FOLDER [--seconds N] [--seed N] [--rounds N]
//
// As random_teacher, but what happens depends on the time as well, so that a seed does much the
// same again, and not exactly. The deeds of the round are in random_teacher_desktop.deeds, also
// when the program has crashed.

#include <QApplication>
#include <fstream>
#include <iostream>

#include "desktop/style.h"
#include "tests/random_teacher/fresh_folder.h"
#include "tests/random_teacher/options.h"
#include "tests/random_teacher_desktop/desktop_round.h"
#include "tests/temp_folder.h"

// What the window system's libraries leave behind is no fault of the program.
extern "C" const char* __asan_default_options() { return "detect_leaks=0"; }

namespace {

using namespace brindlepage;

constexpr int kDeedsOfARound = 400;

// A window system without windows tells at each turn what it can't do.
void TellMessage(QtMsgType, const QMessageLogContext&, const QString& message) {
  if (!message.startsWith("This plugin does not support")) std::cerr << qPrintable(message) << '\n';
}

// What is wrong with this round, or nothing.
std::string PlayInFreshFolder(const Options& options, long seed, DesktopRound& round,
                              Tally& tally) {
  TempFolder folder;
  FillFreshFolder(options.program_folder, folder.Path(), seed);
  // Where what is printed goes.
  qputenv("HOME", QByteArray::fromStdString(folder.Path().string()));
  Tally met;
  const std::string wrong = round.Play(kDeedsOfARound, met);
  tally.Add(met);
  return wrong.empty() ? SpoiltFile(options.program_folder, folder.Path()) : wrong;
}

}  // namespace

int main(int count, char** words) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  qInstallMessageHandler(TellMessage);
  QApplication application(count, words);
  QApplication::setQuitOnLastWindowClosed(false);
  ApplyStyle(application);
  Options options;
  if (!ReadOptions(count, words, options)) return 2;

  const auto until = DesktopRound::Clock::now() + std::chrono::seconds(options.seconds);
  Tally tally;
  long rounds = 0;
  for (; rounds < options.rounds && DesktopRound::Clock::now() < until; ++rounds) {
    const long seed = options.seed + rounds;
    std::ofstream log("random_teacher_desktop.deeds");
    log << "seed " << seed << std::endl;
    DesktopRound round(static_cast<std::uint64_t>(seed), until, log);
    const std::string finding = PlayInFreshFolder(options, seed, round, tally);
    if (finding.empty()) continue;
    std::cout << "seed " << seed << ": " << finding << '\n';
    PrintLast(std::cout, round.Deeds());
    return 1;
  }
  tally.Print(std::cout);
  std::cout << rounds << " rounds\n";
}
