#pragma once
// Ownership of GDI objects created by a primitive: deleted when the owner goes
// out of scope, after any selection of it has been undone.

#include <utility>

#include "platform/gdi.h"

namespace vorlex {

template <class Handle>
class GdiObject {
 public:
  explicit GdiObject(Handle handle) : handle_(handle) {}
  ~GdiObject() {
    if (handle_) gdi::DeleteObject(handle_);
  }
  GdiObject(const GdiObject&) = delete;
  GdiObject& operator=(const GdiObject&) = delete;

  Handle get() const { return handle_; }
  explicit operator bool() const { return handle_ != nullptr; }

 private:
  Handle handle_;
};

// Selects an object into a context and puts the displaced one back at scope end.
class Selection {
 public:
  Selection(gdi::HDC dc, gdi::HGDIOBJ object) : dc_(dc), previous_(object ? gdi::SelectObject(dc, object) : nullptr) {}
  ~Selection() {
    if (previous_) gdi::SelectObject(dc_, previous_);
  }
  Selection(const Selection&) = delete;
  Selection& operator=(const Selection&) = delete;

  explicit operator bool() const { return previous_ != nullptr; }

 private:
  gdi::HDC dc_;
  gdi::HGDIOBJ previous_;
};

// Sets a background mode and restores the old one at scope end.
class BackgroundMode {
 public:
  BackgroundMode(gdi::HDC dc, int mode) : dc_(dc), previous_(gdi::SetBkMode(dc, mode)) {}
  ~BackgroundMode() {
    if (previous_) gdi::SetBkMode(dc_, previous_);
  }
  BackgroundMode(const BackgroundMode&) = delete;
  BackgroundMode& operator=(const BackgroundMode&) = delete;

 private:
  gdi::HDC dc_;
  int previous_;
};

}  // namespace vorlex
