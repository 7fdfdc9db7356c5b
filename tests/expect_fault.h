#pragma once

#include <gtest/gtest.h>

#include "toolkit/run_time_error.h"

// Expects the statement to throw the RunTimeError of that number.
#define EXPECT_FAULT(number, ...)                                                  \
  do {                                                                             \
    try {                                                                          \
      __VA_ARGS__;                                                                 \
      ADD_FAILURE() << #__VA_ARGS__ << " passed; error " << (number) << " is due"; \
    } catch (const brindlepage::RunTimeError& fault_of_statement) {                \
      EXPECT_EQ(fault_of_statement.Number(), (number)) << #__VA_ARGS__;            \
    }                                                                              \
  } while (false)
