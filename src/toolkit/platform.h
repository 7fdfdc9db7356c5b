#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "toolkit/geometry.h"
#include "toolkit/picture.h"
#include "toolkit/printer_pages.h"
#include "toolkit/timer.h"

namespace brindlepage {

class Control;
class Form;
struct Picture;

// At 96 dots to the inch.
inline constexpr int kTwipsPerPixel = 15;

enum class BoxButtons { Ok, YesNo, YesNoCancel };
enum class BoxAnswer { Ok, Yes, No, Cancel };

enum class PrintChoice { All, Selection };

// Flags of the print dialog.
enum PrintFlags : unsigned {
  kPrintSelection = 0x1,    // set by the dialog: the choice was Selection
  kPrintNoSelection = 0x4,  // no Selection choice
  kPrintNoPageNumbers = 0x8,
  kPrintReturnDevice = 0x100,
  kPrintNoFile = 0x100000,
};

// All that the program asks of a window system. Texts are in Windows-1252.
//
// Boxes and dialogs are modal: they return when the teacher has answered, and the timers go on
// meanwhile. They are reached through Runtime, which ends the handler that waits for an answer
// if the program was ended behind the box.
class Platform {
 public:
  virtual ~Platform() = default;

  virtual BoxAnswer MessageBox(std::string_view text, std::string_view title,
                               BoxButtons buttons) = 0;
  // Nothing when cancelled.
  virtual std::optional<std::string> InputBox(std::string_view prompt, std::string_view title,
                                              std::string_view default_text) = 0;
  // Nothing when cancelled. `flags` is of PrintFlags.
  virtual std::optional<PrintChoice> PrintDialog(unsigned flags) = 0;
  // Prints `length` characters of a rich text box from `start`, on the printer chosen last.
  virtual void Print(Control& box, int start, int length) = 0;
  // The chosen file's name, or nothing when cancelled. The filter is "Programs (*.exe)|*.exe".
  virtual std::optional<std::string> OpenDialog(std::string_view title, std::string_view filter,
                                                std::string_view folder) = 0;
  // The program will probably ask for such a file soon: its dialog may be made ahead.
  virtual void ExpectOpenDialog(std::string_view filter) { static_cast<void>(filter); }
  // Starts a program and does not wait for it. Throws RunTimeError 53 if it can't be started.
  virtual void StartProgram(std::string_view command_line) = 0;
  virtual void Beep() = 0;
  // Whether the picture can be shown. Without a display every one that begins like a picture can.
  virtual bool CanShow(const Picture&) { return true; }

  virtual Size ScreenSize() const = 0;  // twips
  virtual std::vector<std::string> ScreenFonts() const = 0;
  // Milliseconds since some moment in the past.
  virtual Milliseconds Now() const = 0;
  // Lets that much time pass while the program waits: what has changed is painted, but no timer
  // fires and nothing that the teacher does is heard.
  virtual void Pause(Milliseconds time) = 0;

  // The form as it would look on screen, whether it is there or not, as a PNG file. Of a form that
  // places its controls itself it shows PictureArea (toolkit/placed_form.h).
  virtual FormPicture PictureOf(Form& form) = 0;
  // Pages for the printer chosen last. They print when EndDoc is called.
  virtual std::unique_ptr<PrinterPages> StartPages() = 0;

  // The program's end by a fault that nothing handled.
  virtual void FatalError(int number, std::string_view text) = 0;

  // Forms that come, go and change. A form is shown, or brought to the front, after its load; a
  // form or control that isn't shown may change as well.
  virtual void FormActivated(Form& form) = 0;
  virtual void FormHidden(Form& form) = 0;
  virtual void FormUnloaded(Form& form) = 0;  // the last that is heard of it
  virtual void FormChanged(Form& form) = 0;
  virtual void ControlChanged(Control& control) = 0;
};

}  // namespace brindlepage
