#pragma once

#include <string>
#include <string_view>
#include <vector>

// The settings file "brindlepage.dat": plain lines, read by position. Two reserved lines, the word
// processor, the folder of the list file; further lines are kept as they are.
namespace brindlepage::settings_file {

inline constexpr std::string_view kFileName = "brindlepage.dat";
inline constexpr std::string_view kNoWordProcessor = "*****";
inline constexpr std::string_view kFreshInstallation = "+++++";
inline constexpr std::string_view kProgramFolder = "listpath";

// Lines by their number less one.
inline constexpr std::size_t kWordProcessorLine = 2;
inline constexpr std::size_t kListFolderLine = 3;

}  // namespace brindlepage::settings_file
