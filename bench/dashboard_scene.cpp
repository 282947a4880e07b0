// The dashboard scene, block by block as the reference form holds it.

#include "dashboard_scene.h"

#include <array>
#include <memory>
#include <string>

#include "vorlex/Font.h"

namespace vorlex::bench {

namespace {

constexpr std::array<int16_t, 10> kTops = {90, 80, 70, 60, 100, 90, 80, 70, 60, 100};
constexpr std::array<int16_t, 3> kBottoms = {5, 10, 0};
constexpr std::array<OLE_COLOR, 8> kColors = {0x00FF00, 0xFF0000, 0x00FFFF, 0xFF00FF,
                                              0xFFFF00, 0x808000, 0x0000FF, 0x008080};
constexpr std::array<const char*, 4> kTexts = {"!h%!", "B", "!v%!", ""};

void AddDashboardBlock(Vorlex& c, int i) {
  c.AddBlock();
  const Variant b(i);
  c.put_BlockKey("b" + std::to_string(i), b);
  c.put_BlockBarLeft(static_cast<int16_t>(3 * (i - 1)), b);
  c.put_BlockBarRight(static_cast<int16_t>(3 * i), b);
  c.put_BlockBarTop(kTops[static_cast<size_t>(i - 1) % kTops.size()], b);
  c.put_BlockBarBottom(kBottoms[static_cast<size_t>(i - 1) % kBottoms.size()], b);
  c.put_BlockBorderStyle(i % 8, b);
  c.put_BlockBorderWidth(static_cast<int16_t>(1 + i % 3), b);
  c.put_BlockBrushStyle(i % 3 == 0 ? 1 + i % 6 : 0, b);
  c.put_BlockBrushColor(0x404040, b);
  c.put_BlockColor(kColors[static_cast<size_t>(i) % kColors.size()], b);
  c.put_BlockGradientStyle(i % 13, b);
  c.put_BlockGradientColor(kColors[static_cast<size_t>(i + 3) % kColors.size()], b);
  c.put_BlockGradientColorEnd(0x202020, b);
  std::string text = kTexts[static_cast<size_t>(i - 1) % kTexts.size()];
  if (text == "B") text += std::to_string(i);
  c.put_BlockText(text, b);
  c.put_BlockTextColor(i % 2 == 0 ? 0x000000 : 0xFFFFFF, b);
  auto font = std::make_shared<Font>();
  font->SetBold(i % 4 == 0);
  c.put_BlockTextFont(font, b);
  if (i % 4 == 0) c.put_BlockRivetsStyle(1, b);
  if (i % 5 == 0) c.put_BlockTextFont3D(2, b);
  if (i % 6 == 0) c.put_BlockTextAngle(90, b);
  if (i % 7 == 0) c.put_BlockShapeStyle(1, b);
}

}  // namespace

void BuildDashboard(Vorlex& c) {
  c.put_Redraw(VARIANT_FALSE);
  for (int i = 1; i <= 32; ++i) AddDashboardBlock(c, i);
  c.put_BackColor(0xC0C0C0);
  c.put_BorderStyle(6);
  c.put_BorderWidth(2);
  c.put_Caption("Vorlex dashboard");
  c.put_CaptionFont3D(1);
  c.put_GradientStyle(9);
  c.put_GradientColor(0xE0E0E0);
  c.put_GradientColorEnd(0x808080);
  c.put_RivetsStyle(3);
  c.put_Redraw(VARIANT_TRUE);
}

}  // namespace vorlex::bench
