#include "toolkit/run_time_error.h"

namespace brindlepage {

RunTimeError::RunTimeError(Fault fault) : std::runtime_error(FaultText(fault)), fault_(fault) {}

const char* FaultText(Fault fault) {
  switch (fault) {
    case Fault::InvalidCall:
      return "Invalid procedure call or argument";
    case Fault::Overflow:
      return "Overflow";
    case Fault::Subscript:
      return "Subscript out of range";
    case Fault::OutOfStack:
      return "Out of stack space";
    case Fault::BadFileName:
      return "Bad file name or number";
    case Fault::FileNotFound:
      return "File not found";
    case Fault::DeviceIo:
      return "Device I/O error";
    case Fault::DiskFull:
      return "Disk full";
    case Fault::PastEndOfFile:
      return "Input past end of file";
    case Fault::PermissionDenied:
      return "Permission denied";
    case Fault::PathFileAccess:
      return "Path/File access error";
    case Fault::PathNotFound:
      return "Path not found";
    case Fault::InvalidFormat:
      return "Invalid file format";
    case Fault::ObjectRequired:
      return "Object required";
    case Fault::InvalidPicture:
      return "Invalid picture";
  }
  return "";
}

}  // namespace brindlepage
