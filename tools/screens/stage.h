#pragma once

#include <QTemporaryDir>
#include <functional>
#include <memory>

#include "desktop/loop.h"
#include "desktop/qt_platform.h"
#include "desktop/windows.h"
#include "program/screens.h"
#include "worksheet/rich_text_box.h"

namespace brindlepage::screens {

// Where what the program prints goes: `length` characters from `start`.
using Press = std::function<void(const RichTextBox& box, int start, int length)>;

// The program on the desktop, started on a copy of its folder and drawing from a fixed seed, so
// that it makes the same sheets each time. Its print dialog is answered at once.
class Stage {
 public:
  Stage(const QString& program_folder, Press press);
  ~Stage();

  BrindlepageProgram& program() { return program_; }
  Loop& loop() { return loop_; }
  Windows& windows() { return *windows_; }

  void Seed(std::uint64_t seed) { random_.Seed(seed); }

  // The loaded form of that name, or null.
  Form* Find(const std::string& form);
  // The form in front of the others, or null.
  Form* Front() { return program_.forms().Front(); }

 private:
  class PrintingPlatform : public QtPlatform {
   public:
    PrintingPlatform(Loop& loop, Windows& windows, Press press)
        : QtPlatform(loop, windows), press_(std::move(press)) {}

    std::optional<PrintChoice> PrintDialog(unsigned) override { return PrintChoice::All; }
    void Print(Control& box, int start, int length) override;
    void Beep() override {}

   private:
    Press press_;
  };

  QString came_from_;
  QTemporaryDir folder_;
  Loop loop_;
  std::unique_ptr<Windows> windows_;
  PrintingPlatform platform_;
  SeededRandom random_;
  BrindlepageProgram program_;
};

}  // namespace brindlepage::screens
