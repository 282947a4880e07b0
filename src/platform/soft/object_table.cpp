#include "platform/soft/object_table.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <utility>

namespace vorlex::gdi::soft {
namespace {

// value = ((generation << kIndexBits) | (slot + 1)) << kTagBits. The low bits
// stay clear so a handle looks like an aligned pointer.
constexpr unsigned kTagBits = 2;
constexpr unsigned kIndexBits = 20;
constexpr uint32_t kMaxSlots = (uint32_t{1} << kIndexBits) - 1;
// The generation takes the bits left in a pointer, at most 32.
constexpr unsigned kGenerationBits =
    std::min(32u, static_cast<unsigned>(std::numeric_limits<Handle>::digits) - kIndexBits - kTagBits);
constexpr uint32_t kGenerationMask =
    kGenerationBits >= 32 ? std::numeric_limits<uint32_t>::max() : (uint32_t{1} << kGenerationBits) - 1;

Handle Encode(uint32_t index, uint32_t generation) {
  const Handle packed = (static_cast<Handle>(generation & kGenerationMask) << kIndexBits) | (Handle{index} + 1);
  return packed << kTagBits;
}

struct Decoded {
  bool valid = false;
  uint32_t index = 0;
  uint32_t generation = 0;
};

Decoded Decode(Handle value) {
  if (value == 0 || (value & ((Handle{1} << kTagBits) - 1)) != 0) return {};
  const Handle packed = value >> kTagBits;
  const auto slotPlusOne = static_cast<uint32_t>(packed & kMaxSlots);
  if (slotPlusOne == 0) return {};
  const Handle generation = packed >> kIndexBits;
  if (generation > kGenerationMask) return {};
  return {true, slotPlusOne - 1, static_cast<uint32_t>(generation)};
}

// The font every DC starts with: GDI's system font, 16 pixels high and bold.
Font SystemFont() {
  Font font;
  font.logFont.lfHeight = 16;
  font.logFont.lfWeight = FW_BOLD;
  const char name[] = "System";
  std::copy(std::begin(name), std::end(name), font.logFont.lfFaceName);
  return font;
}

uint32_t NextGeneration(uint32_t generation) {
  const uint32_t next = (generation + 1) & kGenerationMask;
  return next == 0 ? 1 : next;
}

}  // namespace

ObjectTable::ObjectTable() {
  stockPen_ = AddStock(Pen{PS_SOLID, 1, RGB(0, 0, 0)});
  stockBrush_ = AddStock(Brush{RGB(255, 255, 255), -1});
  // The default bitmap of every memory DC: 1x1, monochrome, black.
  stockBitmap_ = AddStock(Bitmap{1, 1, 1, {0x000000}, 0});
  stockFont_ = AddStock(SystemFont());
}

Handle ObjectTable::AddStock(ObjectData data) {
  const Handle handle = Add(std::move(data));
  Slot* slot = Find(handle);
  slot->stock = true;
  --live_;
  --created_;
  return handle;
}

Handle ObjectTable::Add(ObjectData data) {
  uint32_t index = 0;
  if (!freeSlots_.empty()) {
    index = freeSlots_.back();
    freeSlots_.pop_back();
  } else {
    if (slotCount_ >= kMaxSlots) return 0;
    if (slotCount_ % kBlockSize == 0) blocks_.push_back(std::make_unique<Slot[]>(kBlockSize));
    index = slotCount_++;
  }
  Slot& slot = SlotAt(index);
  slot.used = true;
  slot.stock = false;
  slot.deletePending = false;
  slot.selections = 0;
  slot.data = std::move(data);
  ++live_;
  ++created_;
  return Encode(index, slot.generation);
}

Slot* ObjectTable::Find(Handle handle) {
  const Decoded decoded = Decode(handle);
  if (!decoded.valid || decoded.index >= slotCount_) return nullptr;
  Slot& slot = SlotAt(decoded.index);
  if (!slot.used || slot.generation != decoded.generation) return nullptr;
  return &slot;
}

void ObjectTable::Free(Handle handle) {
  Slot* slot = Find(handle);
  if (slot == nullptr || slot->stock) return;
  slot->used = false;
  slot->data = std::monostate{};
  slot->generation = NextGeneration(slot->generation);
  freeSlots_.push_back(Decode(handle).index);
  --live_;
}

bool ObjectTable::Delete(Handle handle) {
  Slot* slot = Find(handle);
  if (slot == nullptr || std::holds_alternative<DeviceContext>(slot->data)) return false;
  if (slot->stock) return true;
  if (slot->selections > 0) {
    slot->deletePending = true;
    return true;
  }
  Free(handle);
  return true;
}

void ObjectTable::Hold(Handle handle) {
  Slot* slot = Find(handle);
  if (slot != nullptr && !slot->stock) ++slot->selections;
}

void ObjectTable::Release(Handle handle) {
  Slot* slot = Find(handle);
  if (slot == nullptr || slot->stock || slot->selections == 0) return;
  if (--slot->selections == 0 && slot->deletePending) Free(handle);
}

ObjectTable& Objects() {
  // Deliberately never destroyed: handles may be released from other static
  // destructors at exit.
  static ObjectTable* const table = new ObjectTable();
  return *table;
}

}  // namespace vorlex::gdi::soft
