#pragma once

#include <QFileDialog>
#include <QObject>
#include <QPointer>
#include <memory>

#include "desktop/loop.h"
#include "desktop/windows.h"
#include "toolkit/platform.h"

class QDialog;
class QPrinter;

namespace brindlepage {

// The toolkit's window system on Qt Widgets. Boxes and dialogs are modal, the timers go on behind
// them, and they close when the program ends behind them.
class QtPlatform : public QObject, public Platform {
 public:
  QtPlatform(Loop& loop, Windows& windows);
  ~QtPlatform() override;

  BoxAnswer MessageBox(std::string_view text, std::string_view title, BoxButtons buttons) override;
  std::optional<std::string> InputBox(std::string_view prompt, std::string_view title,
                                      std::string_view default_text) override;
  std::optional<PrintChoice> PrintDialog(unsigned flags) override;
  void Print(Control& box, int start, int length) override;
  std::optional<std::string> OpenDialog(std::string_view title, std::string_view filter,
                                        std::string_view folder) override;
  void ExpectOpenDialog(std::string_view filter) override;
  void StartProgram(std::string_view command_line) override;
  bool CanShow(const Picture& picture) override;
  void Beep() override;

  Size ScreenSize() const override;
  std::vector<std::string> ScreenFonts() const override;
  Milliseconds Now() const override { return Loop::Now(); }
  void Pause(Milliseconds time) override;

  FormPicture PictureOf(Form& form) override;
  std::unique_ptr<PrinterPages> StartPages() override;

  void FatalError(int number, std::string_view text) override;

  void FormActivated(Form& form) override { windows_.Activated(form); }
  void FormHidden(Form& form) override { windows_.Hidden(form); }
  void FormUnloaded(Form& form) override { windows_.Unloaded(form); }
  void FormChanged(Form& form) override { windows_.Changed(form); }
  void ControlChanged(Control& control) override { windows_.Changed(control); }

  // Asks whether to go on waiting for a handler that draws and draws. True: wait.
  bool AskToWait();

 private:
  // Before a box opens: what has changed shows, and the timers go on.
  void PrepareForBox();
  bool Run(QDialog& dialog);
  QPrinter& Printer();
  QFileDialog* MakeOpenDialog(std::string_view filter);

  Loop& loop_;
  Windows& windows_;
  std::unique_ptr<QPrinter> printer_;  // the one chosen last
  QPointer<QFileDialog> programs_;     // made ahead
};

}  // namespace brindlepage
