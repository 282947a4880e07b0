#pragma once
// The control's style enumerations. Their names and values are part of the
// published interface: hosts store these numbers and forms persist them.

#include <cstdint>

namespace vorlex {

enum vxAlignmentEnum : int32_t {
  vxCenterCenter = 0,
  vxCenterLeft = 1,
  vxCenterRight = 2,
  vxTopCenter = 3,
  vxTopLeft = 4,
  vxTopRight = 5,
  vxBottomCenter = 6,
  vxBottomLeft = 7,
  vxBottomRight = 8,
};

enum vxAutoAngleEnum : int32_t { vxNoneAuto = 0, vxUp = 1, vxDown = 2 };

enum vxAutoSizeEnum : int32_t {
  vxNoneAutoSize = 0,
  vxWidthAutoSize = 1,
  vxHeightAutoSize = 2,
  vxBothAutoSize = 3,
};

enum vxBorderStyleEnum : int32_t {
  vxNoneBorder = 0,
  vxFlat = 1,
  vxRaised = 2,
  vxInset = 3,
  vxEtched = 4,
  vxEtchedLight = 5,
  vxBump = 6,
  vxBumpLight = 7,
};

enum vxBrushStyleEnum : int32_t {
  vxNoneBrush = 0,
  vxHorizontal = 1,
  vxVertical = 2,
  vxForwardDiagonal = 3,
  vxBackwardDiagonal = 4,
  vxCross = 5,
  vxDiagonalCross = 6,
};

enum vxClearAllEnum : int32_t { vxHard = -1, vxSoft = 0 };

enum vxFont3DEnum : int32_t {
  vxNoneFont3D = 0,
  vxRaisedLight = 1,
  vxInsetLight = 2,
  vxRaisedShadow = 3,
  vxInsetShadow = 4,
};

enum vxGradientGranularityEnum : int32_t {
  vxDefault = 0,
  vxHigh = 1,
  vxMedium = 2,
  vxLow = 3,
  vxVeryLow = 4,
};

enum vxGradientStyleEnum : int32_t {
  vxNoneGradient = 0,
  vxLeftHGradient = 1,
  vxRightHGradient = 2,
  vxTopVGradient = 3,
  vxBottomVGradient = 4,
  vxInnerHGradient = 5,
  vxOuterHGradient = 6,
  vxInnerVGradient = 7,
  vxOuterVGradient = 8,
  vxInnerCircleGradient = 9,
  vxOuterCircleGradient = 10,
  vxInnerRectangleGradient = 11,
  vxOuterRectangleGradient = 12,
};

enum vxOrientationEnum : int32_t { vxFromLeft = 0, vxFromRight = 1, vxFromTop = 2, vxFromBottom = 3 };

enum vxRivetsStyleEnum : int32_t {
  vxNoneRivets = 0,
  vxRaisedRivets = 1,
  vxInsetRivets = 2,
  vxRaisedRivetsExt = 3,
  vxInsetRivetsExt = 4,
};

enum vxShapeStyleEnum : int32_t { vxRectangle = 0, vxCircle = 1 };

enum vxSpecialClearAllBlockEnum : int32_t { vxClear = -1, vxDontClear = 0 };

enum vxTileEnum : int32_t { vxNoneTile = 0, vxHorizontalTile = 1, vxVerticalTile = 2, vxBothTile = 3 };

}  // namespace vorlex
