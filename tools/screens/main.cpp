// Photographs the program's screens, without a display:
//
//     screens [--manual] OUT_DIR PROGRAM_FOLDER [WIDTHxHEIGHT]
//
// walks through the program on a copy of the folder, by the controls' own actions, and writes a
// PNG file for each form and each message when it first comes up, and for a few more states. A
// new screen is photographed as soon as one of the walks in screen_walks.cpp leads to it.
//
// With --manual it makes the manual's pictures instead: of manual_walks.cpp what is asked for,
// and the printed pages. The same program gives the same pictures on one machine.

#include <QApplication>
#include <QCursor>
#include <QDir>
#include <QTemporaryFile>
#include <cstdio>
#include <cstring>

#include "desktop/style.h"
#include "tools/screens/steps.h"

namespace {

using namespace brindlepage;
using namespace brindlepage::screens;

struct Order {
  Photographer::Album album = Photographer::Album::Everything;
  QString out;
  QString program_folder;
  QSize screen{1000, 720};
};

bool Understand(int argc, char** argv, Order& order) {
  int next = 1;
  if (next < argc && std::strcmp(argv[next], "--manual") == 0) {
    order.album = Photographer::Album::Manual;
    order.screen = QSize(800, 600);
    ++next;
  }
  if (argc - next < 2 || argc - next > 3) return false;
  order.out = QDir().absoluteFilePath(argv[next]);
  order.program_folder = QDir().absoluteFilePath(argv[next + 1]);
  if (argc - next == 2) return true;
  return std::sscanf(argv[next + 2], "%dx%d", &order.screen.rwidth(), &order.screen.rheight()) == 2;
}

// A screen of that size, in memory.
void UseOffscreen(QSize size) {
  static QTemporaryFile description;
  if (!description.open()) return;
  description.write(QString(R"({"windowFrameMargins": false, "screens": [{"name": "screen", "x": 0,
      "y": 0, "width": %1, "height": %2, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})")
                        .arg(size.width())
                        .arg(size.height())
                        .toUtf8());
  description.flush();
  qputenv("QT_QPA_PLATFORM", ("offscreen:configfile=" + description.fileName()).toUtf8());
}

void Play(const Walk& walk, Photographer& photographer, const QString& program_folder) {
  Stage stage(program_folder, [&](const RichTextBox& box, int start, int length) {
    photographer.TakePage(box, start, length);
  });
  photographer.Watch(stage);
  photographer.TakeNewForms();
  for (const Step& step : walk) {
    step(photographer);
    photographer.TakeNewForms();
  }
}

}  // namespace

int main(int argc, char** argv) {
  Order order;
  if (!Understand(argc, argv, order)) {
    std::fprintf(stderr, "usage: screens [--manual] OUT_DIR PROGRAM_FOLDER [WIDTHxHEIGHT]\n");
    return 2;
  }
  UseOffscreen(order.screen);
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setCursorFlashTime(0);
  ApplyStyle(application);
  QDir().mkpath(order.out);

  QCursor::setPos(order.screen.width() - 1, order.screen.height() - 1);
  Photographer photographer(order.out, order.screen, order.album);
  const bool manual = order.album == Photographer::Album::Manual;
  for (const Walk& walk : manual ? ManualWalks() : ScreenWalks()) {
    Play(walk, photographer, order.program_folder);
  }
  return 0;
}
