#include "walk/walk_platform.h"

#include <algorithm>
#include <cstdio>
#include <utility>

#include "toolkit/code_page.h"
#include "walk/form_sketch.h"
#include "walk/print.h"
#include "walk/walk_pages.h"

namespace brindlepage::walk {

namespace {

const char* ButtonsName(BoxButtons buttons) {
  switch (buttons) {
    case BoxButtons::Ok:
      return "ok";
    case BoxButtons::YesNo:
      return "yes-no";
    case BoxButtons::YesNoCancel:
      return "yes-no-cancel";
  }
  return "";
}

[[noreturn]] void Misfit(const std::string& box, const Token& answer) {
  throw ScriptError("the answer " + (answer.quoted ? Quoted(answer.text) : answer.text) +
                    " does not fit: " + box);
}

bool IsWord(const Token& answer, std::string_view word) {
  return !answer.quoted && answer.text == word;
}

}  // namespace

WalkPlatform::WalkPlatform(std::ostream& out, Size screen) : out_(out), screen_(screen) {}

void WalkPlatform::QueueAnswer(Token answer) {
  static constexpr std::string_view kWords[] = {"yes", "no", "ok", "cancel", "all", "selection"};
  const bool known =
      std::find(std::begin(kWords), std::end(kWords), answer.text) != std::end(kWords);
  if (!answer.quoted && !known) throw ScriptError("no such answer: " + answer.text);
  answers_.push_back(std::move(answer));
}

std::string WalkPlatform::Typed(std::string_view utf8) {
  std::string kept;
  bool refused = false;
  for (const char32_t character : code_page::Utf8ToUnicode(utf8)) {
    const auto byte = code_page::FromUnicode(character);
    const bool fits = byte && character >= 0x20 && character != 0x7F;
    if (fits) kept.push_back(*byte);
    refused = refused || !fits;
  }
  if (refused) Beep();
  return kept;
}

BoxAnswer WalkPlatform::MessageBox(std::string_view text, std::string_view title,
                                   BoxButtons buttons) {
  const std::string box =
      "message " + QuotedBytes(title) + ' ' + QuotedBytes(text) + ' ' + ButtonsName(buttons);
  if (buttons == BoxButtons::Ok) {
    if (!answers_.empty() && IsWord(answers_.front(), "ok")) answers_.pop_front();
    Say(out_, box + " -> ok");
    return BoxAnswer::Ok;
  }
  std::vector<Option<BoxAnswer>> options = {{"yes", BoxAnswer::Yes}, {"no", BoxAnswer::No}};
  if (buttons == BoxButtons::YesNoCancel) options.push_back({"cancel", BoxAnswer::Cancel});
  return Choose(box, options, options.front()).choice;
}

std::optional<std::string> WalkPlatform::InputBox(std::string_view prompt, std::string_view title,
                                                  std::string_view default_text) {
  return AskText(
      "input " + QuotedBytes(title) + ' ' + QuotedBytes(prompt) + ' ' + QuotedBytes(default_text),
      std::string(default_text));
}

std::optional<PrintChoice> WalkPlatform::PrintDialog(unsigned flags) {
  using Choice = std::optional<PrintChoice>;
  char box[32];
  std::snprintf(box, sizeof box, "print-dialog 0x%x", flags);
  const Option<Choice> cancel = {"cancel", std::nullopt};
  std::vector<Option<Choice>> options = {{"all", PrintChoice::All}, cancel};
  if ((flags & kPrintNoSelection) == 0) options.push_back({"selection", PrintChoice::Selection});
  return Choose<Choice>(box, options, cancel).choice;
}

void WalkPlatform::Print(Control& box, int start, int length) {
  Say(out_,
      "printed " + PrintedName(box) + ' ' + std::to_string(start) + ' ' + std::to_string(length));
}

std::optional<std::string> WalkPlatform::OpenDialog(std::string_view title, std::string_view filter,
                                                    std::string_view folder) {
  return AskText(
      "open-dialog " + QuotedBytes(title) + ' ' + QuotedBytes(filter) + ' ' + QuotedBytes(folder),
      std::nullopt);
}

void WalkPlatform::StartProgram(std::string_view command_line) {
  Say(out_, "run " + QuotedBytes(command_line));
}

void WalkPlatform::Beep() { Say(out_, "beep"); }

std::vector<std::string> WalkPlatform::ScreenFonts() const {
  return {"Arial", "Courier New", "Liberation Mono", "Times New Roman", "Verdana"};
}

FormPicture WalkPlatform::PictureOf(Form& form) { return SketchOf(form); }

std::unique_ptr<PrinterPages> WalkPlatform::StartPages() {
  return std::make_unique<WalkPages>(out_);
}

void WalkPlatform::FatalError(int number, std::string_view text) {
  Say(out_, "error " + std::to_string(number) + ' ' + QuotedBytes(text));
}

template <class Choice>
WalkPlatform::Option<Choice> WalkPlatform::Choose(const std::string& box,
                                                  const std::vector<Option<Choice>>& options,
                                                  Option<Choice> unasked) {
  Option<Choice> chosen = unasked;
  if (const auto answer = TakeAnswer()) {
    const auto option = std::find_if(options.begin(), options.end(), [&](const auto& candidate) {
      return IsWord(*answer, candidate.word);
    });
    if (option == options.end()) Misfit(box, *answer);
    chosen = *option;
  }
  Say(out_, box + " -> " + chosen.word);
  return chosen;
}

std::optional<std::string> WalkPlatform::AskText(const std::string& box,
                                                 std::optional<std::string> unasked) {
  std::optional<std::string> text = std::move(unasked);
  if (const auto answer = TakeAnswer()) {
    const bool cancelled = IsWord(*answer, "cancel");
    if (!answer->quoted && !cancelled) Misfit(box, *answer);
    text = cancelled ? std::nullopt : std::optional(Typed(answer->text));
  }
  Say(out_, box + " -> " + (text ? QuotedBytes(*text) : "cancel"));
  return text;
}

std::optional<Token> WalkPlatform::TakeAnswer() {
  if (answers_.empty()) return std::nullopt;
  Token answer = std::move(answers_.front());
  answers_.pop_front();
  return answer;
}

}  // namespace brindlepage::walk
