#pragma once

#include <map>
#include <ostream>
#include <string>
#include <vector>

#include "core/program.h"

namespace brindlepage {

// What a teacher has met with, counted.
struct Tally {
  long deeds = 0;
  // Ends of the program, as `QuizForm: error 6 "Overflow"`. The form is that on which the teacher
  // acted last.
  std::map<std::string, long> ends;
  // How often each form came up. The filled grid, which never does, counts when it is loaded.
  std::map<std::string, long> visits;
  // What was done to the lists, and how often.
  std::map<std::string, long> lists;

  void Add(const Tally& other);
  // A line for each form: how often it came up, and the program's ends there. Then the rest.
  void Print(std::ostream& out) const;
  // The forms that never came up.
  std::vector<std::string> Missed() const;
};

// The last deeds, a line each.
void PrintLast(std::ostream& out, const std::vector<std::string>& deeds);

// Counts visits between deeds.
class VisitCounter {
 public:
  void ProgramStarts() { there_.clear(); }
  void Look(const Forms& forms, Tally& tally);

 private:
  std::vector<std::string> there_;
};

}  // namespace brindlepage
