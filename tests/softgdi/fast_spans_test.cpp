// The pieces of the fast path on their own: span fills of every length at
// every alignment, and elliptic regions traced only as far as the rows asked
// about.

#include <cstdint>
#include <optional>
#include <vector>

#include "platform/soft/elliptic_region.h"
#include "platform/soft/spans.h"
#include "softgdi/soft_canvas.h"

namespace softgdi_test {
namespace {

namespace soft = vorlex::gdi::soft;

TEST(SoftGdiFastSpans, FillPixelsWritesExactlyItsSpanAtEveryLengthAndAlignment) {
  constexpr uint32_t kUntouched = 0xA5A5A5;
  constexpr uint32_t kPixel = 0x123456;
  constexpr size_t kMargin = 40;
  for (size_t offset = 0; offset < 16; ++offset) {
    for (size_t count = 0; count <= 100; ++count) {
      std::vector<uint32_t> row(kMargin + count + kMargin, kUntouched);
      soft::FillPixels(row.data() + kMargin + offset - 8, count, kPixel);
      for (size_t i = 0; i < row.size(); ++i) {
        const bool inside = i >= kMargin + offset - 8 && i < kMargin + offset - 8 + count;
        ASSERT_EQ(row[i], inside ? kPixel : kUntouched) << "offset " << offset << ", count " << count << ", at " << i;
      }
    }
  }
}

TEST(SoftGdiFastSpans, SolidSpansAndBoxesClipToTheSurface) {
  std::vector<uint32_t> pixels(5 * 4, 0);
  const soft::Surface surface{5, 4, pixels.data()};
  soft::FillSolidSpan(surface, 1, -3, 2, 7);
  soft::FillSolidSpan(surface, 4, 0, 5, 9);   // below the surface
  soft::FillSolidSpan(surface, -1, 0, 5, 9);  // above it
  soft::FillSolidBox(surface, {3, 2, 1000, 1000}, 8);
  const std::vector<uint32_t> expected{0, 0, 0, 0, 0,  //
                                       7, 7, 0, 0, 0,  //
                                       0, 0, 0, 8, 8,  //
                                       0, 0, 0, 8, 8};
  EXPECT_EQ(pixels, expected);
}

// Every row a window asks about, and the neighbours its outline looks at,
// answer as the region traced whole does.
void ExpectWindowsAgree(int64_t width, int64_t height) {
  const soft::EllipticRegion whole(width, height);
  for (int64_t first = 0; first < height; first += 1 + height / 7) {
    for (int64_t end = first + 1; end <= height; end += 1 + height / 5) {
      const soft::EllipticRegion window(width, height, first, end);
      for (int64_t row = first - 1; row <= end; ++row) {
        ASSERT_EQ(window.First(row), whole.First(row)) << width << " x " << height << " rows " << first << ".." << end;
      }
      for (int64_t row = first; row < end; ++row) {
        if (!whole.First(row)) continue;
        ASSERT_EQ(window.OutlineEnd(row), whole.OutlineEnd(row)) << width << " x " << height << " row " << row;
      }
    }
  }
}

TEST(SoftGdiFastSpans, RegionsTracedForAWindowOfRowsAgreeWithWholeOnes) {
  for (int64_t width = 1; width <= 40; ++width) {
    for (int64_t height = 1; height <= 40; ++height) ExpectWindowsAgree(width, height);
  }
  ExpectWindowsAgree(3, 700);
  ExpectWindowsAgree(700, 3);
  ExpectWindowsAgree(802, 802);
  ExpectWindowsAgree(1000, 301);
  ExpectWindowsAgree(65537, 300);  // computed, not traced
}

}  // namespace
}  // namespace softgdi_test
