#pragma once

#include <stdexcept>

namespace brindlepage {

// A fault that nothing handles ends the program with the run-time's own message.
enum class Fault {
  InvalidCall = 5,
  Overflow = 6,
  Subscript = 9,
  OutOfStack = 28,
  BadFileName = 52,
  FileNotFound = 53,
  DeviceIo = 57,
  DiskFull = 61,
  PastEndOfFile = 62,
  PermissionDenied = 70,
  PathFileAccess = 75,
  PathNotFound = 76,
  InvalidFormat = 321,
  ObjectRequired = 424,
  InvalidPicture = 481,
};

class RunTimeError : public std::runtime_error {
 public:
  explicit RunTimeError(Fault fault);

  Fault fault() const { return fault_; }
  int Number() const { return static_cast<int>(fault_); }
  const char* Text() const { return what(); }

 private:
  Fault fault_;
};

// What the run-time says of a fault: "Overflow", "File not found", ...
const char* FaultText(Fault fault);

}  // namespace brindlepage
