#include "platform/win32/wide_text.h"

#include <algorithm>
#include <cstring>

namespace vorlex::gdi::win32 {
namespace {

// The length of the UTF-8 sequence a lead byte starts (1 for a stray byte).
int SequenceLength(unsigned char lead) {
  if (lead >= 0xF0 && lead < 0xF8) return 4;
  if (lead >= 0xE0) return lead < 0xF0 ? 3 : 1;
  if (lead >= 0xC0) return 2;
  return 1;
}

}  // namespace

std::wstring WideFromUtf8(const char* text, int bytes) {
  if (text == nullptr || bytes <= 0) return {};
  const int units = ::MultiByteToWideChar(CP_UTF8, 0, text, bytes, nullptr, 0);
  if (units <= 0) return {};
  std::wstring wide(static_cast<size_t>(units), L'\0');
  ::MultiByteToWideChar(CP_UTF8, 0, text, bytes, wide.data(), units);
  return wide;
}

std::vector<INT> WideAdvances(const char* text, int bytes, const int* dx) {
  std::vector<INT> advances;
  int at = 0;
  while (at < bytes) {
    const int length = std::min(SequenceLength(static_cast<unsigned char>(text[at])), bytes - at);
    const std::wstring units = WideFromUtf8(text + at, length);
    INT sum = 0;
    for (int i = 0; i < length; ++i) sum += dx[at + i];
    for (size_t unit = 0; unit < units.size(); ++unit) advances.push_back(unit == 0 ? sum : 0);
    at += length;
  }
  return advances;
}

::LOGFONTW WideLogFont(const LOGFONTA& font) {
  ::LOGFONTW wide{};
  wide.lfHeight = font.lfHeight;
  wide.lfWidth = font.lfWidth;
  wide.lfEscapement = font.lfEscapement;
  wide.lfOrientation = font.lfOrientation;
  wide.lfWeight = font.lfWeight;
  wide.lfItalic = font.lfItalic;
  wide.lfUnderline = font.lfUnderline;
  wide.lfStrikeOut = font.lfStrikeOut;
  wide.lfCharSet = font.lfCharSet;
  wide.lfOutPrecision = font.lfOutPrecision;
  wide.lfClipPrecision = font.lfClipPrecision;
  wide.lfQuality = font.lfQuality;
  wide.lfPitchAndFamily = font.lfPitchAndFamily;
  const int bytes = static_cast<int>(strnlen(font.lfFaceName, sizeof font.lfFaceName));
  const std::wstring name = WideFromUtf8(font.lfFaceName, bytes).substr(0, LF_FACESIZE - 1);
  std::memcpy(wide.lfFaceName, name.c_str(), (name.size() + 1) * sizeof(WCHAR));
  return wide;
}

}  // namespace vorlex::gdi::win32
