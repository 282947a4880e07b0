#pragma once
// The control's own child window while it is in-place active: a class with its
// own device context (the site paints into it between messages too), no
// background brush (the bar covers every pixel, so nothing is erased first),
// a full repaint on resize, and double clicks.

#include "com_includes.h"

namespace vorlex::activex {

// What the window passes on.
class WindowOwner {
 public:
  virtual ~WindowOwner() = default;
  virtual void OnWindowPaint() = 0;
  // WM_PRINTCLIENT: the client area painted into another context.
  virtual void OnWindowPrint(HDC target) = 0;
  virtual void OnWindowSize(int width, int height) = 0;
  virtual void OnMouseUp(int16_t button, int16_t shift, float x, float y) = 0;
  virtual void OnClick() = 0;
  virtual void OnDblClick() = 0;
};

// Creates the window as a child of parent at the given rectangle; null on failure.
HWND CreateControlWindow(HWND parent, const RECT& position, WindowOwner& owner);

}  // namespace vorlex::activex
