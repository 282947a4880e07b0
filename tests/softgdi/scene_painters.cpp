#include "softgdi/scene_painters.h"

#include <variant>

#include "platform/soft/blit.h"
#include "platform/soft/brush_spans.h"
#include "platform/soft/ellipse_shape.h"
#include "platform/soft/pen_line.h"
#include "platform/soft/reference.h"

namespace softgdi_test {

const DrawingPath kFastPath{&soft::FillBox, &soft::DrawEllipse, &soft::DrawPenLine, &soft::Blit};
const DrawingPath kPlainPath{&soft::reference::FillBox, &soft::reference::DrawEllipse, &soft::reference::DrawPenLine,
                             &soft::reference::Blit};

namespace {

soft::Brush BrushOf(const BrushChoice& choice) { return {choice.color, choice.hatch}; }

soft::DeviceContext ContextOf(const BrushChoice& choice) {
  soft::DeviceContext dc;
  dc.bkMode = choice.bkMode;
  dc.bkColor = choice.bkColor;
  dc.brushOrigin = choice.origin;
  return dc;
}

soft::Pen PenOf(const PenChoice& choice) { return {choice.style, choice.width, choice.color}; }

// Each operation as its GDI call takes its arguments.
struct SurfacePainter {
  const DrawingPath& path;
  Pixmap& target;
  Pixmap& other;

  void operator()(const FillOp& op) const {
    const RECT& r = op.rect;
    const soft::Box box = soft::BoxFromExtent(r.left, r.top, int64_t{r.right} - r.left, int64_t{r.bottom} - r.top);
    path.fill(target.View(), box, BrushOf(op.brush), ContextOf(op.brush));
  }
  void operator()(const EllipseOp& op) const {
    const soft::Box box = soft::OrderedBox(op.box.left, op.box.top, op.box.right, op.box.bottom);
    if (!box.Empty()) path.ellipse(target.View(), box, BrushOf(op.brush), ContextOf(op.brush), PenOf(op.pen));
  }
  void operator()(const LineOp& op) const {
    path.line(target.View(), PenOf(op.pen), op.from.x, op.from.y, op.to.x, op.to.y);
  }
  void operator()(const BlitOp& op) const {
    Pixmap& source = op.fromOther ? other : target;
    path.blit(target.View(), op.x, op.y, op.width, op.height, source.View(), op.sourceX, op.sourceY);
  }
};

HBRUSH CreateBrush(const BrushChoice& choice) {
  return choice.hatch < 0 ? CreateSolidBrush(choice.color) : CreateHatchBrush(choice.hatch, choice.color);
}

void SetBackground(HDC dc, const BrushChoice& choice) {
  SetBkMode(dc, choice.bkMode);
  SetBkColor(dc, choice.bkColor);
}

// Selects an object for a scope, then restores the previous one and deletes it.
class Using {
 public:
  Using(HDC dc, HGDIOBJ object) : dc_(dc), object_(object), previous_(SelectObject(dc, object)) {}
  ~Using() {
    SelectObject(dc_, previous_);
    DeleteObject(object_);
  }
  Using(const Using&) = delete;
  Using& operator=(const Using&) = delete;

 private:
  HDC dc_;
  HGDIOBJ object_;
  HGDIOBJ previous_;
};

struct GdiPainter {
  HDC target;
  HDC other;

  void operator()(const FillOp& op) const {
    HBRUSH brush = CreateBrush(op.brush);
    SetBackground(target, op.brush);
    FillRect(target, &op.rect, brush);
    DeleteObject(brush);
  }
  void operator()(const EllipseOp& op) const {
    const Using pen(target, CreatePen(op.pen.style, op.pen.width, op.pen.color));
    const Using brush(target, CreateBrush(op.brush));
    SetBackground(target, op.brush);
    Ellipse(target, op.box.left, op.box.top, op.box.right, op.box.bottom);
  }
  void operator()(const LineOp& op) const {
    const Using pen(target, CreatePen(op.pen.style, op.pen.width, op.pen.color));
    MoveToEx(target, op.from.x, op.from.y, nullptr);
    LineTo(target, op.to.x, op.to.y);
  }
  void operator()(const BlitOp& op) const {
    BitBlt(target, op.x, op.y, op.width, op.height, op.fromOther ? other : target, op.sourceX, op.sourceY, SRCCOPY);
  }
};

}  // namespace

void Paint(const DrawingPath& path, const Op& op, Pixmap& target, Pixmap& other) {
  std::visit(SurfacePainter{path, target, other}, op);
}

void PaintThroughGdi(const Op& op, HDC target, HDC other) { std::visit(GdiPainter{target, other}, op); }

}  // namespace softgdi_test
