// Walks through everything that the program can do, at its limits, with real windows and real
// clicks, and prints how long each click took until its answer was painted, slowest first:
//
//     clicks PROGRAM_FOLDER [ROUNDS [WALK]]
//
// A click counts with the best of its rounds, which other work of the machine disturbs least;
// each round begins with the pictures undecoded. [long] marks what the program tells to wait for.
// With no display the library's offscreen one is used.

#include <QApplication>
#include <QDir>
#include <QPixmapCache>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <filesystem>

#include "bench/clicks/walks.h"
#include "desktop/style.h"

namespace {

constexpr double kFrame = 16;  // milliseconds
constexpr int kAtLeastPrinted = 20;

void WalkOnce(const Walk& walk, const std::filesystem::path& program_folder, Stopwatch& stopwatch) {
  const QTemporaryDir copy;
  const std::filesystem::path folder = copy.path().toStdString();
  std::filesystem::copy(program_folder, folder, std::filesystem::copy_options::recursive);
  PrepareFolder(folder);
  QDir::setCurrent(copy.path());
  QPixmapCache::clear();
  {
    brindlepage::Desktop desktop;
    stopwatch.Measure(
        walk.name + " 00 start", [&] { desktop.Start(); }, 100);
    Hand hand(desktop, stopwatch, walk.name);
    try {
      walk.clicks(hand);
    } catch (const std::exception& fault) {
      std::fprintf(stderr, "%s\n", fault.what());
    }
  }
  QDir::setCurrent(QDir::rootPath());
}

void Print(const Stopwatch::Times& times) {
  std::vector<std::pair<double, std::string>> sorted;
  for (const auto& [name, time] : times) sorted.emplace_back(time, name);
  std::sort(sorted.rbegin(), sorted.rend());
  int over = 0;
  int printed = 0;
  for (const auto& [time, name] : sorted) {
    const bool long_one = name.find("[long]") != std::string::npos;
    if (time > kFrame && !long_one) ++over;
    if (time > kFrame || printed < kAtLeastPrinted) {
      std::printf("%8.1f ms %s %s\n", time, time > kFrame && !long_one ? "!" : " ", name.c_str());
      ++printed;
    }
  }
  std::printf("%zu clicks, %d of them above %.0f ms without being told to be long\n", sorted.size(),
              over, kFrame);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2 || argc > 4) {
    std::fprintf(stderr, "usage: clicks PROGRAM_FOLDER [ROUNDS [WALK]]\n");
    return 2;
  }
  if (qEnvironmentVariableIsEmpty("DISPLAY")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setCursorFlashTime(0);
  brindlepage::ApplyStyle(application);

  const std::filesystem::path program_folder = std::filesystem::absolute(argv[1]);
  const int rounds = argc > 2 ? std::atoi(argv[2]) : 3;
  Stopwatch stopwatch;
  for (int round = 0; round < rounds; ++round) {
    for (const Walk& walk : AllWalks()) {
      if (argc < 4 || walk.name == argv[3]) WalkOnce(walk, program_folder, stopwatch);
    }
  }
  Print(stopwatch.Best());
  return 0;
}
