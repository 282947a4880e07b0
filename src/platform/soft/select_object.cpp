// SelectObject: a DC holds one pen, one brush, one bitmap and one font at a
// time.

#include <utility>

#include "platform/gdi.h"
#include "platform/soft/object_table.h"

namespace vorlex::gdi {
namespace {

using soft::Bitmap;
using soft::Brush;
using soft::DeviceContext;
using soft::Font;
using soft::Handle;
using soft::Pen;
using soft::Slot;

// The DC's field for an object of this kind, or nullptr (a DC is not selectable).
Handle* FieldFor(DeviceContext& dc, const soft::ObjectData& data) {
  if (std::holds_alternative<Pen>(data)) return &dc.pen;
  if (std::holds_alternative<Brush>(data)) return &dc.brush;
  if (std::holds_alternative<Bitmap>(data)) return &dc.bitmap;
  if (std::holds_alternative<Font>(data)) return &dc.font;
  return nullptr;
}

// Only a memory DC takes a bitmap, and only one not already held by another
// DC; the stock bitmap is shared.
bool CanTakeBitmap(const DeviceContext& dc, Handle dcHandle, const Slot& slot) {
  const Bitmap* bitmap = std::get_if<Bitmap>(&slot.data);
  if (bitmap == nullptr) return true;
  if (dc.screen) return false;
  return slot.stock || bitmap->selectedInto == 0 || bitmap->selectedInto == dcHandle;
}

void SetBitmapOwner(Handle bitmapHandle, Handle dcHandle) {
  if (Bitmap* bitmap = soft::Objects().Get<Bitmap>(bitmapHandle)) bitmap->selectedInto = dcHandle;
}

}  // namespace

HGDIOBJ SelectObject(HDC dc, HGDIOBJ object) {
  const auto lock = soft::LockObjects();
  soft::ObjectTable& table = soft::Objects();
  const Handle dcHandle = soft::ValueOf(dc);
  const Handle handle = soft::ValueOf(object);
  DeviceContext* context = table.Get<DeviceContext>(dcHandle);
  Slot* slot = table.Find(handle);
  if (context == nullptr || slot == nullptr) return nullptr;
  Handle* field = FieldFor(*context, slot->data);
  if (field == nullptr || !CanTakeBitmap(*context, dcHandle, *slot)) return nullptr;
  const Handle previous = std::exchange(*field, handle);
  if (previous == handle) return object;
  const bool isBitmap = std::holds_alternative<Bitmap>(slot->data);
  table.Hold(handle);
  if (isBitmap && !slot->stock) SetBitmapOwner(handle, dcHandle);
  if (isBitmap) SetBitmapOwner(previous, 0);
  table.Release(previous);  // frees it if its deletion was pending
  return soft::HandleOf<HGDIOBJ>(previous);
}

}  // namespace vorlex::gdi
