// The surface's Font property: which font its memory context holds.

#include <memory>
#include <string>

#include "error_matchers.h"
#include "surface_fixture.h"
#include "vorlex/Font.h"

using namespace vorlex;
using namespace vorlex::testing;

namespace {

gdi::HGDIOBJ HandleOf(const FontPtr& font) { return reinterpret_cast<gdi::HGDIOBJ>(font->hFont()); }

class SurfaceFontTest : public SurfaceTest {
 protected:
  // The font the memory context holds, found by what a probe selection
  // displaces; the context is left as it was.
  gdi::HGDIOBJ SelectedFont() {
    const gdi::LOGFONTA lf{-11, 0, 0, 0, gdi::FW_NORMAL, 0, 0, 0, 0, 0, 0, 0, 0, "Arial"};
    gdi::HFONT probe = gdi::CreateFontIndirectA(&lf);
    const gdi::HGDIOBJ held = gdi::SelectObject(Surface().MemoryDC(), probe);
    gdi::SelectObject(Surface().MemoryDC(), held);
    gdi::DeleteObject(probe);
    return held;
  }

  gdi::SIZE ExtentInSurface(const std::string& text) {
    gdi::SIZE size{0, 0};
    EXPECT_NE(gdi::GetTextExtentPoint32A(Surface().MemoryDC(), text.c_str(), static_cast<int>(text.size()), &size), 0);
    return size;
  }

  FontPtr small_ = std::make_shared<vorlex::Font>("MS Sans Serif", 8.25);
  FontPtr large_ = std::make_shared<vorlex::Font>("DejaVu Sans", 20);
  FontPtr bold_ = [] {
    auto font = std::make_shared<vorlex::Font>("DejaVu Sans", 14);
    font->SetBold(true);
    return font;
  }();
};

TEST_F(SurfaceFontTest, FontIsNothingUntilSet) {
  OffScreenDC& s = Init(8, 8);
  EXPECT_EQ(s.Font(), nullptr);
}

TEST_F(SurfaceFontTest, FirstFontIsKeptAndSelectedIntoTheMemoryContext) {
  OffScreenDC& s = Init(8, 8);
  s.SetFont(large_);
  EXPECT_EQ(s.Font(), large_);
  EXPECT_EQ(SelectedFont(), HandleOf(large_));
}

TEST_F(SurfaceFontTest, TextMeasuredInTheContextUsesTheSurfacesFont) {
  OffScreenDC& s = Init(8, 8);
  s.SetFont(small_);
  const gdi::SIZE small = ExtentInSurface("Vorlex");
  s.SetFont(large_);
  const gdi::SIZE large = ExtentInSurface("Vorlex");
  EXPECT_GT(large.cx, small.cx);
  EXPECT_GT(large.cy, small.cy);
}

TEST_F(SurfaceFontTest, LaterFontReplacesTheSelection) {
  OffScreenDC& s = Init(8, 8);
  s.SetFont(small_);
  s.SetFont(large_);
  EXPECT_EQ(s.Font(), large_);
  EXPECT_EQ(SelectedFont(), HandleOf(large_));
}

TEST_F(SurfaceFontTest, NothingAfterAFontSelectsTheContextsFirstFontAgain) {
  OffScreenDC& s = Init(8, 8);
  const gdi::HGDIOBJ first = SelectedFont();
  ASSERT_NE(first, nullptr);
  s.SetFont(small_);
  s.SetFont(large_);
  s.SetFont(nullptr);
  EXPECT_EQ(s.Font(), nullptr);
  EXPECT_EQ(SelectedFont(), first);
}

TEST_F(SurfaceFontTest, AFontAfterNothingCanBeUndoneByNothingAgain) {
  OffScreenDC& s = Init(8, 8);
  const gdi::HGDIOBJ first = SelectedFont();
  s.SetFont(small_);
  s.SetFont(nullptr);
  s.SetFont(bold_);
  EXPECT_EQ(SelectedFont(), HandleOf(bold_));
  s.SetFont(nullptr);
  EXPECT_EQ(SelectedFont(), first);
}

TEST_F(SurfaceFontTest, NothingAsTheFirstFontRaisesObjectNotSet) {
  OffScreenDC& s = Init(8, 8);
  const gdi::HGDIOBJ first = SelectedFont();
  EXPECT_AUTOMATION_ERROR(s.SetFont(nullptr), kErrObjectNotSet);
  EXPECT_EQ(s.Font(), nullptr);
  EXPECT_EQ(SelectedFont(), first);
}

TEST_F(SurfaceFontTest, DisplayTextLeavesTheSurfacesFontSelected) {
  OffScreenDC& s = Init(40, 20);
  s.SetFont(large_);
  SetRect(0, 0, 40, 20);
  s.Text = "Hi";
  s.TextFont = small_;
  s.DisplayText();
  EXPECT_EQ(SelectedFont(), HandleOf(large_));
}

// The surface selects fonts but never deletes them: after teardown the
// handle still works and only the context and bitmap are gone.
TEST(SurfaceFontLifetime, TeardownLeavesTheFontsHandleAlive) {
  auto font = std::make_shared<vorlex::Font>("DejaVu Sans", 12);
  const gdi::HGDIOBJ handle = HandleOf(font);
  gdi::HDC screen = gdi::GetDC(nullptr);
  const size_t before = gdi::LiveObjectCount();
  {
    OffScreenDC surface;
    int32_t w = 8;
    int32_t h = 8;
    surface.Initialize(screen, w, h);
    surface.SetFont(font);
  }
  EXPECT_EQ(gdi::LiveObjectCount(), before);
  gdi::HDC other = gdi::CreateCompatibleDC(screen);
  const gdi::HGDIOBJ displaced = gdi::SelectObject(other, handle);
  EXPECT_NE(displaced, nullptr);
  gdi::SelectObject(other, displaced);
  gdi::DeleteDC(other);
  gdi::ReleaseDC(nullptr, screen);
}

}  // namespace
