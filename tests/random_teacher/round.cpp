#include "tests/random_teacher/round.h"

#include <algorithm>
#include <sstream>
#include <stdexcept>

#include "program/screens.h"
#include "walk/print.h"
#include "walk/walk.h"

namespace brindlepage {

Round::Round(std::uint64_t seed, int lines)
    : actions_(seed), lines_left_(lines), script_{"seed " + std::to_string(seed)} {}

int Round::Listener::overflow(int byte) {
  if (byte == '\n') {
    hear_(line_);
    line_.clear();
  } else if (byte != traits_type::eof()) {
    line_ += traits_type::to_char_type(byte);
  }
  return traits_type::not_eof(byte);
}

void Round::Play(Tally& tally) {
  tally_ = &tally;
  bystander_.emplace(std::filesystem::current_path());
  Listener listener([this](const std::string& line) { Hear(line); });
  std::ostream out(&listener);
  std::ostringstream errors;
  std::istream script(this);
  walk::WalkSettings settings;
  settings.draw_limit = 2'000'000;
  const auto start = [this](Platform& platform, RandomSource& random) {
    return StartOn(dynamic_cast<walk::WalkPlatform&>(platform), random);
  };
  walk::Walk walk({start, ScreenNamed}, settings, out, errors);
  if (walk.Play(script) == walk::kScriptWrong) throw std::runtime_error(errors.str());
  CheckLists();
  tally.lists = bystander_->Noted();
  if (!wrong_.empty()) throw std::runtime_error(wrong_);
}

std::unique_ptr<Program> Round::StartOn(walk::WalkPlatform& platform, RandomSource& random) {
  platform_ = std::make_unique<AnsweringPlatform>(
      platform, [this](AnsweringPlatform::Box box) { return AnswerTo(box); },
      [this](std::string_view title, BoxAnswer answer) { bystander_->Answered(title, answer); });
  bystander_->ProgramStarts();
  visits_.ProgramStarts();
  auto program = std::make_unique<BrindlepageProgram>(*platform_, random);
  program_ = program.get();
  running_ = true;
  program->Start();
  return program;
}

// Answers something that fits. In the script it stands in front of the line that opens the box.
std::string Round::AnswerTo(AnsweringPlatform::Box box) {
  using Box = AnsweringPlatform::Box;
  static const std::map<Box, std::vector<std::string>> kAnswers = {
      {Box::Message, {"ok"}},
      {Box::YesNo, {"yes", "no"}},
      {Box::YesNoCancel, {"yes", "no", "cancel"}},
      {Box::Input, {"cancel", "", "", ""}},
      {Box::Print, {"all", "selection", "cancel"}},
      {Box::PrintWhole, {"all", "cancel"}},
      {Box::Open, {"cancel", ""}},
  };
  const auto& answers = kAnswers.at(box);
  std::string answer = answers[static_cast<std::size_t>(actions_.Below(int(answers.size())))];
  if (answer.empty()) answer = walk::Quoted(actions_.Text());
  script_.insert(script_.end() - 1, "answer " + answer);
  return answer;
}

void Round::Hear(const std::string& line) {
  if (line.starts_with("error ")) error_ = line;
  if (line == "not responding") NoteEnd(line);
  if (line != "end") return;
  NoteEnd(error_.empty() ? "end" : error_);
  error_.clear();
}

// The form stands in the last deed: "click Title.Command1(3)".
void Round::NoteEnd(const std::string& end) {
  running_ = false;
  const std::string& deed = script_.back();
  const auto blank = deed.find(' ');
  const auto name_end = blank == std::string::npos ? 0 : deed.find_first_of(". ", blank + 1);
  const std::string form =
      blank == std::string::npos ? deed : deed.substr(blank + 1, name_end - blank - 1);
  // A teacher who has lost the list file stands before the menu for ever.
  if (end.starts_with("error 53")) lines_left_ = std::min(lines_left_, 100);
  ++tally_->ends[(deed.starts_with("tick") ? "tick" : form) + ": " + end];
  CheckLists();
}

// The round ends with the first fault; what follows from it says nothing.
void Round::CheckLists() {
  if (!wrong_.empty()) return;
  wrong_ = bystander_->Compare();
  if (!wrong_.empty()) lines_left_ = 0;
}

int Round::underflow() {
  const std::string line = NextLine();
  if (line.empty()) return traits_type::eof();
  given_ = line + "\n";
  setg(given_.data(), given_.data(), given_.data() + given_.size());
  return traits_type::to_int_type(given_.front());
}

std::string Round::NextLine() {
  if (script_.size() == 1 && given_.empty()) return script_.front();
  if (lines_left_-- <= 0) return "";
  if (running_) {
    bystander_->Look(*program_);
    CheckLists();
    if (lines_left_ <= 0) return "";
    visits_.Look(program_->forms(), *tally_);
  }
  ++tally_->deeds;
  script_.push_back(running_ ? actions_.Next(*program_) : "start");
  return script_.back();
}

}  // namespace brindlepage
