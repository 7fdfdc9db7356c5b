// Any bytes, opened as a rich text file.
#include <cstddef>
#include <cstdint>

#include "fuzz/rtf_check.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  brindlepage::CheckRtf({reinterpret_cast<const char*>(data), size});
  return 0;
}
