#pragma once

#include <functional>

#include "walk/walk_platform.h"

namespace brindlepage {

// Hands everything on to a walk's window system, and has each box answered just before it opens.
class AnsweringPlatform : public Platform {
 public:
  enum class Box { Message, YesNo, YesNoCancel, Input, Print, PrintWhole, Open };
  // Gives the answer as a script writes it, or "" for none.
  using Answers = std::function<std::string(Box)>;
  // Is told what a message was answered with.
  using Listener = std::function<void(std::string_view title, BoxAnswer answer)>;

  AnsweringPlatform(walk::WalkPlatform& platform, Answers answers, Listener listener)
      : platform_(platform), answers_(std::move(answers)), listener_(std::move(listener)) {}

  BoxAnswer MessageBox(std::string_view text, std::string_view title, BoxButtons buttons) override {
    Answer(buttons == BoxButtons::Ok      ? Box::Message
           : buttons == BoxButtons::YesNo ? Box::YesNo
                                          : Box::YesNoCancel);
    const BoxAnswer answer = platform_.MessageBox(text, title, buttons);
    listener_(title, answer);
    return answer;
  }
  std::optional<std::string> InputBox(std::string_view prompt, std::string_view title,
                                      std::string_view text) override {
    Answer(Box::Input);
    return platform_.InputBox(prompt, title, text);
  }
  std::optional<PrintChoice> PrintDialog(unsigned flags) override {
    Answer((flags & kPrintNoSelection) != 0 ? Box::PrintWhole : Box::Print);
    return platform_.PrintDialog(flags);
  }
  std::optional<std::string> OpenDialog(std::string_view title, std::string_view filter,
                                        std::string_view folder) override {
    Answer(Box::Open);
    return platform_.OpenDialog(title, filter, folder);
  }

  void Print(Control& box, int start, int length) override { platform_.Print(box, start, length); }
  void StartProgram(std::string_view command) override { platform_.StartProgram(command); }
  void Beep() override { platform_.Beep(); }
  Size ScreenSize() const override { return platform_.ScreenSize(); }
  std::vector<std::string> ScreenFonts() const override { return platform_.ScreenFonts(); }
  Milliseconds Now() const override { return platform_.Now(); }
  void Pause(Milliseconds time) override { platform_.Pause(time); }
  bool CanShow(const Picture& picture) override { return platform_.CanShow(picture); }
  FormPicture PictureOf(Form& form) override { return platform_.PictureOf(form); }
  std::unique_ptr<PrinterPages> StartPages() override { return platform_.StartPages(); }
  void FatalError(int number, std::string_view text) override {
    platform_.FatalError(number, text);
  }
  void FormActivated(Form&) override {}
  void FormHidden(Form&) override {}
  void FormUnloaded(Form&) override {}
  void FormChanged(Form&) override {}
  void ControlChanged(Control&) override {}

 private:
  void Answer(Box box) {
    const std::string answer = answers_(box);
    if (!answer.empty()) platform_.QueueAnswer(walk::ReadTokens(answer).front());
  }

  walk::WalkPlatform& platform_;
  Answers answers_;
  Listener listener_;
};

}  // namespace brindlepage
