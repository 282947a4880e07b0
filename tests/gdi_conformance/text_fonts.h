#pragma once
// What the text tests share: logical fonts as the tests make them, and where
// a colour lies on the bitmap.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "platform/gdi.h"

namespace vorlex::gdi_conformance {

// NONANTIALIASED_QUALITY: one-bit glyphs, so that pixels can be compared.
inline constexpr uint8_t kNonAntialiased = 3;

// The bitmap font of 8-point text at 96 pixels per inch: an 11-pixel em in a
// 13-pixel cell (ascent 11, descent 2).
inline constexpr const char* kSansSerif = "MS Sans Serif";
// An outline font both backends find through fontconfig: at an 11-pixel em
// its cell is 13 pixels (ascent 10, descent 3).
inline constexpr const char* kOutline = "DejaVu Sans";

inline gdi::LOGFONTA LogFont(const char* face, int32_t height, int32_t escapement = 0) {
  gdi::LOGFONTA font{};
  font.lfHeight = height;
  font.lfEscapement = escapement;
  font.lfWeight = gdi::FW_NORMAL;
  font.lfQuality = kNonAntialiased;
  std::strncpy(font.lfFaceName, face, sizeof font.lfFaceName - 1);
  return font;
}

inline gdi::HFONT MakeFont(const gdi::LOGFONTA& font) { return gdi::CreateFontIndirectA(&font); }

// The smallest rectangle (half-open) holding every pixel of a colour; empty
// ({0, 0, 0, 0}) when there is none.
inline gdi::RECT BoundsOf(const gdi::Pixels& pixels, uint32_t pixel) {
  gdi::RECT bounds{pixels.width, pixels.height, 0, 0};
  for (int y = 0; y < pixels.height; ++y) {
    for (int x = 0; x < pixels.width; ++x) {
      if (pixels.At(x, y) != pixel) continue;
      bounds = {std::min(bounds.left, x), std::min(bounds.top, y), std::max(bounds.right, x + 1),
                std::max(bounds.bottom, y + 1)};
    }
  }
  return bounds.right == 0 ? gdi::RECT{0, 0, 0, 0} : bounds;
}

inline ::testing::AssertionResult SameRect(const gdi::RECT& actual, const gdi::RECT& expected) {
  if (actual.left == expected.left && actual.top == expected.top && actual.right == expected.right &&
      actual.bottom == expected.bottom) {
    return ::testing::AssertionSuccess();
  }
  return ::testing::AssertionFailure() << "{" << actual.left << ", " << actual.top << ", " << actual.right << ", "
                                       << actual.bottom << "} instead of {" << expected.left << ", " << expected.top
                                       << ", " << expected.right << ", " << expected.bottom << "}";
}

}  // namespace vorlex::gdi_conformance
