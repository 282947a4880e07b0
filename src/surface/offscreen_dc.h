#pragma once
// The control's drawing surface: a memory context holding a bitmap of the
// control's size, painted element by element and copied to the window in one
// transfer. Callers set the rectangle and attributes, then call a primitive.

#include <cstdint>
#include <string>

#include "platform/gdi.h"
#include "surface/alignment.h"
#include "surface/display_depth.h"
#include "surface/drawing_target.h"
#include "vorlex/Color.h"
#include "vorlex/Font.h"

namespace vorlex {

class OffScreenDC {
 public:
  OffScreenDC() = default;
  ~OffScreenDC();  // puts the context's first objects back and frees the surface
  OffScreenDC(const OffScreenDC&) = delete;
  OffScreenDC& operator=(const OffScreenDC&) = delete;

  // The current rectangle, right and bottom exclusive.
  int32_t Left = 0;
  int32_t Top = 0;
  int32_t Right = 0;
  int32_t Bottom = 0;
  // Attributes the primitives read; every one starts at 0.
  int32_t Font3D = 0;
  int16_t TextOffset = 0;
  std::string Text;
  int32_t TextAlignment = 0;
  OLE_COLOR TextColor = 0;
  int32_t BorderStyle = 0;
  int16_t BorderWidth = 0;
  OLE_COLOR BackgroundColor = 0;
  int32_t BrushStyle = 0;
  OLE_COLOR BrushColor = 0;
  int32_t GradientStyle = 0;
  int32_t GradientGranularity = 0;
  OLE_COLOR GradientColor = 0;
  OLE_COLOR GradientColorEnd = 0;
  int16_t RivetsStyle = 0;
  int16_t TextAngle = 0;
  int32_t TextAutoAngle = 0;
  FontPtr TextFont;
  int16_t PictureOffset = 0;
  int32_t PictureAlignment = 0;
  int32_t PictureTile = 0;
  // The screen's vertical twips per pixel, for the height of rotated fonts.
  float ScreenTwipsPerPixelY = 15.0f;

  // Inert: setting stores nothing, reading yields 0.
  OLE_COLOR BackColor() const { return 0; }
  void SetBackColor(const OLE_COLOR&) {}

  // The surface's own font, selected into the memory context; Nothing until
  // first set. Setting Nothing after a font selects the context's first font
  // again. The handles stay their font objects' own.
  const FontPtr& Font() const { return font_; }
  void SetFont(const FontPtr& font);

  // Creates the memory context and a bitmap compatible with the control's
  // context. Meant to be called once per surface.
  void Initialize(gdi::HDC& CtlHdc, int32_t& CtlWidth, int32_t& CtlHeight);
  // Copies a part of the surface to the same place on the control. A width or
  // height of -1 means the surface's own, written back to the argument.
  void BlastToScreen(int32_t& left, int32_t& top, int32_t& width, int32_t& height);
  void BlastToScreen();

  void FillRectangle();
  void FillEllipse();
  void DrawBorder();
  void DrawFocusRect();
  // Draws Text in the rectangle: aligned, or rotated and centred, with an
  // optional 3-D copy behind it, clipped one pixel inside.
  void DisplayText();
  // Copies a picture held at pixel scale by a drawable into the rectangle.
  void DrawBitmap(const DrawingTarget& oPicture);

  gdi::HDC MemoryDC() const { return memoryDC_; }
  const DisplayDepth& Depth() const { return depth_; }
  // Colour depth as ReadDisplayDepth would find it on a display of that depth.
  void UseDisplayDepth(int32_t depth) { depth_ = DisplayDepth::FromDepth(depth); }

 private:
  gdi::RECT Rect() const { return {Left, Top, Right, Bottom}; }
  // The rectangle less 7 pixels on each side when there are rivets; the inset
  // deliberately ignores BorderWidth.
  Area ClearOfRivets() const;
  void ReadDisplayDepth() { depth_ = DisplayDepth::Read(memoryDC_); }
  void PaintGradient();
  void DrawRivets();
  void DrawRivet(int32_t x, int32_t y);

  gdi::HDC controlDC_ = nullptr;
  gdi::HDC memoryDC_ = nullptr;
  gdi::HBITMAP surfaceBitmap_ = nullptr;
  gdi::HGDIOBJ previousBitmap_ = nullptr;
  gdi::HGDIOBJ previousFont_ = nullptr;
  FontPtr font_;
  int32_t width_ = 0;
  int32_t height_ = 0;
  DisplayDepth depth_;
};

}  // namespace vorlex
