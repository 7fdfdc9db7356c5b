#include "walk/walk.h"

#include <algorithm>
#include <fstream>
#include <limits>
#include <utility>

#include "toolkit/code_page.h"
#include "toolkit/controls.h"
#include "toolkit/file_lists.h"
#include "walk/print.h"
#include "worksheet/rich_text_box.h"

namespace brindlepage::walk {

namespace {

constexpr char kIgnored[] = "ignored";
constexpr std::size_t kAny = static_cast<std::size_t>(-1);

Key ReadKey(const Token& token) {
  struct NamedKey {
    std::string_view name;
    Key key;
  };
  static constexpr NamedKey kKeys[] = {
      {"Enter", Key::Enter},   {"Escape", Key::Escape},   {"Space", Key::Space},
      {"Tab", Key::Tab},       {"Up", Key::Up},           {"Down", Key::Down},
      {"Left", Key::Left},     {"Right", Key::Right},     {"Home", Key::Home},
      {"End", Key::End},       {"PageUp", Key::PageUp},   {"PageDown", Key::PageDown},
      {"Delete", Key::Delete}, {"Backspace", Key::Other}, {"Insert", Key::Other},
      {"Other", Key::Other},
  };
  for (const NamedKey& named : kKeys) {
    if (named.name == token.text) return named.key;
  }
  if (token.text == " ") return Key::Space;
  if (code_page::Utf8ToUnicode(token.text).size() == 1) return Key::Other;
  throw ScriptError("no such key: " + token.text);
}

// The first row of a text in UTF-8.
template <class List>
std::optional<int> RowOfText(const List& list, const std::string& text) {
  for (int row = 0; row < list.ListCount(); ++row) {
    if (code_page::ToUtf8(list.List(row)) == text) return row;
  }
  return std::nullopt;
}

// A row by its number, or the row of a text.
void SelectRow(ListBox& list, const Token& row) {
  const auto number = IsNumber(row) ? ReadInt(row, -1) : RowOfText(list, row.text);
  if (!number) throw ScriptError("no such row: " + Quoted(row.text));
  list.ClickRow(*number);
  if (auto* drives = dynamic_cast<DriveListBox*>(&list)) drives->UserClick();
}

void SelectRow(ComboBox& combo, const Token& row) {
  const auto number = IsNumber(row) ? ReadInt(row) : RowOfText(combo, row.text);
  if (!number) return combo.Type(code_page::Utf8ToUnicode(row.text));
  if (*number >= combo.ListCount()) throw ScriptError("no such row: " + row.text);
  combo.PickRow(*number);
}

void MarkRow(ListBox& list, int row) {
  if (list.style() != ListStyle::CheckBoxes) throw ScriptError("a list without check boxes");
  if (row >= list.ListCount()) throw ScriptError("no such row: " + std::to_string(row));
  list.ClickCheck(row);
}

std::vector<float> ReadDrawFile(const std::filesystem::path& path) {
  std::ifstream file(path);
  if (!file) throw ScriptError("can't read " + path.string());
  std::vector<float> draws;
  for (std::string line; std::getline(file, line);) {
    for (const Token& number : ReadTokens(line)) draws.push_back(ReadDraw(number.text));
  }
  return draws;
}

}  // namespace

struct Walk::Command {
  // When the command may be given. `seed`, `draws`, `answer`, ... prepare a walk, and may stand
  // before the first start.
  enum When { WhileRunning, BeforeToo, WhileNotRunning };

