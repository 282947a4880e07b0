// The style enumerations as published type information: each type with its
// constants in declaration order.

#include "control/numeric_text.h"
#include "vorlex/Automation.h"
#include "vorlex/Enums.h"

namespace vorlex {

// A constant's published name is its own name.
#define C(constant) \
  EnumConstant { #constant, constant }

const std::vector<EnumerationInfo>& EnumerationTable() {
  static const std::vector<EnumerationInfo> table = {
      {"vxAlignmentEnum",
       {C(vxCenterCenter), C(vxCenterLeft), C(vxCenterRight), C(vxTopCenter), C(vxTopLeft), C(vxTopRight),
        C(vxBottomCenter), C(vxBottomLeft), C(vxBottomRight)}},
      {"vxAutoAngleEnum", {C(vxNoneAuto), C(vxUp), C(vxDown)}},
      {"vxAutoSizeEnum", {C(vxNoneAutoSize), C(vxWidthAutoSize), C(vxHeightAutoSize), C(vxBothAutoSize)}},
      {"vxBorderStyleEnum",
       {C(vxNoneBorder), C(vxFlat), C(vxRaised), C(vxInset), C(vxEtched), C(vxEtchedLight), C(vxBump), C(vxBumpLight)}},
      {"vxBrushStyleEnum",
       {C(vxNoneBrush), C(vxHorizontal), C(vxVertical), C(vxForwardDiagonal), C(vxBackwardDiagonal), C(vxCross),
        C(vxDiagonalCross)}},
      {"vxClearAllEnum", {C(vxHard), C(vxSoft)}},
      {"vxFont3DEnum", {C(vxNoneFont3D), C(vxRaisedLight), C(vxInsetLight), C(vxRaisedShadow), C(vxInsetShadow)}},
      {"vxGradientGranularityEnum", {C(vxDefault), C(vxHigh), C(vxMedium), C(vxLow), C(vxVeryLow)}},
      {"vxGradientStyleEnum",
       {C(vxNoneGradient), C(vxLeftHGradient), C(vxRightHGradient), C(vxTopVGradient), C(vxBottomVGradient),
        C(vxInnerHGradient), C(vxOuterHGradient), C(vxInnerVGradient), C(vxOuterVGradient), C(vxInnerCircleGradient),
        C(vxOuterCircleGradient), C(vxInnerRectangleGradient), C(vxOuterRectangleGradient)}},
      {"vxOrientationEnum", {C(vxFromLeft), C(vxFromRight), C(vxFromTop), C(vxFromBottom)}},
      {"vxRivetsStyleEnum",
       {C(vxNoneRivets), C(vxRaisedRivets), C(vxInsetRivets), C(vxRaisedRivetsExt), C(vxInsetRivetsExt)}},
      {"vxShapeStyleEnum", {C(vxRectangle), C(vxCircle)}},
      {"vxSpecialClearAllBlockEnum", {C(vxClear), C(vxDontClear)}},
      {"vxTileEnum", {C(vxNoneTile), C(vxHorizontalTile), C(vxVerticalTile), C(vxBothTile)}},
  };
  return table;
}

#undef C

const EnumerationInfo* FindEnumeration(std::string_view name) {
  for (const EnumerationInfo& e : EnumerationTable()) {
    if (EqualsIgnoringCase(e.name, name)) return &e;
  }
  return nullptr;
}

}  // namespace vorlex
