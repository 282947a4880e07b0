// Resource identifiers of the property pages and the About box, shared by the
// dialog templates and the code. A control's identifier also tells which tab
// it sits on: 1000-1099 above the tabs, 1100 + 100 k on tab k of SSTab1, and
// 2000, 3000, 4000 + 100 k on tab k of SSTab2, SSTab3 and SSTab4.
#pragma once

#define IDI_VORLEX 2

#define IDD_BLOCK_PAGE 200
#define IDD_CAPTION_PAGE 201
#define IDD_BOUNDARIES_PAGE 202
#define IDD_ABOUT_BOX 203

// Block page, above the tabs.
#define IDC_txtIndex 1001
#define IDC_HScroll1 1002
#define IDC_txtBlockKey 1003
#define IDC_cmdAddBlock 1004
#define IDC_cmdRemoveBlock 1005
#define IDC_SSTab1 1006
#define IDC_lblIndex 1051
#define IDC_lblKey 1052

// SSTab1 "&Position".
#define IDC_txtBlockBarLeft 1101
#define IDC_txtBlockBarRight 1102
#define IDC_txtBlockBarTop 1103
#define IDC_txtBlockBarBottom 1104
#define IDC_chkBlockAutoSize 1105
#define IDC_chkBlockClickable 1106
#define IDC_txtBlockHPercentage 1107
#define IDC_txtBlockVPercentage 1108
#define IDC_lblLeft 1151
#define IDC_lblRight 1152
#define IDC_lblTop 1153
#define IDC_lblBottom 1154
#define IDC_fraPercentage 1155
#define IDC_lblHPercentage 1156
#define IDC_lblVPercentage 1157

// SSTab1 "&Text", "&Appearance", "&Picture": their nested tabs.
#define IDC_SSTab2 1201
#define IDC_SSTab3 1301
#define IDC_SSTab4 1401

// SSTab2 "&Value", "&Font", "&Position".
#define IDC_txtBlockText 2001
#define IDC_cbxTextFormat 2002
#define IDC_lblTextFormat 2051
#define IDC_txtTextFont 2101
#define IDC_cmdFontSelection 2102
#define IDC_cbxFont3D 2103
#define IDC_txtTextColor 2104
#define IDC_cmdTextColorSelection 2105
#define IDC_lblTextFont 2151
#define IDC_lblFont3D 2152
#define IDC_lblTextColor 2153
#define IDC_cbxTextAlignment 2201
#define IDC_txtBlockTextAngle 2202
#define IDC_cbxAutoAngle 2203
#define IDC_txtBlockTextOffset 2204
#define IDC_lblTextAlignment 2251
#define IDC_lblTextAngle 2252
#define IDC_lblAutoAngle 2253
#define IDC_lblTextOffset 2254

// SSTab3 "&General", "&Brush", "&Gradient", "&Rivets".
#define IDC_cbxShapeStyle 3001
#define IDC_cbxBorderStyle 3002
#define IDC_txtBlockBorderWidth 3003
#define IDC_txtColor 3004
#define IDC_cmdColorSelection 3005
#define IDC_chkBlockOnTop 3006
#define IDC_chkBlockVisible 3007
#define IDC_lblShapeStyle 3051
#define IDC_lblBorderStyle 3052
#define IDC_lblBorderWidth 3053
#define IDC_lblColor 3054
#define IDC_cbxBrushStyle 3101
#define IDC_txtBrushColor 3102
#define IDC_cmdBrushColor 3103
#define IDC_lblBrushStyle 3151
#define IDC_lblBrushColor 3152
#define IDC_cbxGradientStyle 3201
#define IDC_cbxGradientGranularity 3202
#define IDC_hslColor0 3203
#define IDC_hslColor1 3204
#define IDC_hslColor2 3205
#define IDC_hslColorEnd0 3206
#define IDC_hslColorEnd1 3207
#define IDC_hslColorEnd2 3208
#define IDC_pctColor0 3209
#define IDC_pctColor1 3210
#define IDC_pctColor2 3211
#define IDC_pctColorEnd0 3212
#define IDC_pctColorEnd1 3213
#define IDC_pctColorEnd2 3214
#define IDC_lblColor0 3215
#define IDC_lblColor1 3216
#define IDC_lblColor2 3217
#define IDC_lblColorEnd0 3218
#define IDC_lblColorEnd1 3219
#define IDC_lblColorEnd2 3220
#define IDC_pctResult 3221
#define IDC_lblGradientStyle 3251
#define IDC_lblGradientGranularity 3252
#define IDC_lblGradientColor 3253
#define IDC_cbxRivetsStyle 3301
#define IDC_lblRivetsStyle 3351

// SSTab4 "&Appearance", "Pre&view".
#define IDC_cbxPictureAlignment 4001
#define IDC_txtBlockPictureOffset 4002
#define IDC_cbxPictureTile 4003
#define IDC_lblPictureAlignment 4051
#define IDC_lblPictureOffset 4052
#define IDC_lblPictureTile 4053
#define IDC_Picture1 4101
#define IDC_cmdBrowse 4102
#define IDC_cmdRemove 4103

// Caption page.
#define IDC_txtCaption 1001
#define IDC_txtCaptionFont 1002
#define IDC_cmdCaptionFontSelection 1003
#define IDC_cbxCaptionFont3D 1004
#define IDC_cbxCaptionAlignment 1005
#define IDC_txtCaptionAngle 1006
#define IDC_cbxCaptionAutoAngle 1007
#define IDC_lblCaption 1051
#define IDC_lblCaptionFont 1052
#define IDC_lblCaptionFont3D 1053
#define IDC_lblCaptionAlignment 1054
#define IDC_lblCaptionAngle 1055
#define IDC_lblCaptionAutoAngle 1056

// Boundaries page.
#define IDC_txtHMinValue 1001
#define IDC_txtHMaxValue 1002
#define IDC_txtVMinValue 1003
#define IDC_txtVMaxValue 1004
#define IDC_fraHorizontal 1051
#define IDC_lblHMinValue 1052
#define IDC_lblHMaxValue 1053
#define IDC_fraVertical 1054
#define IDC_lblVMinValue 1055
#define IDC_lblVMaxValue 1056

// About box.
#define IDC_lblName 1001
#define IDC_lblVersion 1002
#define IDC_lblInformation 1003
#define IDC_lblMaker 1004
#define IDC_Image1 1005
#define IDC_Line1 1006
#define IDC_Line2 1007
#define IDC_AboutPicture1 1008
#define IDC_cmdSysInfo 1009
#define IDC_cmdOK 1  // IDOK: Enter presses it
