// The program up to its painted menu. It works in the folder that it is started in.

#include "bench/start/first_paint.h"
#include "desktop/desktop.h"
#include "desktop/fonts_ahead.h"
#include "desktop/style.h"

int main(int argc, char** argv) {
  brindlepage::ReadFontsAhead();
  QApplication application(argc, argv);
  FirstPaint first_paint(application);
  QApplication::setQuitOnLastWindowClosed(false);
  brindlepage::ApplyStyle(application);
  brindlepage::Desktop desktop;
  return desktop.Run();
}
