// An empty window of the menu's size: what starting costs any program on the same library.

#include "bench/start/first_paint.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  FirstPaint first_paint(application);
  QWidget window;
  window.resize(1000, 720);
  window.show();
  return QApplication::exec();
}
