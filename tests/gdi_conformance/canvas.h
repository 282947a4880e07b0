#pragma once
// The set-up of every drawing test: a bitmap compatible with the screen,
// selected into a memory context made from the screen's; owners that delete
// what a test creates and restore what it selects.

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>

#include "picture.h"
#include "platform/gdi.h"

namespace vorlex::gdi_conformance {

// Deletes a pen, brush or bitmap when it goes out of scope.
template <typename Handle>
class Owned {
 public:
  explicit Owned(Handle handle) : handle_(handle) {}
  ~Owned() {
    if (handle_ != nullptr) gdi::DeleteObject(handle_);
  }
  Owned(const Owned&) = delete;
  Owned& operator=(const Owned&) = delete;

  Handle get() const { return handle_; }
  // The object is no longer deleted here (the test deleted it itself).
  void Forget() { handle_ = nullptr; }

 private:
  Handle handle_;
};

// Selects an object into a context; selects the previous one back when it goes
// out of scope. Declare it after the owner of the object it selects.
class Selection {
 public:
  Selection(gdi::HDC dc, gdi::HGDIOBJ object) : dc_(dc), previous_(gdi::SelectObject(dc, object)) {}
  ~Selection() {
    if (previous_ != nullptr) gdi::SelectObject(dc_, previous_);
  }
  Selection(const Selection&) = delete;
  Selection& operator=(const Selection&) = delete;

  gdi::HGDIOBJ previous() const { return previous_; }

 private:
  gdi::HDC dc_;
  gdi::HGDIOBJ previous_;
};

// A width x height bitmap made with CreateCompatibleBitmap(GetDC(nullptr)),
// selected into CreateCompatibleDC(GetDC(nullptr)). Everything is restored and
// deleted at the end, and where the backend counts its objects the count must
// return to what it was before.
class Canvas {
 public:
  Canvas(int width, int height);
  ~Canvas();
  Canvas(const Canvas&) = delete;
  Canvas& operator=(const Canvas&) = delete;

  // Every step of the set-up succeeded.
  bool ok() const { return screen_ != nullptr && dc_ != nullptr && bitmap_ != nullptr && previous_ != nullptr; }
  gdi::HDC dc() const { return dc_; }
  gdi::HDC screen() const { return screen_; }
  gdi::HBITMAP bitmap() const { return bitmap_; }
  int width() const { return width_; }
  int height() const { return height_; }
  gdi::RECT bounds() const { return {0, 0, width_, height_}; }

  // FillRect with a new solid brush, over the whole bitmap or a rectangle.
  void Fill(gdi::COLORREF colour) const { Fill(bounds(), colour); }
  void Fill(const gdi::RECT& rect, gdi::COLORREF colour) const;
  // The bitmap's pixels; an empty result and a failure when unreadable.
  gdi::Pixels Read() const;

 private:
  int width_;
  int height_;
  size_t objects_before_;
  gdi::HDC screen_ = nullptr;
  gdi::HDC dc_ = nullptr;
  gdi::HBITMAP bitmap_ = nullptr;
  gdi::HGDIOBJ previous_ = nullptr;
};

// Colours whose three channels differ, so that a swapped channel shows.
inline constexpr Ink kPaper{'.', gdi::RGB(0xF0, 0xE8, 0xD0), 0xF0E8D0};
inline constexpr Ink kPen{'o', gdi::RGB(0x20, 0x40, 0xC0), 0x2040C0};
inline constexpr Ink kBrush{'#', gdi::RGB(0xC0, 0x30, 0x10), 0xC03010};
inline constexpr Ink kBack{'-', gdi::RGB(0x10, 0xA0, 0x50), 0x10A050};

}  // namespace vorlex::gdi_conformance
