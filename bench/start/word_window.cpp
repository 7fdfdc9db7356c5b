// A window of the menu's size with a single word on it: what fonts cost any program.

#include <QLabel>

#include "bench/start/first_paint.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  FirstPaint first_paint(application);
  QWidget window;
  window.resize(1000, 720);
  QLabel word("Brindlepage", &window);
  window.show();
  return QApplication::exec();
}
