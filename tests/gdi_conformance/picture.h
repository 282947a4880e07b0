#pragma once
// Expected pixels written as letters, and the comparison that prints the
// expected and the actual map of a region when they differ.

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/gdi.h"

namespace vorlex::gdi_conformance {

// One colour of a picture: its letter, the COLORREF a test draws with and the
// pixel (0x00RRGGBB) that colour reads back as from a 32-bpp bitmap.
struct Ink {
  char letter;
  gdi::COLORREF colour;
  uint32_t pixel;
};

struct Point {
  int x;
  int y;
};

// Pixels listed row by row: "y:x0..x1,x2 y:x3" names (x0..x1, y), (x2, y) and
// (x3, y); ranges are inclusive and numbers may be negative.
std::vector<Point> SpanPoints(std::string_view spans, int dx = 0, int dy = 0);

// One letter per pixel over a rectangle of the bitmap.
class Picture {
 public:
  // Every pixel of area (half-open) the same letter.
  Picture(const gdi::RECT& area, char letter);
  // Rows drawn literally, the first letter of the first row at (left, top).
  Picture(int left, int top, const std::vector<std::string>& rows);

  // Sets the letter of the pixels named by spans, moved by (dx, dy).
  Picture& Paint(std::string_view spans, char letter, int dx = 0, int dy = 0);
  Picture& Paint(const gdi::RECT& rect, char letter);
  // Copies a picture in, the letter '?' of source meaning "leave as is".
  Picture& Paint(const Picture& source);

  const gdi::RECT& area() const { return area_; }
  char At(int x, int y) const;
  bool Contains(int x, int y) const;

 private:
  void Set(int x, int y, char letter);
  gdi::RECT area_;
  std::vector<std::string> rows_;
};

// Success when every pixel of the picture's area holds its letter's ink.
// Otherwise the message shows both maps of the area, a letter per pixel, '?'
// for a colour no ink has.
::testing::AssertionResult Shows(const gdi::Pixels& pixels, const Picture& expected, const std::vector<Ink>& inks);

// The map of a region as the inks read it, one row a line.
std::string Map(const gdi::Pixels& pixels, const gdi::RECT& area, const std::vector<Ink>& inks);

}  // namespace vorlex::gdi_conformance
