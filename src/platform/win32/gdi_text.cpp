// Text forwarded to gdi32: the seam's UTF-8 strings go to the wide-character
// functions.
#include <vector>

#include "platform/win32/wide_text.h"

namespace vorlex::gdi {

BOOL GetTextExtentPoint32A(HDC dc, const char* text, int count, SIZE* size) {
  if (count < 0 || size == nullptr || (text == nullptr && count > 0)) return FALSE;
  const std::wstring wide = win32::WideFromUtf8(text, count);
  ::SIZE extent{};
  const BOOL ok =
      ::GetTextExtentPoint32W(reinterpret_cast<::HDC>(dc), wide.c_str(), static_cast<int>(wide.size()), &extent);
  if (ok) *size = {static_cast<int32_t>(extent.cx), static_cast<int32_t>(extent.cy)};
  return ok;
}

BOOL ExtTextOutA(HDC dc, int x, int y, unsigned options, const RECT* rect, const char* text, unsigned count,
                 const int* dx) {
  if (text == nullptr && count > 0) return FALSE;
  const int bytes = static_cast<int>(count);
  const std::wstring wide = win32::WideFromUtf8(text, bytes);
  const std::vector<INT> advances = dx != nullptr ? win32::WideAdvances(text, bytes, dx) : std::vector<INT>{};
  ::RECT area{};
  if (rect != nullptr) area = {rect->left, rect->top, rect->right, rect->bottom};
  return ::ExtTextOutW(reinterpret_cast<::HDC>(dc), x, y, options, rect != nullptr ? &area : nullptr, wide.c_str(),
                       static_cast<UINT>(wide.size()), dx != nullptr ? advances.data() : nullptr);
}

COLORREF SetTextColor(HDC dc, COLORREF color) { return ::SetTextColor(reinterpret_cast<::HDC>(dc), color); }

}  // namespace vorlex::gdi
