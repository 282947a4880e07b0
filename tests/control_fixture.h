#pragma once
// A newly placed control in a headless container, its records cleared.

#include <gtest/gtest.h>

#include "error_matchers.h"
#include "vorlex/HeadlessSite.h"
#include "vorlex/Vorlex.h"

class ControlTest : public ::testing::Test {
 protected:
  ControlTest() {
    control.InitProperties();
    site.ClearRecords();
  }
  void AddBlocks(int n) {
    for (int i = 0; i < n; ++i) control.AddBlock();
  }
  static vorlex::Variant Key(const char* key) { return vorlex::Variant(key); }
  static vorlex::Variant Number(int n) { return vorlex::Variant(static_cast<int16_t>(n)); }

  vorlex::HeadlessSite site;
  vorlex::Vorlex control{site};
};
