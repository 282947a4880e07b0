// Which gradient previews the Block page repaints when, and that their pixels
// are modGradient's.

#include "block_page_fixture.h"
#include "surface/mod_gradient.h"

namespace vorlex::testing {
namespace {

// What modGradient paints into a box of the previews' size.
gdi::Pixels Expected(int16_t style, int16_t granularity, OLE_COLOR color, OLE_COLOR colorEnd) {
  PictureBox box(FakeView::kPreviewWidth, FakeView::kPreviewHeight);
  modGradient::ReadDisplayDepth(box);
  modGradient::PaintObjectGradient(box, style, granularity, color, colorEnd);
  gdi::Pixels pixels;
  gdi::ReadPixels(box.hDC(), pixels);
  return pixels;
}

const char* const kPreviews[] = {"pctColor(0)",    "pctColor(1)",    "pctColor(2)", "pctColorEnd(0)",
                                 "pctColorEnd(1)", "pctColorEnd(2)", "pctResult"};

TEST_F(BlockPageEdit, ABlockWithoutGradientClearsAllSevenPreviews) {
  for (const char* box : kPreviews) {
    EXPECT_EQ(view.clears[box], 1) << box;
    EXPECT_EQ(view.paints[box], 0) << box;
  }
}

TEST_F(BlockPageEdit, ChoosingAGradientStyleRepaintsAllSevenPreviews) {
  Choose("cbxGradientStyle", 1);
  for (const char* box : kPreviews) EXPECT_EQ(view.paints[box], 1) << box;
  Choose("cbxGradientGranularity", 2);
  for (const char* box : kPreviews) EXPECT_EQ(view.paints[box], 2) << box;
  Choose("cbxGradientStyle", 0);
  for (const char* box : kPreviews) EXPECT_EQ(view.clears[box], 2) << box;
}

TEST_F(BlockPageEdit, ShowingABlockWithAGradientPaintsItsPreviews) {
  object.Let("BlockGradientStyle", {Block(1)}, Variant(int32_t{3}));
  editors::BlockPage fresh(view, dialogs);
  view.paints.clear();
  fresh.SetSelectedControls({&object});
  fresh.SelectionChanged();
  for (const char* box : kPreviews) EXPECT_EQ(view.paints[box], 1) << box;
}

TEST_F(BlockPageEdit, ABarRepaintsItsChannelAndTheResultOnly) {
  Choose("cbxGradientStyle", 1);
  view.paints.clear();
  Scroll("hslColorEnd(1)", 200);
  EXPECT_EQ(view.paints["pctColorEnd(1)"], 1);
  EXPECT_EQ(view.paints["pctResult"], 1);
  EXPECT_EQ(view.paints["pctColor(1)"], 0);
  EXPECT_EQ(view.paints["pctColorEnd(0)"], 0);
}

TEST_F(BlockPageEdit, ChannelPreviewRunsFromThePureChannelToBlack) {
  Choose("cbxGradientStyle", 1);
  Scroll("hslColor(1)", 200);
  EXPECT_EQ(view.PreviewPixels("pctColor(1)").argb, Expected(1, 0, 200u << 8, 0).argb);
  Scroll("hslColor(2)", 90);
  EXPECT_EQ(view.PreviewPixels("pctColor(2)").argb, Expected(1, 0, 90u << 16, 0).argb);
}

TEST_F(BlockPageEdit, ResultPreviewShowsTheBlocksStartAndEndColours) {
  Choose("cbxGradientStyle", 9);
  Choose("cbxGradientGranularity", 1);
  Scroll("hslColor(0)", 255);
  Scroll("hslColorEnd(2)", 255);
  ASSERT_EQ(Record().GradientColor, 0xFF00FFu) << "red added to the new block's blue";
  ASSERT_EQ(Record().GradientColorEnd, 0xFF0000u);
  EXPECT_EQ(view.PreviewPixels("pctResult").argb, Expected(9, 1, 0xFF00FF, 0xFF0000).argb);
  const gdi::Pixels plain = Expected(9, 1, 0x000000, 0x000000);
  EXPECT_NE(view.PreviewPixels("pctResult").argb, plain.argb) << "the check can fail";
}

}  // namespace
}  // namespace vorlex::testing
