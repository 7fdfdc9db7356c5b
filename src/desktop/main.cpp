#include <QApplication>

#include "desktop/desktop.h"
#include "desktop/fonts_ahead.h"
#include "desktop/style.h"

// brindlepage: the teacher's program. It works in the folder that it is started in.
int main(int argc, char** argv) {
  brindlepage::ReadFontsAhead();
  QApplication application(argc, argv);
  QApplication::setApplicationName(brindlepage::kProgramName);
  QApplication::setQuitOnLastWindowClosed(false);
  brindlepage::ApplyStyle(application);

  brindlepage::Desktop desktop;
  return desktop.Run();
}
