// Where ExtTextOut's default alignment puts the baseline and each glyph, and
// the corners of underline and strike-out: coordinates computed in floating
// point and truncated toward zero, as GDI does.

#include "platform/soft/text/run_layout.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

namespace {

using vorlex::gdi::POINT;
using vorlex::gdi::soft::text::DirectionOf;
using vorlex::gdi::soft::text::LayOutRun;
using vorlex::gdi::soft::text::LineCorners;
using vorlex::gdi::soft::text::RunLayout;

bool Same(POINT a, POINT b) { return a.x == b.x && a.y == b.y; }

TEST(SoftRunLayout, UnrotatedRunStartsOnTheBaselineUnderTheTopLeftCorner) {
  const RunLayout run = LayOutRun({5, 5}, 11, DirectionOf(0), {7, 7}, false);
  EXPECT_TRUE(Same(run.origin, {5, 16}));
  EXPECT_TRUE(Same(run.extent, {14, 0}));
  EXPECT_TRUE(run.steps.empty()) << "each glyph moves the pen by its own advance";
}

TEST(SoftRunLayout, QuarterTurnRunsUpFromXPlusAscent) {
  const RunLayout run = LayOutRun({5, 40}, 10, DirectionOf(900), {7, 8}, true);
  EXPECT_TRUE(Same(run.origin, {15, 40}));
  ASSERT_EQ(run.steps.size(), 2u);
  EXPECT_TRUE(Same(run.steps[0], {0, -7}));
  EXPECT_TRUE(Same(run.steps[1], {0, -8}));
  EXPECT_TRUE(Same(run.extent, {0, -15}));
}

TEST(SoftRunLayout, GlyphsSitAtTheTruncatedAdvanceSoFar) {
  const RunLayout run = LayOutRun({5, 40}, 10, DirectionOf(450), {7, 7}, true);
  EXPECT_TRUE(Same(run.origin, {12, 47})) << "5 + 7.07 and 40 + 7.07";
  ASSERT_EQ(run.steps.size(), 2u);
  EXPECT_TRUE(Same(run.steps[0], {4, -4})) << "4.95 truncated";
  EXPECT_TRUE(Same(run.steps[1], {5, -5})) << "9.90 truncated, less the first step";
}

TEST(SoftRunLayout, TruncationGoesTowardZero) {
  const RunLayout run = LayOutRun({-3, -20}, 10, DirectionOf(1800), {6}, true);
  EXPECT_TRUE(Same(run.origin, {-2, -30})) << "-3 + 10 * sin(180) is just above -3";
  EXPECT_TRUE(Same(run.extent, {-6, 0}));
}

TEST(SoftRunLayout, LinesHangFromTheirPositionAlongTheRun) {
  const RunLayout flat = LayOutRun({5, 5}, 11, DirectionOf(0), {14}, false);
  const std::array<POINT, 4> underline = LineCorners(flat, DirectionOf(0), 0, 1);
  EXPECT_TRUE(Same(underline[0], {5, 16}) && Same(underline[1], {19, 16}) && Same(underline[2], {19, 17}) &&
              Same(underline[3], {5, 17}));
  const std::array<POINT, 4> strikeout = LineCorners(flat, DirectionOf(0), 5, 1);
  EXPECT_TRUE(Same(strikeout[0], {5, 11}) && Same(strikeout[2], {19, 12}));

  const RunLayout up = LayOutRun({5, 40}, 10, DirectionOf(900), {15}, true);
  const std::array<POINT, 4> standing = LineCorners(up, DirectionOf(900), 0, 1);
  EXPECT_TRUE(Same(standing[0], {15, 40}) && Same(standing[1], {15, 25}) && Same(standing[2], {16, 25}) &&
              Same(standing[3], {16, 40}));
}

}  // namespace
