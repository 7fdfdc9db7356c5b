// The fuzzer's corpus without the fuzzer: a small file for each feature, and all that was found.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "expect_fault.h"
#include "fuzz/rtf_check.h"
#include "tests/file_bytes.h"

namespace brindlepage {
namespace {

struct File {
  std::string name;
  std::string bytes;
  bool IsRefused() const { return name.starts_with("refused_"); }
};

std::vector<File> Corpus() {
  std::vector<File> files;
  for (const auto& entry : std::filesystem::directory_iterator(RTF_CORPUS)) {
    files.push_back({entry.path().filename().string(), FileBytes(entry.path()).value()});
  }
  return files;
}

TEST(RtfCorpus, IsThere) {
  const auto files = Corpus();
  EXPECT_GT(files.size(), 40U);
  EXPECT_TRUE(std::any_of(files.begin(), files.end(), [](const File& f) { return f.IsRefused(); }));
}

TEST(RtfCorpus, FilesReadOrAreRefusedAsTheirNamesTell) {
  for (const File& file : Corpus()) {
    SCOPED_TRACE(file.name);
    RichText document("Courier New", 9.75);
    if (file.IsRefused()) {
      EXPECT_FAULT(321, ReadRtf(file.bytes, document));
    } else {
      EXPECT_NO_THROW(ReadRtf(file.bytes, document));
    }
  }
}

TEST(RtfCorpus, WholeCutOrWithAByteLeftOutEveryFileKeepsThePromises) {
  for (const File& file : Corpus()) {
    SCOPED_TRACE(file.name);
    CheckRtf(file.bytes);
    for (std::size_t at = 0; at < file.bytes.size(); ++at) {
      CheckRtf(file.bytes.substr(0, at));
      CheckRtf(std::string(file.bytes).erase(at, 1));
    }
  }
}

}  // namespace
}  // namespace brindlepage
