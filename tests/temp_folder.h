#pragma once

#include <filesystem>
#include <fstream>
#include <optional>
#include <random>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>

#include "tests/file_bytes.h"

namespace brindlepage {

// A folder of a test's own, empty at first, which is the working directory while it lives and is
// removed with all it holds. `Path()` is its full path.
class TempFolder {
 public:
  // In memory where the system has a folder for that, as a rewritten file may wait for the disk.
  TempFolder() : TempFolder(MemoryFolder()) {}

  explicit TempFolder(const std::filesystem::path& parent)
      : before_(std::filesystem::current_path()) {
    std::random_device random;
    do {
      path_ = parent /
              ("brindlepage-test-" + std::to_string(random()) + "-" + std::to_string(random()));
    } while (!std::filesystem::create_directory(path_));
    // As the working directory will tell it, whatever links lead to it.
    path_ = std::filesystem::canonical(path_);
    std::filesystem::current_path(path_);
  }

  ~TempFolder() {
    std::error_code ignored;
    std::filesystem::current_path(before_, ignored);
    std::filesystem::remove_all(path_, ignored);
  }

  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  const std::filesystem::path& Path() const { return path_; }

  // `name` is relative to the folder; the folders on the way to it must be there.
  void Write(const std::filesystem::path& name, std::string_view bytes) const {
    std::ofstream file(path_ / name, std::ios::binary | std::ios::trunc);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (!file) throw std::runtime_error("can't write " + name.string());
  }

  std::string Read(const std::filesystem::path& name) const {
    std::optional<std::string> bytes = FileBytes(path_ / name);
    if (!bytes) throw std::runtime_error("can't read " + name.string());
    return *std::move(bytes);
  }

 private:
  static std::filesystem::path MemoryFolder() {
    std::error_code none;
    std::filesystem::path memory = "/dev/shm";
    bool is_there = std::filesystem::is_directory(memory, none);
    return is_there ? memory : std::filesystem::temp_directory_path();
  }

  std::filesystem::path before_;
  std::filesystem::path path_;
};

}  // namespace brindlepage
