#pragma once
// A window that lives in memory, as a container without a screen of its own
// gives it to the control: a device context holding a bitmap of the client
// size, and a handle no other such window in the process has. HeadlessSite
// and the Qt widget's site each keep their window in one.

#include <cstddef>
#include <cstdint>
#include <vector>

namespace vorlex {

// The pixels of a memory window, top row first, each 0x00RRGGBB.
struct WindowImage {
  int width = 0;
  int height = 0;
  std::vector<uint32_t> pixels;
  uint32_t At(int x, int y) const {
    return pixels[static_cast<size_t>(y) * static_cast<size_t>(width) + static_cast<size_t>(x)];
  }
};

class MemoryWindow {
 public:
  MemoryWindow(int widthPixels, int heightPixels);
  ~MemoryWindow();
  MemoryWindow(const MemoryWindow&) = delete;
  MemoryWindow& operator=(const MemoryWindow&) = delete;

  int Width() const { return width_; }
  int Height() const { return height_; }
  uintptr_t hWnd() const { return hwnd_; }
  // The context the control draws into (a gdi::HDC).
  uintptr_t hDC() const { return windowDC_; }

  // Gives the window a new bitmap of that size, black, as a resized window's
  // next paint finds it. False, and nothing done, when the size is the same.
  bool Resize(int widthPixels, int heightPixels);
  // What the window shows; empty when it has no pixels.
  WindowImage Snapshot() const;

 private:
  void CreateBitmap();

  int width_;
  int height_;
  uintptr_t hwnd_;
  uintptr_t screenDC_ = 0;
  uintptr_t windowDC_ = 0;
  uintptr_t windowBitmap_ = 0;
  uintptr_t previousBitmap_ = 0;
};

}  // namespace vorlex
