// The block list: lookup by number or key, and the list operations.

#include <memory>

#include "control/vorlex_impl.h"
#include "vorlex/AutomationError.h"

namespace vorlex {

int16_t Vorlex::Impl::ResolveBlockIndex(const Variant& argument) const {
  const Variant iBlock = EffectiveBlockArgument(argument);
  if (iBlock.IsNumeric()) {
    const int16_t n = iBlock.ToInteger();
    if (n != -1) return n;
    // Or-joined on purpose: for any non-negative count this is IndexBlock, unchecked.
    return (indexBlock <= blockCount || indexBlock > 0) ? indexBlock : int16_t{0};
  }
  if (!iBlock.IsString()) RaiseError(kErrTypeMismatch);
  const std::string key = iBlock.ToString();
  // The lookup's block counter is 16-bit: more blocks than it can count overflow.
  const int16_t last = NarrowToInteger(blockCount);
  for (int32_t i = 1; i <= last; ++i) {
    if (blocks[static_cast<size_t>(i)].Key == key) return static_cast<int16_t>(i);
  }
  return 0;  // an unknown key lands on the spare element
}

const BlockDefinition& Vorlex::Impl::Element(int32_t e) const {
  if (blocks.empty() || e < 0 || e > blockCount || static_cast<size_t>(e) >= blocks.size()) {
    RaiseError(kErrSubscript);
  }
  return blocks[static_cast<size_t>(e)];
}

BlockDefinition& Vorlex::Impl::Element(int32_t e) {
  return const_cast<BlockDefinition&>(static_cast<const Impl*>(this)->Element(e));
}

void Vorlex::Impl::AddBlock() {
  blockCount = CheckedAdd(blockCount, int32_t{1});
  blocks.resize(static_cast<size_t>(blockCount) + 1);
  ApplyNewBlockDefaults(blocks.back(), std::make_shared<Font>());
}

void Vorlex::Impl::DeleteBlock(const Variant& iBlock) {
  // The argument is compared as a tagged value, never resolved: a key string
  // compares above every number, so it removes the last block.
  for (int32_t i = 1; i <= blockCount; ++i) {
    if (CompareVariants(Variant(i), iBlock) > 0) {
      CopyAllButGradientColorEnd(blocks[static_cast<size_t>(i)], blocks[static_cast<size_t>(i - 1)]);
    }
  }
  blockCount -= 1;
  if (blockCount <= 0) {
    blockCount = 0;  // the list keeps its size
  } else {
    blocks.resize(static_cast<size_t>(blockCount) + 1);
  }
  RedrawBar();
}

void Vorlex::Impl::ClearAll(int32_t bClear) {
  for (int32_t i = 1; i <= blockCount; ++i) {
    ApplyNewBlockDefaults(Element(i), site.AmbientFont());
    if (bClear == vxHard) {
      if (static_cast<size_t>(i) >= savedBlocks.size()) RaiseError(kErrSubscript);
      ApplyNewBlockDefaults(savedBlocks[static_cast<size_t>(i)], site.AmbientFont());
    }
  }
  RedrawBar();
}

int16_t Vorlex::get_Blocks() const { return NarrowToInteger(d->blockCount); }

void Vorlex::put_Blocks(int16_t value) {
  const int16_t current = NarrowToInteger(d->blockCount);
  if (value <= current) {
    // Each step deletes the last block, its number passed as a byte: shrinking
    // from more than 255 blocks overflows before anything is deleted.
    const int16_t stop = CheckedAdd(value, int16_t{1});
    for (int32_t i = current; i >= stop; --i) {
      d->DeleteBlock(Variant(static_cast<int16_t>(NarrowToByte(i))));
    }
  } else {
    for (int32_t i = current + 1; i <= value; ++i) d->AddBlock();
  }
  d->RedrawBar();
}

int16_t Vorlex::get_IndexBlock() const { return d->indexBlock; }
void Vorlex::put_IndexBlock(int16_t value) { d->SetProperty(d->indexBlock, value, "IndexBlock"); }

Variant Vorlex::AddBlock() {
  d->AddBlock();
  return {};
}

Variant Vorlex::DeleteBlock(const Variant& iBlock) {
  d->DeleteBlock(iBlock);
  return {};
}

Variant Vorlex::ClearBlockBar() {
  return d->ForEachBlock(
      [](BlockDefinition& b) {
        b.BarLeft = -1;
        b.BarRight = -1;
      },
      true);
}

Variant Vorlex::ClearAll(int32_t bClear) {
  d->ClearAll(bClear);
  return {};
}

Variant Vorlex::SaveSetting() {
  d->savedBlocks.resize(static_cast<size_t>(d->blockCount) + 1);
  for (int32_t i = 1; i <= d->blockCount; ++i) {
    d->savedBlocks[static_cast<size_t>(i)] = d->Element(i);
  }
  return {};
}

Variant Vorlex::RestoreSetting() {
  for (int32_t i = 1; i <= d->blockCount; ++i) {
    if (static_cast<size_t>(i) >= d->savedBlocks.size()) RaiseError(kErrSubscript);
    d->Element(i) = d->savedBlocks[static_cast<size_t>(i)];
  }
  d->RedrawBar();
  return {};
}

}  // namespace vorlex
