#include "system_dialogs.h"

#include <commdlg.h>
#undef ChooseColor
#undef ChooseFont

#include <cmath>
#include <string>

#include "com_variant.h"
#include "editor_services.h"
#include "wide_text.h"

namespace vorlex::activex {

namespace {

// Font sizes in points and the LOGFONT height of the screen.
int PointsToHeight(float points) {
  HDC screen = GetDC(nullptr);
  const int dpi = screen ? GetDeviceCaps(screen, LOGPIXELSY) : 96;
  if (screen) ReleaseDC(nullptr, screen);
  return -MulDiv(static_cast<int>(std::lround(points * 10.0f)), dpi, 720);
}

}  // namespace

std::wstring DialogFilter(const std::string& filter) {
  std::wstring result = ToWide(filter);
  for (wchar_t& c : result)
    if (c == L'|') c = L'\0';
  result.push_back(L'\0');
  result.push_back(L'\0');
  return result;
}

bool SystemDialogs::ChooseColor(editors::CommonDialog& dialog) {
  static COLORREF custom[16] = {};
  CHOOSECOLORW choose{};
  choose.lStructSize = sizeof choose;
  choose.hwndOwner = DialogOwner();
  choose.rgbResult = dialog.Color & 0xFFFFFF;
  choose.lpCustColors = custom;
  if (dialog.Flags & editors::kColorInitialColor) choose.Flags |= CC_RGBINIT;
  if (!ChooseColorW(&choose)) return false;
  dialog.Color = choose.rgbResult;
  return true;
}

bool SystemDialogs::ChooseFont(editors::CommonDialog& dialog) {
  LOGFONTW font{};
  const std::wstring name = ToWide(dialog.FontName);
  lstrcpynW(font.lfFaceName, name.c_str(), LF_FACESIZE);
  font.lfHeight = PointsToHeight(dialog.FontSize > 0 ? dialog.FontSize : 8.25f);
  font.lfWeight = dialog.FontBold ? FW_BOLD : FW_NORMAL;
  font.lfItalic = dialog.FontItalic;
  font.lfUnderline = dialog.FontUnderline;
  font.lfStrikeOut = dialog.FontStrikethru;
  font.lfCharSet = DEFAULT_CHARSET;
  CHOOSEFONTW choose{};
  choose.lStructSize = sizeof choose;
  choose.hwndOwner = DialogOwner();
  choose.lpLogFont = &font;
  choose.Flags = CF_INITTOLOGFONTSTRUCT;
  if ((dialog.Flags & editors::kFontScreenPrinterEffects) == editors::kFontScreenPrinterEffects)
    choose.Flags |= CF_SCREENFONTS | CF_PRINTERFONTS | CF_EFFECTS;
  else
    choose.Flags |= static_cast<DWORD>(dialog.Flags) | CF_SCREENFONTS;
  if (!ChooseFontW(&choose)) return false;
  dialog.FontName = FromWide(font.lfFaceName);
  dialog.FontSize = static_cast<float>(choose.iPointSize) / 10.0f;
  dialog.FontBold = font.lfWeight >= FW_BOLD;
  dialog.FontItalic = font.lfItalic != 0;
  dialog.FontUnderline = font.lfUnderline != 0;
  dialog.FontStrikethru = font.lfStrikeOut != 0;
  return true;
}

bool SystemDialogs::ChooseOpenFile(editors::CommonDialog& dialog) {
  const std::wstring filter = DialogFilter(dialog.Filter);
  std::wstring file = ToWide(dialog.FileName);
  file.resize(MAX_PATH * 4, L'\0');
  OPENFILENAMEW open{};
  open.lStructSize = sizeof open;
  open.hwndOwner = DialogOwner();
  open.lpstrFilter = dialog.Filter.empty() ? nullptr : filter.c_str();
  open.nFilterIndex = 1;
  open.lpstrFile = file.data();
  open.nMaxFile = static_cast<DWORD>(file.size());
  open.Flags = OFN_FILEMUSTEXIST | OFN_PATHMUSTEXIST | OFN_HIDEREADONLY;
  if (!GetOpenFileNameW(&open)) return false;
  dialog.FileName = FromWide(file.c_str());
  return true;
}

}  // namespace vorlex::activex
