#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

namespace brindlepage {

// A teacher who is not the machine's administrator, to whom no file would be closed.
class OrdinaryTeacher {
 public:
  OrdinaryTeacher() {
    if (administrator_) {
      EXPECT_EQ(seteuid(65534), 0);
    }
  }
  ~OrdinaryTeacher() {
    if (administrator_) {
      EXPECT_EQ(seteuid(0), 0);
    }
  }
  OrdinaryTeacher(const OrdinaryTeacher&) = delete;
  OrdinaryTeacher& operator=(const OrdinaryTeacher&) = delete;

 private:
  bool administrator_ = geteuid() == 0;
};

}  // namespace brindlepage
