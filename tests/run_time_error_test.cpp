#include "toolkit/run_time_error.h"

#include <gtest/gtest.h>

namespace brindlepage {
namespace {

TEST(RunTimeError, EachFaultHasItsNumberAndText) {
  const struct {
    Fault fault;
    int number;
    const char* text;
  } faults[] = {
      {Fault::InvalidCall, 5, "Invalid procedure call or argument"},
      {Fault::Overflow, 6, "Overflow"},
      {Fault::Subscript, 9, "Subscript out of range"},
      {Fault::OutOfStack, 28, "Out of stack space"},
      {Fault::BadFileName, 52, "Bad file name or number"},
      {Fault::FileNotFound, 53, "File not found"},
      {Fault::DeviceIo, 57, "Device I/O error"},
      {Fault::DiskFull, 61, "Disk full"},
      {Fault::PastEndOfFile, 62, "Input past end of file"},
      {Fault::PermissionDenied, 70, "Permission denied"},
      {Fault::PathFileAccess, 75, "Path/File access error"},
      {Fault::PathNotFound, 76, "Path not found"},
      {Fault::InvalidFormat, 321, "Invalid file format"},
      {Fault::ObjectRequired, 424, "Object required"},
      {Fault::InvalidPicture, 481, "Invalid picture"},
  };
  for (const auto& expected : faults) {
    RunTimeError error(expected.fault);
    EXPECT_EQ(error.fault(), expected.fault);
    EXPECT_EQ(error.Number(), expected.number);
    EXPECT_STREQ(error.Text(), expected.text);
    EXPECT_STREQ(FaultText(expected.fault), expected.text);
  }
}

TEST(RunTimeError, IsCaughtAsAnyException) {
  try {
    throw RunTimeError(Fault::DiskFull);
  } catch (const std::exception& error) {
    EXPECT_STREQ(error.what(), "Disk full");
  }
}

}  // namespace
}  // namespace brindlepage
