#pragma once
// Draws random scene operations three ways: with softgdi's fast drawing
// functions, with its plain per-pixel ones, and through the GDI calls.

#include <cstdint>
#include <vector>

#include "platform/gdi.h"
#include "platform/soft/box.h"
#include "platform/soft/objects.h"
#include "platform/soft/surface.h"
#include "softgdi/random_scene.h"

namespace softgdi_test {

namespace soft = vorlex::gdi::soft;

// A bitmap's pixels held by the test.
struct Pixmap {
  int width = 0;
  int height = 0;
  std::vector<uint32_t> pixels;
  soft::Surface View() { return {width, height, pixels.data()}; }
};

// One drawing path: the functions the drawing calls end in.
struct DrawingPath {
  void (*fill)(const soft::Surface&, const soft::Box&, const soft::Brush&, const soft::DeviceContext&);
  void (*ellipse)(const soft::Surface&, const soft::Box&, const soft::Brush&, const soft::DeviceContext&,
                  const soft::Pen&);
  void (*line)(const soft::Surface&, const soft::Pen&, int64_t, int64_t, int64_t, int64_t);
  void (*blit)(const soft::Surface&, int64_t, int64_t, int64_t, int64_t, const soft::Surface&, int64_t, int64_t);
};
extern const DrawingPath kFastPath;
extern const DrawingPath kPlainPath;

// Draws an operation on `target` as the GDI call would; a blit from the other
// bitmap reads `other`.
void Paint(const DrawingPath& path, const Op& op, Pixmap& target, Pixmap& other);

// The same through the GDI calls on memory DCs; brush origins stay at 0, 0.
void PaintThroughGdi(const Op& op, HDC target, HDC other);

}  // namespace softgdi_test