  std::string_view name;
  void (Walk::*play)(const Tokens&);
  std::size_t least;  // arguments
  std::size_t most;
  When when;
};

const Walk::Command& Walk::FindCommand(const Token& name) {
  static constexpr Command kCommands[] = {
      {"start", &Walk::Start, 0, 0, Command::WhileNotRunning},
      {"click", &Walk::Click, 1, 2, Command::WhileRunning},
      {"double", &Walk::DoubleClick, 1, 2, Command::WhileRunning},
      {"select", &Walk::Select, 2, 2, Command::WhileRunning},
      {"mark", &Walk::Mark, 2, kAny, Command::WhileRunning},
      {"type", &Walk::Type, 2, 2, Command::WhileRunning},
      {"press", &Walk::Press, 2, 2, Command::WhileRunning},
      {"set", &Walk::Set, 2, 2, Command::WhileRunning},
      {"caret", &Walk::Caret, 2, 3, Command::WhileRunning},
      {"insert", &Walk::Insert, 2, 2, Command::WhileRunning},
      {"folder", &Walk::MoveFolder, 2, 2, Command::WhileRunning},
      {"tick", &Walk::Tick, 0, 1, Command::WhileRunning},
      {"activate", &Walk::Activate, 1, 1, Command::WhileRunning},
      {"deactivate", &Walk::Deactivate, 1, 1, Command::WhileRunning},
      {"close", &Walk::Close, 1, 1, Command::WhileRunning},
      {"resize", &Walk::Resize, 3, 3, Command::WhileRunning},
      {"answer", &Walk::QueueAnswers, 1, kAny, Command::BeforeToo},
      {"seed", &Walk::Seed, 1, 1, Command::BeforeToo},
      {"draws", &Walk::GiveDraws, 1, kAny, Command::BeforeToo},
      {"get", &Walk::Get, 1, 1, Command::BeforeToo},
      {"rows", &Walk::ListRows, 1, 1, Command::WhileRunning},
      {"text", &Walk::ShowText, 1, 1, Command::WhileRunning},
      {"runs", &Walk::ShowRuns, 1, 1, Command::WhileRunning},
      {"forms", &Walk::ListForms, 0, 0, Command::WhileRunning},
      {"expect", &Walk::Expect, 2, 2, Command::BeforeToo},
  };
  for (const Command& command : kCommands) {
    if (!name.quoted && command.name == name.text) return command;
  }
  throw ScriptError("no such command: " + name.text);
}

Walk::Walk(WalkedProgram program, const WalkSettings& settings, std::ostream& out,
           std::ostream& errors)
    : walked_(std::move(program)),
      settings_(settings),
      out_(out),
      errors_(errors),
      platform_(out, settings.screen),
      random_(settings.draw_limit) {}

Walk::~Walk() = default;

int Walk::Play(std::istream& script) {
  std::string line;
  int number = 0;
  try {
    while (std::getline(script, line)) {
      constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
      if (++number == 1 && line.starts_with(kByteOrderMark)) line.erase(0, kByteOrderMark.size());
      PlayLine(line);
    }
  } catch (const ScriptError& error) {
    if (line.ends_with('\r')) line.pop_back();
    errors_ << "line " << number << ": " << line << '\n' << error.what() << std::endl;
    return kScriptWrong;
  } catch (const NotResponding&) {
    Say("not responding");
    return kNotResponding;
  }
  return failed_ ? kWalkFailed : kWalked;
}

void Walk::PlayLine(std::string_view line) {
  if (IsSkipped(line)) return;
  Tokens words = ReadTokens(line);
  const Command& command = FindCommand(words.front());
  words.erase(words.begin());

  if (words.size() < command.least) throw ScriptError("something is missing");
  if (words.size() > command.most) throw ScriptError("too many words");
  if (Running() && command.when == Command::WhileNotRunning) {
    throw ScriptError("the program is running already");
  }
  const bool too_early = !started_ && command.when == Command::WhileRunning;
  const bool too_late = started_ && !Running() && command.when != Command::WhileNotRunning;
  if (too_early) throw ScriptError("the program has not been started");
  if (too_late) throw ScriptError("the program has ended");

  random_.BeginCommand();
  (this->*command.play)(words);
}

void Walk::Start(const Tokens&) {
  started_ = true;
  program_ = walked_.start(platform_, random_);
  NoticeEnd();
}

void Walk::Click(const Tokens& arguments) {
  const Target target = ReadTarget(arguments[0]);
  if (arguments.size() == 2) return ClickButtonOf(target, arguments[1]);
  if (target.IsForm()) {
    ActOnForm(target.form, [this](Form& form) { program_->forms().Click(form); });
    return;
  }
  const Control* control = scene().FindControl(target);
  if (dynamic_cast<const Toolbar*>(control)) throw ScriptError("which button of the toolbar?");
  Act(target, [](Control& clicked) { clicked.UserClick(); });
}

void Walk::ClickButtonOf(const Target& target, const Token& caption) {
  if (target.IsForm()) throw ScriptError("a caption is given with a toolbar alone");
  Require<Toolbar>(target);
  const std::string wanted = code_page::FromUtf8(caption.text);
  const auto button_of = [&](Control& control) -> ToolbarButton& {
    ToolbarButton* button = dynamic_cast<Toolbar&>(control).FindCaption(wanted);
    if (button == nullptr) throw ScriptError("no such button: " + Quoted(caption.text));
    return *button;
  };
  Act(
      target,
      [&](Control& control) { dynamic_cast<Toolbar&>(control).ButtonClick(button_of(control)); },
      [&](Control& control) {
        const ToolbarButton& button = button_of(control);
        return button.Visible && button.Enabled;
      });
}

void Walk::DoubleClick(const Tokens& arguments) {
  const Target target = ReadControl(arguments[0]);
  if (arguments.size() == 1) {
    Act(target, [](Control& control) { control.UserDoubleClick(); });
    return;
  }
  const int row = ReadInt(arguments[1], -1);
  Require<ListBox>(target);
  Act(target, [row](Control& list) { dynamic_cast<ListBox&>(list).DoubleClickRow(row); });
}

void Walk::Select(const Tokens& arguments) {
  const Target target = ReadControl(arguments[0]);
  const Token& row = arguments[1];
  Require<ListBox, ComboBox>(target);
  Act(target, [&row](Control& control) {
    if (auto* list = dynamic_cast<ListBox*>(&control)) SelectRow(*list, row);
    if (auto* combo = dynamic_cast<ComboBox*>(&control)) SelectRow(*combo, row);
  });
}

void Walk::Mark(const Tokens& arguments) {
  const Target target = ReadControl(arguments[0]);
  std::vector<int> rows;
  for (std::size_t i = 1; i < arguments.size(); ++i) rows.push_back(ReadInt(arguments[i]));
  Require<ListBox>(target);
  for (const int row : rows) {
    if (!Act(target, [row](Control& list) { MarkRow(dynamic_cast<ListBox&>(list), row); })) return;
  }
}

void Walk::Type(const Tokens& arguments) {
  const Target target = ReadControl(arguments[0]);
  const std::u32string text = code_page::Utf8ToUnicode(arguments[1].text);
  Require<TextBox, ComboBox>(target);
  Act(target, [&text](Control& control) {
    if (auto* box = dynamic_cast<TextBox*>(&control)) box->Type(text);
    if (auto* combo = dynamic_cast<ComboBox*>(&control)) combo->Type(text);
  });
}

void Walk::Press(const Tokens& arguments) {
  const Target target = ReadTarget(arguments[0]);
  const Key key = ReadKey(arguments[1]);
  if (target.IsForm()) {
    ActOnForm(target.form, [this](Form& form) { program_->forms().Key(form); });
  } else {
    Act(target, [key](Control& control) { control.Press(key); });
  }
}

void Walk::Set(const Tokens& arguments) {
  const Target target = ReadControl(arguments[0]);
  const int value = ReadInt(arguments[1], std::numeric_limits<int>::min());
  Require<HScrollBar>(target);
  Act(target, [value](Control& bar) { dynamic_cast<HScrollBar&>(bar).Move(value); });
}

void Walk::Caret(const Tokens& arguments) {
  const Target target = ReadControl(arguments[0]);
  const int start = ReadInt(arguments[1]);
  const int length = arguments.size() == 3 ? ReadInt(arguments[2]) : 0;
  Require<RichTextBox>(target);
  Act(target, [start, length](Control& control) {
    auto& document = dynamic_cast<RichTextBox&>(control);
    document.SelStart(start);
    if (length > 0) document.SelLength(length);
  });
}

void Walk::Insert(const Tokens& arguments) {
  const Target target = ReadControl(arguments[0]);
  const std::u32string text = code_page::Utf8ToUnicode(arguments[1].text);
  Require<RichTextBox>(target);
  Act(target, [&text](Control& box) { dynamic_cast<RichTextBox&>(box).SelUnicode(text); });
}

void Walk::MoveFolder(const Tokens& arguments) {
  const Target target = ReadControl(arguments[0]);
  const std::string path = code_page::FromUtf8(arguments[1].text);
  Require<DriveListBox, DirListBox, FileListBox>(target);
  Act(target, [&path](Control& control) {
    if (auto* drives = dynamic_cast<DriveListBox*>(&control)) drives->Move(path);
    if (auto* folders = dynamic_cast<DirListBox*>(&control)) folders->Move(path);
    if (auto* files = dynamic_cast<FileListBox*>(&control)) files->Move(path);
  });
}

void Walk::Tick(const Tokens& arguments) {
  const Milliseconds wait = arguments.empty() ? 1 : ReadInt(arguments[0]);
  const Milliseconds end = platform_.Now() + wait;
  while (Running()) {
    const auto due = program_->timers().NextDue();
    if (!due || *due > end) break;
    platform_.SetClock(std::max(*due, platform_.Now()));
    program_->FireTimers();
    NoticeEnd();
  }
  platform_.SetClock(end);
}

void Walk::Activate(const Tokens& arguments) {
  ActOnForm(ReadForm(arguments[0]), [](Form&) {});
}

void Walk::Deactivate(const Tokens& arguments) {
  Form* form = ReachableForm(ReadForm(arguments[0]));
  if (form == nullptr) return Say(kIgnored);
  Dispatch([&] { program_->forms().Deactivate(*form); });
}

void Walk::Close(const Tokens& arguments) {
  ActOnForm(ReadForm(arguments[0]), [this](Form& form) { program_->forms().Close(form); });
}

void Walk::Resize(const Tokens& arguments) {
  const int width = ReadInt(arguments[1]);
  const int height = ReadInt(arguments[2]);
  ActOnForm(ReadForm(arguments[0]),
            [this, width, height](Form& form) { program_->forms().Resize(form, width, height); });
}

void Walk::QueueAnswers(const Tokens& arguments) {
  for (const Token& answer : arguments) platform_.QueueAnswer(answer);
}

void Walk::Seed(const Tokens& arguments) {
  random_.Seed(static_cast<std::uint64_t>(
      ReadNumber(arguments[0], 0, std::numeric_limits<std::int64_t>::max())));
}

void Walk::GiveDraws(const Tokens& arguments) {
  if (arguments[0].text.starts_with('@')) {
    if (arguments.size() > 1) throw ScriptError("too many words");
    const std::filesystem::path name = arguments[0].text.substr(1);
    const auto beside = settings_.script_folder / name;
    return random_.GiveDraws(ReadDrawFile(std::filesystem::exists(beside) ? beside : name));
  }
  std::vector<float> draws;
  for (const Token& number : arguments) draws.push_back(ReadDraw(number.text));
  random_.GiveDraws(std::move(draws));
}

void Walk::Get(const Tokens& arguments) { Say(Ask(arguments[0].text).printed); }

void Walk::ListRows(const Tokens& arguments) {
  const Control* control = LookAt<Control>(arguments[0]);
  if (control == nullptr) return;
  if (const auto* list = dynamic_cast<const ListBox*>(control)) return PrintRows(out_, *list);
  if (const auto* combo = dynamic_cast<const ComboBox*>(control)) return PrintRows(out_, *combo);
  throw ScriptError("not a list: " + arguments[0].text);
}

void Walk::ShowText(const Tokens& arguments) {
  if (const auto* document = LookAt<RichTextBox>(arguments[0])) {
    Say(Quoted(code_page::UnicodeToUtf8(document->PlainText())));
  }
}

void Walk::ShowRuns(const Tokens& arguments) {
  if (const auto* document = LookAt<RichTextBox>(arguments[0])) PrintRuns(out_, *document);
}

void Walk::ListForms(const Tokens&) { PrintForms(out_, program_->forms()); }

void Walk::Expect(const Tokens& arguments) {
  const std::string& expression = arguments[0].text;
  const Token& wanted = arguments[1];
  const Scene::Answer answer = Ask(expression);
  const std::string shown = wanted.quoted ? Quoted(wanted.text) : wanted.text;
  if (shown == answer.printed || (!wanted.quoted && shown == answer.bare)) return;
  Say("expected " + expression + ' ' + shown + " but got " + answer.printed);
  failed_ = true;
}

bool Walk::Act(const Target& target, const Deed& deed, const Check& also) {
  Control* control = Reachable(target, also);
  if (control != nullptr && &control->form() != program_->forms().Active()) {
    BringToFront(control->form());
    if (!Running()) return false;
    control = Reachable(target, also);
  }
  if (control == nullptr) {
    Say(kIgnored);
    return false;
  }
  Dispatch([&] {
    if (TakesFocus(*control)) control->SetFocus();
    deed(*control);
  });
  return Running();
}

bool Walk::ActOnForm(const std::string& name, const FormDeed& deed) {
  Form* form = ReachableForm(name);
  if (form != nullptr && form != program_->forms().Active()) {
    BringToFront(*form);
    if (!Running()) return false;
    form = ReachableForm(name);
  }
  if (form == nullptr) {
    Say(kIgnored);
    return false;
  }
  Dispatch([&] { deed(*form); });
  return Running();
}

Control* Walk::Reachable(const Target& target, const Check& also) const {
  Control* control = scene().FindControl(target);
  if (control == nullptr || !control->CanAct()) return nullptr;
  return also && !also(*control) ? nullptr : control;
}

Form* Walk::ReachableForm(const std::string& name) const {
  Form* form = scene().FindForm(name);
  return form != nullptr && form->Visible ? form : nullptr;
}

void Walk::BringToFront(Form& form) {
  Dispatch([&] { program_->forms().Activate(form); });
}

template <class... Kinds>
void Walk::Require(const Target& target) const {
  const Control* control = scene().FindControl(target);
  const bool fits = control == nullptr || (... || (dynamic_cast<const Kinds*>(control) != nullptr));
  if (!fits) throw ScriptError("a control of another kind: " + PrintedName(*control));
}

template <class Kind>
Kind* Walk::LookAt(const Token& target) {
  Control* control = scene().FindControl(ReadControl(target));
  if (control == nullptr) {
    Say(kIgnored);
    return nullptr;
  }
  auto* seen = dynamic_cast<Kind*>(control);
  if (seen == nullptr) throw ScriptError("a control of another kind: " + target.text);
  return seen;
}

Scene::Answer Walk::Ask(const std::string& expression) const {
  const auto counted = [](std::int64_t count) {
    return Scene::Answer{std::to_string(count), std::to_string(count)};
  };
  if (expression == "Draws") return counted(random_.Draws());
  if (expression == "Reseeds") return counted(random_.Reseeds());
  if (!Running()) throw ScriptError("the program has not been started");
  return scene().Ask(expression).value_or(Scene::Answer{kIgnored, kIgnored});
}

void Walk::Dispatch(const std::function<void()>& handler) {
  program_->Dispatch(handler);
  NoticeEnd();
}

void Walk::NoticeEnd() {
  if (!program_->Ended()) return;
  if (program_->Status() != 0) failed_ = true;
  program_.reset();
  Say("end");
}

void Walk::Say(std::string_view line) { walk::Say(out_, line); }

}  // namespace brindlepage::walk
