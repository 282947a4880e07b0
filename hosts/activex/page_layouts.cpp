#include "page_layouts.h"

#include "page_resources.h"

namespace vorlex::activex {

const PageLayout& BlockPageLayout() {
  static const PageLayout layout = {
      IDD_BLOCK_PAGE,
      {
          {"txtIndex", IDC_txtIndex},
          {"HScroll1", IDC_HScroll1},
          {"txtBlockKey", IDC_txtBlockKey},
          {"cmdAddBlock", IDC_cmdAddBlock},
          {"cmdRemoveBlock", IDC_cmdRemoveBlock},
          {"SSTab1", IDC_SSTab1},
          {"txtBlockBarLeft", IDC_txtBlockBarLeft},
          {"txtBlockBarRight", IDC_txtBlockBarRight},
          {"txtBlockBarTop", IDC_txtBlockBarTop},
          {"txtBlockBarBottom", IDC_txtBlockBarBottom},
          {"chkBlockAutoSize", IDC_chkBlockAutoSize},
          {"chkBlockClickable", IDC_chkBlockClickable},
          {"txtBlockHPercentage", IDC_txtBlockHPercentage},
          {"txtBlockVPercentage", IDC_txtBlockVPercentage},
          {"SSTab2", IDC_SSTab2},
          {"SSTab3", IDC_SSTab3},
          {"SSTab4", IDC_SSTab4},
          {"txtBlockText", IDC_txtBlockText},
          {"cbxTextFormat", IDC_cbxTextFormat},
          {"txtTextFont", IDC_txtTextFont},
          {"cmdFontSelection", IDC_cmdFontSelection},
          {"cbxFont3D", IDC_cbxFont3D},
          {"txtTextColor", IDC_txtTextColor},
          {"cmdTextColorSelection", IDC_cmdTextColorSelection},
          {"cbxTextAlignment", IDC_cbxTextAlignment},
          {"txtBlockTextAngle", IDC_txtBlockTextAngle},
          {"cbxAutoAngle", IDC_cbxAutoAngle},
          {"txtBlockTextOffset", IDC_txtBlockTextOffset},
          {"cbxShapeStyle", IDC_cbxShapeStyle},
          {"cbxBorderStyle", IDC_cbxBorderStyle},
          {"txtBlockBorderWidth", IDC_txtBlockBorderWidth},
          {"txtColor", IDC_txtColor},
          {"cmdColorSelection", IDC_cmdColorSelection},
          {"chkBlockOnTop", IDC_chkBlockOnTop},
          {"chkBlockVisible", IDC_chkBlockVisible},
          {"cbxBrushStyle", IDC_cbxBrushStyle},
          {"txtBrushColor", IDC_txtBrushColor},
          {"cmdBrushColor", IDC_cmdBrushColor},
          {"cbxGradientStyle", IDC_cbxGradientStyle},
          {"cbxGradientGranularity", IDC_cbxGradientGranularity},
          {"hslColor(0)", IDC_hslColor0},
          {"hslColor(1)", IDC_hslColor1},
          {"hslColor(2)", IDC_hslColor2},
          {"hslColorEnd(0)", IDC_hslColorEnd0},
          {"hslColorEnd(1)", IDC_hslColorEnd1},
          {"hslColorEnd(2)", IDC_hslColorEnd2},
          {"pctColor(0)", IDC_pctColor0},
          {"pctColor(1)", IDC_pctColor1},
          {"pctColor(2)", IDC_pctColor2},
          {"pctColorEnd(0)", IDC_pctColorEnd0},
          {"pctColorEnd(1)", IDC_pctColorEnd1},
          {"pctColorEnd(2)", IDC_pctColorEnd2},
          {"lblColor(0)", IDC_lblColor0},
          {"lblColor(1)", IDC_lblColor1},
          {"lblColor(2)", IDC_lblColor2},
          {"lblColorEnd(0)", IDC_lblColorEnd0},
          {"lblColorEnd(1)", IDC_lblColorEnd1},
          {"lblColorEnd(2)", IDC_lblColorEnd2},
          {"pctResult", IDC_pctResult},
          {"cbxRivetsStyle", IDC_cbxRivetsStyle},
          {"cbxPictureAlignment", IDC_cbxPictureAlignment},
          {"txtBlockPictureOffset", IDC_txtBlockPictureOffset},
          {"cbxPictureTile", IDC_cbxPictureTile},
          {"Picture1", IDC_Picture1},
          {"cmdBrowse", IDC_cmdBrowse},
          {"cmdRemove", IDC_cmdRemove},
      },
      {
          {IDC_SSTab1, {"&Position", "&Text", "&Appearance", "&Picture"}},
          {IDC_SSTab2, {"&Value", "&Font", "&Position"}},
          {IDC_SSTab3, {"&General", "&Brush", "&Gradient", "&Rivets"}},
          {IDC_SSTab4, {"&Appearance", "Pre&view"}},
      },
      {
          {IDC_SSTab1, 0, 1100, 1199},
          {IDC_SSTab1, 1, 1200, 1299},
          {IDC_SSTab1, 2, 1300, 1399},
          {IDC_SSTab1, 3, 1400, 1499},
          {IDC_SSTab2, 0, 2000, 2099},
          {IDC_SSTab2, 1, 2100, 2199},
          {IDC_SSTab2, 2, 2200, 2299},
          {IDC_SSTab3, 0, 3000, 3099},
          {IDC_SSTab3, 1, 3100, 3199},
          {IDC_SSTab3, 2, 3200, 3299},
          {IDC_SSTab3, 3, 3300, 3399},
          {IDC_SSTab4, 0, 4000, 4099},
          {IDC_SSTab4, 1, 4100, 4199},
      },
  };
  return layout;
}

const PageLayout& CaptionPageLayout() {
  static const PageLayout layout = {IDD_CAPTION_PAGE,
                                    {
                                        {"txtCaption", IDC_txtCaption},
                                        {"txtCaptionFont", IDC_txtCaptionFont},
                                        {"cmdFontSelection", IDC_cmdCaptionFontSelection},
                                        {"cbxCaptionFont3D", IDC_cbxCaptionFont3D},
                                        {"cbxCaptionAlignment", IDC_cbxCaptionAlignment},
                                        {"txtCaptionAngle", IDC_txtCaptionAngle},
                                        {"cbxCaptionAutoAngle", IDC_cbxCaptionAutoAngle},
                                    },
                                    {},
                                    {}};
  return layout;
}

const PageLayout& BoundariesPageLayout() {
  static const PageLayout layout = {IDD_BOUNDARIES_PAGE,
                                    {
                                        {"txtHMinValue", IDC_txtHMinValue},
                                        {"txtHMaxValue", IDC_txtHMaxValue},
                                        {"txtVMinValue", IDC_txtVMinValue},
                                        {"txtVMaxValue", IDC_txtVMaxValue},
                                    },
                                    {},
                                    {}};
  return layout;
}

const PageLayout& AboutBoxLayout() {
  static const PageLayout layout = {IDD_ABOUT_BOX,
                                    {
                                        {"lblName", IDC_lblName},
                                        {"lblVersion", IDC_lblVersion},
                                        {"lblInformation", IDC_lblInformation},
                                        {"lblMaker", IDC_lblMaker},
                                        {"Image1", IDC_Image1},
                                        {"Picture1", IDC_AboutPicture1},
                                        {"cmdSysInfo", IDC_cmdSysInfo},
                                        {"cmdOK", IDC_cmdOK},
                                    },
                                    {},
                                    {}};
  return layout;
}

}  // namespace vorlex::activex
