#pragma once
// The record of one block. A value-initialised record is what the list's spare
// element 0 holds (zeros, empty strings, no objects); a new block gets the
// defaults of ApplyNewBlockDefaults.

#include <cstdint>
#include <string>

#include "vorlex/Color.h"
#include "vorlex/Font.h"
#include "vorlex/Numeric.h"
#include "vorlex/Picture.h"

namespace vorlex {

struct BlockDefinition {
  std::string Key;
  int16_t BarLeft = 0;
  int16_t BarRight = 0;
  int16_t BarTop = 0;
  int16_t BarBottom = 0;
  int16_t BorderStyle = 0;
  int16_t BorderWidth = 0;
  int16_t ShapeStyle = 0;
  int16_t BrushStyle = 0;
  OLE_COLOR BrushColor = 0;
  VARIANT_BOOL Visible = VARIANT_FALSE;
  std::string HPercentage;
  std::string VPercentage;
  VARIANT_BOOL OnTop = VARIANT_FALSE;
  OLE_COLOR Color = 0;
  int16_t GradientStyle = 0;
  int16_t GradientGranularity = 0;
  OLE_COLOR GradientColor = 0;
  OLE_COLOR GradientColorEnd = 0;
  std::string Text;
  OLE_COLOR TextColor = 0;
  int16_t TextAlignment = 0;
  FontPtr TextFont;
  int16_t TextFont3D = 0;
  int16_t TextOffset = 0;
  int16_t TextAngle = 0;
  int16_t TextAutoAngle = 0;
  int16_t RivetsStyle = 0;
  PicturePtr Picture;
  int16_t PictureOffset = 0;
  int16_t PictureAlignment = 0;
  int16_t PictureTile = 0;
  VARIANT_BOOL Clickable = VARIANT_FALSE;
  VARIANT_BOOL AutoSize = VARIANT_FALSE;
};

// Every field to the default of a newly added block, the text font included.
void ApplyNewBlockDefaults(BlockDefinition& block, FontPtr textFont);

// Copies every field but GradientColorEnd, which stays with the element: the
// way a deletion moves blocks down.
void CopyAllButGradientColorEnd(const BlockDefinition& from, BlockDefinition& to);

}  // namespace vorlex
