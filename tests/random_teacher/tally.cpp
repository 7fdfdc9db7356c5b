#include "tests/random_teacher/tally.h"

#include <algorithm>
#include <iomanip>

#include "program/screens.h"

namespace brindlepage {

void Tally::Add(const Tally& other) {
  deeds += other.deeds;
  for (const auto& [end, count] : other.ends) ends[end] += count;
  for (const auto& [form, count] : other.visits) visits[form] += count;
  for (const auto& [deed, count] : other.lists) lists[deed] += count;
}

void Tally::Print(std::ostream& out) const {
  std::map<std::string, std::string> ends_of;
  for (const auto& [form, count] : visits) ends_of[form];
  for (const auto& [end, count] : ends) {
    const auto colon = end.find(": ");
    std::string& line = ends_of[end.substr(0, colon)];
    line += (line.empty() ? "" : ", ") + std::to_string(count) + " x " + end.substr(colon + 2);
  }
  out << std::setw(8) << "visits"
      << "  " << std::setw(20) << std::left << "form"
      << "the program's ends there\n";
  for (const auto& [form, line] : ends_of) {
    const auto visit = visits.find(form);
    out << std::setw(8) << std::right << (visit == visits.end() ? 0 : visit->second) << "  "
        << std::setw(20) << std::left << form << line << '\n';
  }
  out << "lists:";
  for (const auto& [deed, count] : lists) out << ' ' << count << ' ' << deed << ',';
  out << "\n" << deeds << " deeds\n";
}

std::vector<std::string> Tally::Missed() const {
  std::vector<std::string> missed;
  for (const std::string_view name : ScreenNames()) {
    if (visits.count(std::string(name)) == 0) missed.emplace_back(name);
  }
  return missed;
}

void PrintLast(std::ostream& out, const std::vector<std::string>& deeds) {
  constexpr std::size_t kLast = 20;
  out << "The last deeds:\n";
  for (std::size_t i = deeds.size() - std::min(deeds.size(), kLast); i < deeds.size(); ++i) {
    out << "  " << deeds[i] << '\n';
  }
}

void VisitCounter::Look(const Forms& forms, Tally& tally) {
  std::vector<std::string> now;
  for (const auto& form : forms.Loaded()) {
    if (form->Visible || form->Name() == "CrossWordFill") now.push_back(form->Name());
  }
  for (const std::string& name : now) {
    if (std::find(there_.begin(), there_.end(), name) == there_.end()) ++tally.visits[name];
  }
  there_ = std::move(now);
}

}  // namespace brindlepage
