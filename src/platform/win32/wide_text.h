#pragma once
// The seam's UTF-8 strings and logical fonts as the wide-character gdi32
// functions take them.
#include "platform/gdi.h"
// After the seam: <windows.h> defines macros with the names the seam declares.
#define WIN32_LEAN_AND_MEAN
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#include <string>
#include <vector>

namespace vorlex::gdi::win32 {

// `bytes` bytes of UTF-8 as UTF-16; an invalid sequence becomes U+FFFD.
std::wstring WideFromUtf8(const char* text, int bytes);

// Per-byte advances (ExtTextOutA's dx) as per-UTF-16-unit advances: a
// character takes the sum of its bytes' entries; the second unit of a
// surrogate pair takes 0.
std::vector<INT> WideAdvances(const char* text, int bytes, const int* dx);

// The same font with its face name in UTF-16, cut to what LOGFONTW holds.
::LOGFONTW WideLogFont(const LOGFONTA& font);

}  // namespace vorlex::gdi::win32
