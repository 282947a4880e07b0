#include "control/block_definition.h"

#include <utility>

#include "vorlex/Enums.h"

namespace vorlex {

void ApplyNewBlockDefaults(BlockDefinition& block, FontPtr textFont) {
  block = BlockDefinition{};
  block.BarLeft = -1;
  block.BarRight = -1;
  block.BarTop = 100;
  block.BarBottom = 0;
  block.BorderStyle = vxNoneBorder;
  block.BorderWidth = 1;
  block.ShapeStyle = vxRectangle;
  block.BrushStyle = vxNoneBrush;
  block.BrushColor = kBlack;
  block.Visible = VARIANT_TRUE;
  block.HPercentage = "0";
  block.VPercentage = "0";
  block.OnTop = VARIANT_FALSE;
  block.Color = kDarkGrey;
  block.GradientStyle = vxNoneGradient;
  block.GradientGranularity = vxDefault;
  block.GradientColor = 0xFF0000;
  block.GradientColorEnd = kBlack;
  block.TextColor = kBlack;
  block.TextAlignment = vxCenterCenter;
  block.TextFont = std::move(textFont);
  block.TextFont3D = vxNoneFont3D;
  block.TextOffset = 3;
  block.TextAngle = 0;
  block.TextAutoAngle = vxNoneAuto;
  block.RivetsStyle = vxNoneRivets;
  block.PictureOffset = 3;
  block.PictureAlignment = vxCenterCenter;
  block.PictureTile = vxNoneTile;
  block.Clickable = VARIANT_TRUE;
  block.AutoSize = VARIANT_TRUE;
}

void CopyAllButGradientColorEnd(const BlockDefinition& from, BlockDefinition& to) {
  const OLE_COLOR kept = to.GradientColorEnd;
  to = from;
  to.GradientColorEnd = kept;
}

}  // namespace vorlex
