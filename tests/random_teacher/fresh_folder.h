#pragma once

#include <filesystem>
#include <string>

namespace brindlepage {

// Makes `folder`, which is empty, a copy of the program folder with what a teacher may have added:
// a picture, and a folder "class" with a picture and a short list file in it.
void FillFreshFolder(const std::filesystem::path& program_folder,
                     const std::filesystem::path& folder);

// The name of a file in `folder` that is not as it is in the program folder though no screen
// writes it, or "".
std::string SpoiltFile(const std::filesystem::path& program_folder,
                       const std::filesystem::path& folder);

}  // namespace brindlepage
