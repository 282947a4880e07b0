#pragma once
// The GDI seam: exactly the subset of GDI and user32 the control draws with,
// under the Win32 names, argument orders and semantics. On Windows these
// forward to gdi32/user32; elsewhere softgdi implements them on 32-bit pixel
// buffers. Nothing here includes <windows.h>.

#include <cstddef>
#include <cstdint>
#include <vector>

namespace vorlex::gdi {

using BOOL = int;
using DWORD = uint32_t;
using COLORREF = uint32_t;  // 0x00BBGGRR
using HGDIOBJ = void*;

// Distinct handle types that all convert to HGDIOBJ, as Win32 declares them.
struct HDC__ {
  int unused;
};
struct HBITMAP__ {
  int unused;
};
struct HBRUSH__ {
  int unused;
};
struct HPEN__ {
  int unused;
};
struct HFONT__ {
  int unused;
};
struct HWND__ {
  int unused;
};
using HDC = HDC__*;
using HBITMAP = HBITMAP__*;
using HBRUSH = HBRUSH__*;
using HPEN = HPEN__*;
using HFONT = HFONT__*;
using HWND = HWND__*;

struct POINT {
  int32_t x;
  int32_t y;
};
struct RECT {
  int32_t left;
  int32_t top;
  int32_t right;
  int32_t bottom;
};

struct SIZE {
  int32_t cx;
  int32_t cy;
};

// A logical font as CreateFontIndirectA takes it.
struct LOGFONTA {
  int32_t lfHeight;
  int32_t lfWidth;
  int32_t lfEscapement;  // tenths of a degree, counter-clockwise
  int32_t lfOrientation;
  int32_t lfWeight;
  uint8_t lfItalic;
  uint8_t lfUnderline;
  uint8_t lfStrikeOut;
  uint8_t lfCharSet;
  uint8_t lfOutPrecision;
  uint8_t lfClipPrecision;
  uint8_t lfQuality;
  uint8_t lfPitchAndFamily;
  char lfFaceName[32];
};

constexpr COLORREF RGB(uint8_t r, uint8_t g, uint8_t b) {
  return static_cast<COLORREF>(r) | (static_cast<COLORREF>(g) << 8) | (static_cast<COLORREF>(b) << 16);
}

// Hatch styles.
inline constexpr int HS_HORIZONTAL = 0;
inline constexpr int HS_VERTICAL = 1;
inline constexpr int HS_FDIAGONAL = 2;
inline constexpr int HS_BDIAGONAL = 3;
inline constexpr int HS_CROSS = 4;
inline constexpr int HS_DIAGCROSS = 5;
// Pen styles.
inline constexpr int PS_SOLID = 0;
inline constexpr int PS_NULL = 5;
// Background modes.
inline constexpr int TRANSPARENT = 1;
inline constexpr int OPAQUE = 2;
// Raster operation of BitBlt.
inline constexpr DWORD SRCCOPY = 0x00CC0020;
// ExtTextOut options.
inline constexpr unsigned ETO_CLIPPED = 4;
// Font constants.
inline constexpr int32_t FW_NORMAL = 400;
inline constexpr int32_t FW_BOLD = 700;
inline constexpr uint8_t PROOF_QUALITY = 2;
inline constexpr uint8_t VARIABLE_PITCH = 2;
// GetDeviceCaps indexes.
inline constexpr int BITSPIXEL = 12;
inline constexpr int LOGPIXELSY = 90;
inline constexpr int PLANES = 14;

// Device contexts and bitmaps.
HDC GetDC(HWND hwnd);  // only the screen (hwnd null) is supported
int ReleaseDC(HWND hwnd, HDC dc);
HDC CreateCompatibleDC(HDC dc);
HBITMAP CreateCompatibleBitmap(HDC dc, int width, int height);
HGDIOBJ SelectObject(HDC dc, HGDIOBJ object);
BOOL DeleteObject(HGDIOBJ object);
BOOL DeleteDC(HDC dc);
BOOL BitBlt(HDC dest, int x, int y, int width, int height, HDC src, int srcX, int srcY, DWORD rop);
int GetDeviceCaps(HDC dc, int index);

// Brushes, pens and attributes.
HBRUSH CreateSolidBrush(COLORREF color);
HBRUSH CreateHatchBrush(int style, COLORREF color);
HPEN CreatePen(int style, int width, COLORREF color);
int SetBkMode(HDC dc, int mode);
COLORREF SetBkColor(HDC dc, COLORREF color);

// Text. Strings are UTF-8 (count in bytes); the Windows backend converts them
// at the platform call.
HFONT CreateFontIndirectA(const LOGFONTA* font);
BOOL GetTextExtentPoint32A(HDC dc, const char* text, int count, SIZE* size);
BOOL ExtTextOutA(HDC dc, int x, int y, unsigned options, const RECT* rect, const char* text, unsigned count,
                 const int* dx);
COLORREF SetTextColor(HDC dc, COLORREF color);

// Drawing.
BOOL MoveToEx(HDC dc, int x, int y, POINT* previous);
BOOL LineTo(HDC dc, int x, int y);
BOOL Ellipse(HDC dc, int left, int top, int right, int bottom);
int FillRect(HDC dc, const RECT* rect, HBRUSH brush);
BOOL DrawFocusRect(HDC dc, const RECT* rect);

// Not GDI: what tests, exporters and the headless host need.
//
// The pixels of the bitmap selected into a context, top row first, each
// 0x00RRGGBB. False when the context holds no readable bitmap.
struct Pixels {
  int width = 0;
  int height = 0;
  std::vector<uint32_t> argb;  // 0x00RRGGBB per pixel
  uint32_t At(int x, int y) const {
    return argb[static_cast<size_t>(y) * static_cast<size_t>(width) + static_cast<size_t>(x)];
  }
};
bool ReadPixels(HDC dc, Pixels& out);
// Writes pixels into the bitmap selected into a context, from its top-left
// corner; what does not fit is left out. False when the context holds no bitmap.
bool WritePixels(HDC dc, const Pixels& pixels);
// GDI objects and contexts currently alive in this process (leak checks).
size_t LiveObjectCount();
// GDI objects and contexts created through the seam so far, deleted or not:
// whether a call made any at all.
size_t CreatedObjectCount();

}  // namespace vorlex::gdi
