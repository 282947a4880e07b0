#pragma once
// Expected pixels written as a picture: one character a pixel, one string a row.

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "platform/gdi.h"

namespace vorlex::testing {

// Compares the region starting at (x0, y0) with the map; '.' means "not checked".
inline ::testing::AssertionResult MatchesMap(const gdi::Pixels& p, int x0, int y0, const std::vector<std::string>& rows,
                                             const std::map<char, uint32_t>& colours) {
  std::string actual;
  bool ok = true;
  for (size_t y = 0; y < rows.size(); ++y) {
    for (size_t x = 0; x < rows[y].size(); ++x) {
      const uint32_t v = p.At(x0 + static_cast<int>(x), y0 + static_cast<int>(y));
      char seen = '?';
      for (const auto& [c, colour] : colours) {
        if (colour == v) seen = c;
      }
      actual += seen;
      if (rows[y][x] != '.' && colours.at(rows[y][x]) != v) ok = false;
    }
    actual += '\n';
  }
  if (ok) return ::testing::AssertionSuccess();
  std::string expected;
  for (const auto& r : rows) expected += r + '\n';
  return ::testing::AssertionFailure() << "expected\n" << expected << "actual\n" << actual;
}

}  // namespace vorlex::testing
