#pragma once
// Asserts that a statement raises the automation error with the given number.

#include <gtest/gtest.h>

#include "vorlex/AutomationError.h"

#define EXPECT_AUTOMATION_ERROR(statement, number)                                               \
  do {                                                                                           \
    try {                                                                                        \
      statement;                                                                                 \
      ADD_FAILURE() << #statement " raised nothing, expected error " << (number);                \
    } catch (const ::vorlex::AutomationError& e) {                                               \
      EXPECT_EQ(e.Number(), (number)) << #statement " raised " << e.Number() << " " << e.what(); \
    }                                                                                            \
  } while (0)
