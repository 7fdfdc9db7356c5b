#include "toolkit/files.h"

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <new>
#include <system_error>

#include "toolkit/code_page.h"
#include "toolkit/run_time_error.h"

namespace brindlepage::files {
namespace {

namespace fs = std::filesystem;

enum class Purpose { Read, Write };

bool IsSeparator(char byte) { return byte == '\\' || byte == '/'; }

bool IsRefused(char byte) {
  return static_cast<unsigned char>(byte) < 0x20 ||
         std::string_view(":*?\"<>|").find(byte) != std::string_view::npos;
}

std::string Utf8(const fs::path& path) {
  std::u8string utf8 = path.u8string();
  return std::string(utf8.begin(), utf8.end());
}

fs::path FromUtf8(const std::string& utf8) {
  return fs::path(std::u8string(utf8.begin(), utf8.end()));
}

fs::path CurrentFolder() {
  std::error_code error;
  fs::path folder = fs::current_path(error);
  if (error) throw RunTimeError(Fault::PathNotFound);
  return folder;
}

std::string ShownName(const fs::path& folder) {
  std::string name = code_page::FromUtf8(Utf8(folder));
  while (!name.empty() && IsSeparator(name.back())) name.pop_back();
  return name;
}

bool BeginsWithFolder(std::string_view name, std::string_view folder) {
  return name.starts_with(folder) &&
         (name.size() == folder.size() || IsSeparator(name[folder.size()]));
}

// Without the drive, whose colon no other part may have.
std::string_view BehindDrive(std::string_view name) {
  auto is_letter = [](char byte) {
    char small = code_page::LowerCase(byte);
    return small >= 'a' && small <= 'z';
  };
  bool has_drive = name.size() >= 2 && name[1] == ':' && is_letter(name[0]);
  return has_drive ? name.substr(2) : name;
}

void CheckParts(std::string_view parts) {
  if (std::any_of(parts.begin(), parts.end(), IsRefused)) throw RunTimeError(Fault::BadFileName);
}

fs::path WithOwnSeparators(std::string_view name) {
  std::string utf8 = code_page::ToUtf8(name);
  std::replace(utf8.begin(), utf8.end(), '\\', '/');
  return FromUtf8(utf8);
}

bool IsFolder(const fs::path& path) {
  std::error_code error;
  return fs::is_directory(path, error);
}

bool Exists(const fs::path& path) {
  std::error_code error;
  return fs::exists(path, error);
}

// The name in that folder that differs in case alone, the first of several; or empty.
fs::path NameOfOtherCase(const fs::path& folder, const fs::path& name) {
  const std::string wanted = code_page::LowerCase(code_page::FromUtf8(Utf8(name)));
  fs::path found;
  std::error_code error;
  for (fs::directory_iterator entry(folder, error); !error && entry != fs::directory_iterator();
       entry.increment(error)) {
    const fs::path real_name = entry->path().filename();
    if (code_page::LowerCase(code_page::FromUtf8(Utf8(real_name))) != wanted) continue;
    if (found.empty() || real_name < found) found = real_name;
  }
  return found;
}

// Case tells no files apart on the teacher's desktop. Where it does, a name that isn't there as
// it is written stands for the one that differs in case alone.
fs::path WhateverItsCase(const fs::path& path) {
  if (Exists(path)) return path;
  fs::path real;
  for (const fs::path& part : path) {
    fs::path next = real / part;
    if (!Exists(next)) {
      const fs::path other = NameOfOtherCase(real.empty() ? fs::path(".") : real, part);
      if (!other.empty()) next = real / other;
    }
    real = std::move(next);
  }
  return real;
}

bool FolderAboveIsMissing(const fs::path& path) {
  fs::path above = path.parent_path();
  return !above.empty() && !IsFolder(above);
}

Fault FaultOf(int error, const fs::path& path, Purpose purpose) {
  if (IsFolder(path)) return Fault::PathFileAccess;
  switch (error) {
    case ENOENT:
      return FolderAboveIsMissing(path) ? Fault::PathNotFound : Fault::FileNotFound;
    case ENOTDIR:
      return Fault::PathNotFound;
    case EISDIR:
    case EEXIST:
      return Fault::PathFileAccess;
    case EACCES:
    case EPERM:
    case EROFS:
      return purpose == Purpose::Write && Exists(path) ? Fault::PathFileAccess
                                                       : Fault::PermissionDenied;
    case ENOSPC:
    case EFBIG:
#ifdef EDQUOT
    case EDQUOT:
#endif
      return Fault::DiskFull;
    case ENAMETOOLONG:
    case EINVAL:
      return Fault::BadFileName;
    default:
      return Fault::DeviceIo;
  }
}

// The size is a first guess only: what isn't a plain file tells none.
std::string ReadToEnd(std::ifstream& file, const fs::path& path) {
  std::error_code no_size;
  auto size = fs::file_size(path, no_size);
  std::string content;
  std::size_t filled = 0;
  // One byte more than expected, so that the first read already meets the end.
  std::size_t room = no_size ? 0 : static_cast<std::size_t>(size) + 1;
  while (file) {
    content.resize(std::max<std::size_t>(room, 4096));
    file.read(content.data() + filled, static_cast<std::streamsize>(content.size() - filled));
    filled += static_cast<std::size_t>(file.gcount());
    room = content.size() * 2;
  }
  content.resize(filled);
  return content;
}

bool Matches(std::string_view name, std::string_view pattern) {
  std::size_t at = 0;
  std::size_t star = std::string_view::npos;
  std::size_t after_star = 0;
  std::size_t p = 0;
  while (at < name.size()) {
    if (p < pattern.size() && pattern[p] == '*') {
      star = p++;
      after_star = at;
    } else if (p < pattern.size() && (pattern[p] == '?' || pattern[p] == name[at])) {
      ++p;
      ++at;
    } else if (star != std::string_view::npos) {
      p = star + 1;
      at = ++after_star;
    } else {
      return false;
    }
  }
  return pattern.find_first_not_of('*', p) == std::string_view::npos;
}

std::vector<std::string> SplitPatterns(std::string_view patterns) {
  std::vector<std::string> result;
  while (!patterns.empty()) {
    std::size_t end = std::min(patterns.find(';'), patterns.size());
    std::string_view pattern = patterns.substr(0, end);
    patterns.remove_prefix(std::min(end + 1, patterns.size()));
    std::size_t first = pattern.find_first_not_of(' ');
    if (first == std::string_view::npos) continue;
    pattern = pattern.substr(first, pattern.find_last_not_of(' ') - first + 1);
    result.push_back(pattern == "*.*" ? "*" : code_page::LowerCase(pattern));
  }
  return result;
}

bool IsShown(const std::string& name, const fs::path& real_name) {
  return !name.starts_with('.') && code_page::ToUtf8(name) == Utf8(real_name) &&
         std::none_of(name.begin(), name.end(),
                      [](char byte) { return IsRefused(byte) || byte == '\\'; });
}

template <class Wanted>
std::vector<std::string> NamesIn(std::string_view folder, Wanted wanted) {
  fs::path path = NativePath(folder);
  if (!IsFolder(path)) throw RunTimeError(Fault::PathNotFound);
  std::error_code error;
  fs::directory_iterator entry(path, error);
  if (error) throw RunTimeError(Fault::PermissionDenied);

  std::vector<std::string> names;
  for (; entry != fs::directory_iterator(); entry.increment(error)) {
    fs::path real_name = entry->path().filename();
    std::string name = code_page::FromUtf8(Utf8(real_name));
    if (IsShown(name, real_name) && wanted(*entry, name)) names.push_back(std::move(name));
  }
  if (error) throw RunTimeError(Fault::DeviceIo);
  std::sort(names.begin(), names.end(), [](const std::string& left, const std::string& right) {
    return code_page::Compare(left, right) < 0;
  });
  return names;
}

}  // namespace

std::string WorkingDirectory() { return ShownName(CurrentFolder()); }

fs::path NativePath(std::string_view name) {
  if (name.find_first_not_of(' ') == std::string_view::npos) {
    throw RunTimeError(Fault::BadFileName);
  }
  fs::path current = CurrentFolder();
  std::string shown = ShownName(current);
  if (BeginsWithFolder(name, shown)) {
    std::string_view rest = name.substr(shown.size());
    CheckParts(rest);
    while (!rest.empty() && IsSeparator(rest.front())) rest.remove_prefix(1);
    return rest.empty() ? current : WhateverItsCase(current / WithOwnSeparators(rest));
  }
  CheckParts(BehindDrive(name));
  return WhateverItsCase(WithOwnSeparators(name));
}

LineReader::LineReader(std::string_view name) : content_(ReadBytes(name)) {}

std::string_view LineReader::ReadLine() {
  if (AtEnd()) throw RunTimeError(Fault::PastEndOfFile);
  // Each of the two is looked for again only when the reader is past it, so that a file with
  // one kind of line end alone is still read in one pass.
  auto look_ahead = [this](std::size_t& next, char end) {
    bool is_behind = next < position_ || position_ == 0;
    if (is_behind) next = std::min(content_.find(end, position_), content_.size());
  };
  look_ahead(next_return_, '\r');
  look_ahead(next_feed_, '\n');
  std::size_t end = std::min(next_return_, next_feed_);
  std::string_view line(content_.data() + position_, end - position_);
  bool both = end == next_return_ && next_feed_ == end + 1;
  position_ = end + (both ? 2 : 1);
  return line;
}

std::vector<std::string> ReadAllLines(std::string_view name) {
  LineReader reader(name);
  std::vector<std::string> lines;
  while (!reader.AtEnd()) lines.emplace_back(reader.ReadLine());
  return lines;
}

void WriteAllLines(std::string_view name, const std::vector<std::string>& lines) {
  std::size_t size = 0;
  for (const std::string& line : lines) size += line.size() + 2;
  std::string content;
  content.reserve(size);
  for (const std::string& line : lines) content.append(line).append("\r\n", 2);
  WriteBytes(name, content);
}

std::string ReadBytes(std::string_view name) {
  fs::path path = NativePath(name);
  errno = 0;
  std::ifstream file(path, std::ios::binary);
  if (!file) throw RunTimeError(FaultOf(errno, path, Purpose::Read));
  try {
    std::string content = ReadToEnd(file, path);
    if (file.bad()) throw RunTimeError(FaultOf(errno, path, Purpose::Read));
    return content;
  } catch (const std::bad_alloc&) {
    throw RunTimeError(Fault::DeviceIo);
  } catch (const std::length_error&) {
    throw RunTimeError(Fault::DeviceIo);
  }
}

void WriteBytes(std::string_view name, std::string_view bytes) {
  fs::path path = NativePath(name);
  errno = 0;
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  if (!file) throw RunTimeError(FaultOf(errno, path, Purpose::Write));
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  if (!file) throw RunTimeError(FaultOf(errno, path, Purpose::Write));
}

bool FolderExists(std::string_view name) { return IsFolder(NativePath(name)); }

void MakeFolder(std::string_view name) {
  fs::path path = NativePath(name);
  if (Exists(path)) throw RunTimeError(Fault::PathFileAccess);
  std::error_code error;
  if (fs::create_directory(path, error)) return;
  Fault fault = FaultOf(error.value(), path, Purpose::Write);
  throw RunTimeError(fault == Fault::FileNotFound ? Fault::PathNotFound : fault);
}

std::vector<std::string> SubFolders(std::string_view folder) {
  return NamesIn(folder, [](const fs::directory_entry& entry, const std::string&) {
    std::error_code error;
    return entry.is_directory(error);
  });
}

std::vector<std::string> FilesIn(std::string_view folder, std::string_view patterns) {
  std::vector<std::string> wanted = SplitPatterns(patterns);
  return NamesIn(folder, [&wanted](const fs::directory_entry& entry, const std::string& name) {
    std::error_code error;
    if (!entry.is_regular_file(error)) return false;
    std::string small = code_page::LowerCase(name);
    return std::any_of(wanted.begin(), wanted.end(),
                       [&small](const std::string& pattern) { return Matches(small, pattern); });
  });
}

}  // namespace brindlepage::files
