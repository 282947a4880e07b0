// GetDC, ReleaseDC, CreateCompatibleDC and DeleteDC.

#include "platform/gdi.h"
#include "platform/soft/draw_target.h"
#include "platform/soft/object_table.h"

namespace vorlex::gdi {
namespace {

using soft::Bitmap;
using soft::DeviceContext;
using soft::Handle;
using soft::ObjectTable;

// A DC holding the stock pen, brush and font; a memory DC also holds the stock
// 1x1 bitmap, the screen none. Stock objects need no selection count.
Handle NewDc(bool screen) {
  ObjectTable& table = soft::Objects();
  DeviceContext dc;
  dc.screen = screen;
  dc.pen = table.StockPen();
  dc.brush = table.StockBrush();
  dc.font = table.StockFont();
  dc.bitmap = screen ? 0 : table.StockBitmap();
  return table.Add(dc);
}

// Deselects everything the DC holds (freeing objects whose deletion was
// pending) and frees the DC.
void DestroyDc(Handle handle) {
  ObjectTable& table = soft::Objects();
  const DeviceContext dc = *table.Get<DeviceContext>(handle);
  if (Bitmap* bitmap = table.Get<Bitmap>(dc.bitmap); bitmap != nullptr && bitmap->selectedInto == handle) {
    bitmap->selectedInto = 0;
  }
  table.Free(handle);
  table.Release(dc.pen);
  table.Release(dc.brush);
  table.Release(dc.bitmap);
  table.Release(dc.font);
}

}  // namespace

HDC GetDC(HWND hwnd) {
  const auto lock = soft::LockObjects();
  if (hwnd != nullptr) return nullptr;  // softgdi has no windows
  return soft::HandleOf<HDC>(NewDc(true));
}

int ReleaseDC(HWND, HDC dc) {
  const auto lock = soft::LockObjects();
  const DeviceContext* context = soft::FindDc(dc);
  if (context == nullptr || !context->screen) return 0;
  DestroyDc(soft::ValueOf(dc));
  return 1;
}

HDC CreateCompatibleDC(HDC dc) {
  const auto lock = soft::LockObjects();
  if (dc != nullptr && soft::FindDc(dc) == nullptr) return nullptr;
  return soft::HandleOf<HDC>(NewDc(false));
}

BOOL DeleteDC(HDC dc) {
  const auto lock = soft::LockObjects();
  const DeviceContext* context = soft::FindDc(dc);
  if (context == nullptr || context->screen) return soft::kFalse;  // the screen's DCs go back through ReleaseDC
  DestroyDc(soft::ValueOf(dc));
  return soft::kTrue;
}

}  // namespace vorlex::gdi
