#pragma once
// The table behind every softgdi handle. A handle encodes a slot number and the
// slot's generation, so a null, stale, foreign or wrongly typed handle finds
// nothing instead of being trusted as a pointer. The table lives for the whole
// process and is never destroyed, so nothing depends on the order of static
// destruction at exit.

#include <cstddef>
#include <cstdint>
#include <memory>
#include <mutex>
#include <variant>
#include <vector>

#include "platform/soft/objects.h"

namespace vorlex::gdi::soft {

struct Slot {
  uint32_t generation = 1;
  bool used = false;
  bool stock = false;          // never freed, never counted
  bool deletePending = false;  // DeleteObject while selected: freed on the last deselection
  uint32_t selections = 0;     // how many DCs hold the object
  ObjectData data;
};

class ObjectTable {
 public:
  ObjectTable();

  // A new object's handle, or 0 when the table is full.
  Handle Add(ObjectData data);
  // The live slot of a handle, or nullptr.
  Slot* Find(Handle handle);
  template <class T>
  T* Get(Handle handle) {
    Slot* slot = Find(handle);
    return slot != nullptr ? std::get_if<T>(&slot->data) : nullptr;
  }
  // Frees an object now; the handle stops working.
  void Free(Handle handle);
  // DeleteObject: false for an unknown handle or a DC; stock objects stay.
  bool Delete(Handle handle);

  // A DC starts or stops holding an object.
  void Hold(Handle handle);
  void Release(Handle handle);

  size_t LiveCount() const { return live_; }
  size_t CreatedCount() const { return created_; }
  Handle StockPen() const { return stockPen_; }
  Handle StockBrush() const { return stockBrush_; }
  Handle StockBitmap() const { return stockBitmap_; }
  Handle StockFont() const { return stockFont_; }
  std::mutex& Mutex() { return mutex_; }

 private:
  Handle AddStock(ObjectData data);
  Slot& SlotAt(uint32_t index) { return blocks_[index >> kBlockBits][index & (kBlockSize - 1)]; }

  // Slots live in blocks that never move, so their addresses stay valid while
  // the table grows, and a slot number finds its block with a shift.
  static constexpr unsigned kBlockBits = 8;
  static constexpr uint32_t kBlockSize = uint32_t{1} << kBlockBits;
  std::vector<std::unique_ptr<Slot[]>> blocks_;
  uint32_t slotCount_ = 0;
  std::vector<uint32_t> freeSlots_;
  size_t live_ = 0;
  size_t created_ = 0;  // stock objects not counted
  Handle stockPen_ = 0;
  Handle stockBrush_ = 0;
  Handle stockBitmap_ = 0;
  Handle stockFont_ = 0;
  std::mutex mutex_;
};

// The process's table.
ObjectTable& Objects();

// Every entry point holds this for the duration of the call.
inline std::lock_guard<std::mutex> LockObjects() { return std::lock_guard<std::mutex>(Objects().Mutex()); }

// Handle values and the pointer types GDI declares.
inline Handle ValueOf(const void* handle) { return reinterpret_cast<Handle>(handle); }
template <class H>
H HandleOf(Handle value) {
  return reinterpret_cast<H>(value);
}

}  // namespace vorlex::gdi::soft
