#pragma once

#include <filesystem>
#include <string>

namespace brindlepage {

// Makes `folder`, which is empty, a copy of the program folder with what a teacher may have added:
// a picture, and a folder "class" with a picture and a short list file in it. `round` decides how
// the list file begins: as it comes with the program, as another one, or without any list.
void FillFreshFolder(const std::filesystem::path& program_folder,
                     const std::filesystem::path& folder, long round);

// "..., which no screen writes, was written to", or "" where all such files in `folder` are as they
// are in the program folder.
std::string SpoiltFile(const std::filesystem::path& program_folder,
                       const std::filesystem::path& folder);

}  // namespace brindlepage
