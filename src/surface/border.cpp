// DrawBorder: the seven frame looks.

#include <array>

#include "surface/gdi_object.h"
#include "surface/offscreen_dc.h"
#include "vorlex/Enums.h"
#include "vorlex/Numeric.h"

namespace vorlex {

namespace {

struct BorderLook {
  OLE_COLOR first;
  OLE_COLOR second;
  bool widePens;  // pens of BorderWidth; otherwise one pixel
};

// Indexed by BorderStyle 1..7.
constexpr std::array<BorderLook, 7> kBorderLooks = {{
    {kBlack, kBlack, true},          // vxFlat
    {kWhite, kDarkGrey, true},       // vxRaised
    {kDarkGrey, kWhite, true},       // vxInset
    {kBlack, kWhite, false},         // vxEtched
    {kDarkGrey, kWhite, false},      // vxEtchedLight
    {kLightGrey, kBlack, false},     // vxBump
    {kLightGrey, kDarkGrey, false},  // vxBumpLight
}};

struct Frame {
  int32_t l, t, r, b;
};

void Line(gdi::HDC dc, int32_t x, int32_t y) { gdi::LineTo(dc, x, y); }

// Top and left edges with the first pen.
void DrawLightEdges(gdi::HDC dc, const Frame& f) {
  gdi::MoveToEx(dc, f.r, f.t, nullptr);
  Line(dc, f.l, f.t);
  Line(dc, f.l, f.b);
}
// Bottom and right edges, continuing from wherever the position is.
void DrawDarkEdges(gdi::HDC dc, const Frame& f) {
  Line(dc, f.r, f.b);
  Line(dc, f.r, f.t);
}
// A closed frame one pixel inside on the right and bottom.
void DrawInnerFrame(gdi::HDC dc, const Frame& f) {
  gdi::MoveToEx(dc, CheckedSub(f.r, 1), f.t, nullptr);
  Line(dc, f.l, f.t);
  Line(dc, f.l, CheckedSub(f.b, 1));
  Line(dc, CheckedSub(f.r, 1), CheckedSub(f.b, 1));
  Line(dc, CheckedSub(f.r, 1), f.t);
}
// The outer right and bottom line and the inner top and left line.
void DrawOuterAndInnerLines(gdi::HDC dc, const Frame& f) {
  gdi::MoveToEx(dc, f.r, f.t, nullptr);
  Line(dc, f.r, f.b);
  Line(dc, CheckedSub(f.l, 1), f.b);
  gdi::MoveToEx(dc, CheckedAdd(f.l, 1), CheckedSub(f.b, 2), nullptr);
  Line(dc, CheckedAdd(f.l, 1), CheckedAdd(f.t, 1));
  Line(dc, CheckedSub(f.r, 1), CheckedAdd(f.t, 1));
}

// Creates, selects, uses, deselects and deletes one pen; a pen that cannot be
// created or selected skips its lines.
template <class Draw>
void WithPen(gdi::HDC dc, int width, OLE_COLOR color, Draw draw) {
  GdiObject<gdi::HPEN> pen(gdi::CreatePen(gdi::PS_SOLID, width, color));
  if (!pen) return;
  Selection selected(dc, pen.get());
  if (selected) draw();
}

}  // namespace

void OffScreenDC::DrawBorder() {
  if (BorderStyle < vxFlat || BorderStyle > vxBumpLight) return;
  const BorderLook& look = kBorderLooks[static_cast<size_t>(BorderStyle - 1)];
  const int16_t w = BorderWidth;
  // Thicker pens are centred on the frame line so that they stay inside.
  const Frame f{CheckedAdd(Left, static_cast<int32_t>(w / 2)), CheckedAdd(Top, static_cast<int32_t>(w / 2)),
                CheckedSub(CheckedSub(Right, static_cast<int32_t>(CheckedSub(w, int16_t{1}) / 2)), 1),
                CheckedSub(CheckedSub(Bottom, static_cast<int32_t>(CheckedSub(w, int16_t{1}) / 2)), 1)};
  const int penWidth = look.widePens ? w : 1;
  if (look.widePens) {
    WithPen(memoryDC_, penWidth, look.first, [&] { DrawLightEdges(memoryDC_, f); });
    WithPen(memoryDC_, penWidth, look.second, [&] { DrawDarkEdges(memoryDC_, f); });
  } else {
    WithPen(memoryDC_, penWidth, look.first, [&] { DrawInnerFrame(memoryDC_, f); });
    WithPen(memoryDC_, penWidth, look.second, [&] { DrawOuterAndInnerLines(memoryDC_, f); });
  }
}

}  // namespace vorlex
