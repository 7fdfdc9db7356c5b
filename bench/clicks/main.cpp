// Walks through everything that the program can do, at its limits, with real windows and real
// clicks, and prints how long each click took until its answer was painted, slowest first:
//
//     clicks PROGRAM_FOLDER [ROUNDS [WALK]]
//
// In milliseconds: until the answer is painted, and what the processor works for it. A click counts
// with the best of its rounds, which other work of the machine disturbs least; each round begins
// with the pictures undecoded. [long] marks what the program tells to wait for, [start] the
// program's own start, which answers no click. With no display the library's offscreen one is used.

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
        walk.name + " 00 [start]", [&] { desktop.Start(); }, 100);
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
  std::vector<std::pair<std::string, Stopwatch::Time>> sorted(times.begin(), times.end());
  std::stable_sort(sorted.begin(), sorted.end(), [](const auto& one, const auto& other) {
    return one.second.answer > other.second.answer;
  });
  const auto marked = [](const std::string& name, const char* mark) {
    return name.find(mark) != std::string::npos;
  };
  int clicks = 0;
  int over = 0;
  int work_over = 0;
  int printed = 0;
  std::printf("  answer    work\n");
  for (const auto& [name, time] : sorted) {
    const bool counts = !marked(name, "[long]") && !marked(name, "[start]");
    const bool is_over = time.answer > kFrame && counts;
    clicks += !marked(name, "[start]");
    over += is_over;
    work_over += time.work > kFrame && counts;
    if (!is_over && ++printed > kAtLeastPrinted) continue;
    std::printf("%8.1f%8.1f %s %s\n", time.answer, time.work, is_over ? "!" : " ", name.c_str());
  }
  std::printf("%d clicks, of which %d answer and %d work above %.0f ms without being told to\n",
              clicks, over, work_over, kFrame);
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
