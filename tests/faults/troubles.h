#pragma once

#include <string>
#include <vector>

#include "tests/temp_folder.h"

namespace brindlepage {

// What can be wrong with a file, and the run-time's number for it.
struct Trouble {
  const char* name;
  int number;
  // In the folder, to that file.
  void (*make)(const TempFolder& folder, const std::filesystem::path& file);
  // Whether it keeps nobody away but an ordinary teacher.
  bool keeps_away = false;
};

inline void PrintTo(const Trouble& trouble, std::ostream* out) { *out << trouble.name; }

// A file that can't be read; one that is there and can't be written; one that can't be made anew;
// a folder in which none can.
std::vector<Trouble> ReadingTroubles();
std::vector<Trouble> WritingTroubles();
std::vector<Trouble> MakingTroubles();
std::vector<Trouble> FolderTroubles();

// From now on the folder and all in it is open to everyone, so that an OrdinaryTeacher is kept from
// nothing but what a trouble closes.
void LetEveryoneIn(const TempFolder& folder);

}  // namespace brindlepage
