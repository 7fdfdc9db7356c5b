#pragma once

#include <memory>
#include <optional>
#include <streambuf>
#include <string>
#include <vector>

#include "tests/random_teacher/answering_platform.h"
#include "tests/random_teacher/bystander.h"
#include "tests/random_teacher/random_actions.h"
#include "tests/random_teacher/tally.h"

namespace brindlepage {

// A teacher without a plan at a walk: makes the script up while it is read.
class Round : private std::streambuf {
 public:
  // `lines`: how many deeds, starts of the program after its ends among them.
  Round(std::uint64_t seed, int lines);

  // Plays it in the working directory, which is a program folder. What makes no sense to a walk
  // throws std::runtime_error, and so does a list file that is not as the deeds should have left
  // it.
  void Play(Tally& tally);

  // What was played, for brindlepage-walk to play again.
  const std::vector<std::string>& script() const { return script_; }

 private:
  // Hands over each line that the walk prints.
  class Listener : public std::streambuf {
   public:
    explicit Listener(std::function<void(const std::string&)> hear) : hear_(std::move(hear)) {}

   private:
    int overflow(int byte) override;
    std::function<void(const std::string&)> hear_;
    std::string line_;
  };

  void CheckLists();
  std::unique_ptr<Program> StartOn(walk::WalkPlatform& platform, RandomSource& random);
  std::string AnswerTo(AnsweringPlatform::Box box);
  void Hear(const std::string& line);
  int underflow() override;
  std::string NextLine();
  void NoteEnd(const std::string& end);

  RandomActions actions_;
  int lines_left_;
  std::vector<std::string> script_;
  std::string given_;  // the line that the walk reads
  std::string error_;  // what it printed of a fault before the end
  bool running_ = false;
  Program* program_ = nullptr;
  std::unique_ptr<AnsweringPlatform> platform_;
  Tally* tally_ = nullptr;
  VisitCounter visits_;
  std::optional<Bystander> bystander_;
  std::string wrong_;  // with the lists
};

}  // namespace brindlepage
