#pragma once
// The control's private state and the routines its members share.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "compose/picture_holder.h"
#include "compose/timer.h"
#include "control/block_definition.h"
#include "surface/offscreen_dc.h"
#include "vorlex/Vorlex.h"

namespace vorlex {

struct Layout;

// An explicitly omitted block argument means what its default means.
inline Variant EffectiveBlockArgument(const Variant& iBlock) { return iBlock.IsMissing() ? DefaultBlock() : iBlock; }

struct Vorlex::Impl {
  explicit Impl(ControlSite& s);

  ControlSite& site;

  // Blocks 1..blockCount; element 0 is the spare record. Empty until first sized.
  std::vector<BlockDefinition> blocks;
  std::vector<BlockDefinition> savedBlocks;
  int32_t blockCount = 0;
  int16_t indexBlock = 0;

  // The display's twips per pixel, captured with the defaults or on loading.
  int16_t twipsPerPixelX = 0;
  int16_t twipsPerPixelY = 0;

  OLE_COLOR backColor = 0;
  int16_t borderWidth = 0;
  int32_t borderStyle = 0;
  int16_t hMinValue = 0;
  int16_t hMaxValue = 0;
  int16_t vMinValue = 0;
  int16_t vMaxValue = 0;
  int32_t brushStyle = 0;
  OLE_COLOR brushColor = 0;
  std::string caption;
  int32_t captionAlignment = 0;
  OLE_COLOR disabledColor = 0;
  int32_t specialClearAllBlock = 0;
  int32_t orientation = 0;
  int16_t captionOffset = 0;
  int16_t captionAngle = 0;
  int32_t captionAutoAngle = 0;
  VARIANT_BOOL dontRefreshAfterPropertyPage = VARIANT_FALSE;
  int32_t captionFont3D = 0;
  VARIANT_BOOL redraw = VARIANT_FALSE;
  int32_t timerTimeInterval = 0;
  VARIANT_BOOL timerTimeEnabled = VARIANT_FALSE;
  int32_t timerDiskInterval = 0;
  VARIANT_BOOL timerDiskEnabled = VARIANT_FALSE;
  int32_t rivetsStyle = 0;
  int32_t gradientStyle = 0;
  OLE_COLOR gradientColor = 0;
  OLE_COLOR gradientColorEnd = 0;
  int32_t gradientGranularity = 0;
  PicturePtr picture;
  int32_t pictureAutoSize = 0;
  int32_t pictureTile = 0;
  int16_t pictureOffset = 0;
  int32_t pictureAlignment = 0;

  // Pixels per user unit, written by each redraw and read by the hit test.
  float hUnitSize = 0;
  float vUnitSize = 0;

  std::unique_ptr<OffScreenDC> offScreen;
  PictureHolder picture1;

  std::unique_ptr<clsTimer> timerTimeInformation;
  std::unique_ptr<clsTimer> timerDiskInformation;

  // The one redraw routine and its steps.
  void RedrawBar();
  OLE_COLOR Shown(OLE_COLOR color) const;
  void AutoSizeToPicture(int16_t border);
  void PaintBackground(const Layout& layout);
  void PaintBorder(int32_t style, int16_t width);
  void PaintCaption();
  void PaintPicture(const PicturePtr& shown, int16_t offset, int32_t tile, int32_t alignment);
  void PaintBlocks(const Layout& layout);
  void PaintBlock(BlockDefinition& block, VARIANT_BOOL pass, const Layout& layout, gdi::RECT& rect);
  void PaintBlockShape(const BlockDefinition& block);
  // A new surface of the control's current size.
  void CreateSurface();

  // Block argument to element number: a number (-1 for IndexBlock) or a key.
  int16_t ResolveBlockIndex(const Variant& iBlock) const;
  // The element, or error 9 when the list was never sized or e is outside 0..Blocks.
  BlockDefinition& Element(int32_t e);
  const BlockDefinition& Element(int32_t e) const;
  BlockDefinition& Block(const Variant& iBlock) { return Element(ResolveBlockIndex(iBlock)); }
  const BlockDefinition& Block(const Variant& iBlock) const { return Element(ResolveBlockIndex(iBlock)); }

  // A per-block setter: resolve the block, store the value, redraw.
  template <class T, class U>
  void Store(const Variant& iBlock, T BlockDefinition::*field, U&& value) {
    Block(iBlock).*field = std::forward<U>(value);
    RedrawBar();
  }
  // The same for an enumeration, narrowed to 16 bits once the block is resolved.
  void StoreEnumeration(const Variant& iBlock, int16_t BlockDefinition::*field, int32_t value) {
    BlockDefinition& block = Block(iBlock);
    block.*field = NarrowToInteger(value);
    RedrawBar();
  }

  // The block under a mouse release, or -1.
  int16_t HitTest(float x, float y) const;

  void AddBlock();
  void DeleteBlock(const Variant& iBlock);
  void ClearAll(int32_t bClear);

  // A control property's let: store, notify by name, redraw.
  template <class T, class U>
  void SetProperty(T& field, U&& value, std::string_view name) {
    field = std::forward<U>(value);
    site.PropertyChanged(name);
    RedrawBar();
  }

  // A timer setting: store, notify by name, hand it to the timer; no redraw.
  template <class T>
  void SetTimerProperty(T& field, T value, std::string_view name, clsTimer& timer, void (clsTimer::*apply)(T)) {
    field = value;
    site.PropertyChanged(name);
    (timer.*apply)(value);
  }

  // A bulk setter: store into every block, notify "Block" if asked, redraw.
  template <class Store>
  Variant ForEachBlock(Store&& store, bool notify) {
    for (int32_t i = 1; i <= blockCount; ++i) store(Element(i));
    if (notify) site.PropertyChanged("Block");
    RedrawBar();
    return {};
  }
};

}  // namespace vorlex
