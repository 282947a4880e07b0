// BitBlt with SRCCOPY: clipping to both bitmaps, zero sizes, overlapping copies.

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "canvas.h"
#include "picture.h"
#include "platform/gdi.h"

namespace vorlex::gdi_conformance {
namespace {

// A source whose every pixel tells where it is: (x, y) holds
// RGB(16x + 8, 16y + 8, 0x5A), read back as 0x00RRGGBB.
constexpr uint32_t Tag(int x, int y) {
  return (static_cast<uint32_t>(16 * x + 8) << 16) | (static_cast<uint32_t>(16 * y + 8) << 8) | 0x5Au;
}

void PaintTags(const Canvas& canvas) {
  for (int y = 0; y < canvas.height(); ++y) {
    for (int x = 0; x < canvas.width(); ++x) {
      canvas.Fill({x, y, x + 1, y + 1},
                  gdi::RGB(static_cast<uint8_t>(16 * x + 8), static_cast<uint8_t>(16 * y + 8), 0x5A));
    }
  }
}

// Where each pixel came from: "xy" for a tag, ".." for paper, "??" otherwise.
std::string Origins(const gdi::Pixels& pixels) {
  std::ostringstream out;
  for (int y = 0; y < pixels.height; ++y) {
    for (int x = 0; x < pixels.width; ++x) {
      const uint32_t p = pixels.At(x, y);
      const int sx = static_cast<int>((p >> 16) & 0xFF) / 16;
      const int sy = static_cast<int>((p >> 8) & 0xFF) / 16;
      if (p == kPaper.pixel) {
        out << " ..";
      } else if (p == Tag(sx, sy)) {
        out << ' ' << sx << sy;
      } else {
        out << " ??";
      }
    }
    out << '\n';
  }
  return out.str();
}

// The destination holds paper except in `written`, whose top-left pixel comes
// from source pixel `from` and the rest follows.
::testing::AssertionResult HoldsCopy(const gdi::Pixels& pixels, const gdi::RECT& written, Point from) {
  if (pixels.argb.empty()) return ::testing::AssertionFailure() << "no pixels";
  for (int y = 0; y < pixels.height; ++y) {
    for (int x = 0; x < pixels.width; ++x) {
      const bool in = x >= written.left && x < written.right && y >= written.top && y < written.bottom;
      const uint32_t want = in ? Tag(from.x + x - written.left, from.y + y - written.top) : kPaper.pixel;
      if (pixels.At(x, y) != want) {
        return ::testing::AssertionFailure() << "(" << x << "," << y << ") differs; where pixels came from:\n"
                                             << Origins(pixels);
      }
    }
  }
  return ::testing::AssertionSuccess();
}

struct Blit {
  const char* name;
  int x, y, width, height, src_x, src_y;
  gdi::RECT written;  // in the destination
  Point from;         // the source pixel copied to written's top-left
};

// Source 8x6, destination 9x7.
const std::vector<Blit> kBlits = {
    {"Inside", 2, 2, 4, 3, 1, 1, {2, 2, 6, 5}, {1, 1}},
    {"DestinationAtNegativeOffset", -2, -1, 5, 4, 0, 0, {0, 0, 3, 3}, {2, 1}},
    {"DestinationPastTheEdges", 6, 5, 5, 5, 0, 0, {6, 5, 9, 7}, {0, 0}},
    {"SourcePastTheEdges", 1, 1, 6, 6, 5, 4, {1, 1, 4, 3}, {5, 4}},
    {"SourceAtNegativeOffset", 1, 1, 4, 4, -2, -3, {3, 4, 5, 5}, {0, 0}},
    {"SourceAtNegativeX", 3, 0, 4, 3, -1, 0, {4, 0, 7, 3}, {0, 0}},
    {"BothPartlyOutside", -1, 4, 6, 5, 4, -2, {0, 6, 3, 7}, {5, 0}},
    {"ZeroWidth", 0, 0, 0, 5, 0, 0, {0, 0, 0, 0}, {0, 0}},
    {"ZeroHeight", 0, 0, 5, 0, 0, 0, {0, 0, 0, 0}, {0, 0}},
};

class BitBltCopy : public ::testing::TestWithParam<Blit> {};

TEST_P(BitBltCopy, WritesOnlyWhatBothBitmapsHold) {
  const Blit& b = GetParam();
  Canvas source(8, 6);
  PaintTags(source);
  Canvas dest(9, 7);
  dest.Fill(kPaper.colour);
  gdi::BitBlt(dest.dc(), b.x, b.y, b.width, b.height, source.dc(), b.src_x, b.src_y, gdi::SRCCOPY);
  EXPECT_TRUE(HoldsCopy(dest.Read(), b.written, b.from));
  // The source is left as it was.
  EXPECT_TRUE(HoldsCopy(source.Read(), source.bounds(), {0, 0}));
}

INSTANTIATE_TEST_SUITE_P(Cases, BitBltCopy, ::testing::ValuesIn(kBlits),
                         [](const ::testing::TestParamInfo<Blit>& test) { return std::string(test.param.name); });

TEST(BitBlt, CopyInsideBothBitmapsSucceeds) {
  Canvas source(8, 6);
  PaintTags(source);
  Canvas dest(8, 6);
  EXPECT_NE(gdi::BitBlt(dest.dc(), 0, 0, 8, 6, source.dc(), 0, 0, gdi::SRCCOPY), 0);
  EXPECT_EQ(dest.Read().argb, source.Read().argb);
}

// Within one bitmap the copy reads the source as it was before the call,
// whichever way the rectangles overlap.
TEST(BitBlt, OverlappingCopyDownRightReadsTheOriginal) {
  Canvas canvas(8, 6);
  PaintTags(canvas);
  gdi::BitBlt(canvas.dc(), 2, 1, 5, 4, canvas.dc(), 0, 0, gdi::SRCCOPY);
  const gdi::Pixels pixels = canvas.Read();
  ASSERT_EQ(pixels.width, 8);
  for (int y = 0; y < 6; ++y) {
    for (int x = 0; x < 8; ++x) {
      const bool moved = x >= 2 && x < 7 && y >= 1 && y < 5;
      EXPECT_EQ(pixels.At(x, y), moved ? Tag(x - 2, y - 1) : Tag(x, y)) << "(" << x << "," << y << ")\n"
                                                                        << Origins(pixels);
    }
  }
}

TEST(BitBlt, OverlappingCopyUpLeftReadsTheOriginal) {
  Canvas canvas(8, 6);
  PaintTags(canvas);
  gdi::BitBlt(canvas.dc(), 0, 0, 5, 4, canvas.dc(), 2, 1, gdi::SRCCOPY);
  const gdi::Pixels pixels = canvas.Read();
  ASSERT_EQ(pixels.width, 8);
  for (int y = 0; y < 6; ++y) {
    for (int x = 0; x < 8; ++x) {
      const bool moved = x < 5 && y < 4;
      EXPECT_EQ(pixels.At(x, y), moved ? Tag(x + 2, y + 1) : Tag(x, y)) << "(" << x << "," << y << ")\n"
                                                                        << Origins(pixels);
    }
  }
}

}  // namespace
}  // namespace vorlex::gdi_conformance
