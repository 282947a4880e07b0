#pragma once
// The seam's UTF-8 strings as the UTF-16 code units GDI draws: one unit per
// character of the Basic Multilingual Plane, two (a surrogate pair) for the
// others, U+FFFD for each sequence that is not valid UTF-8.

#include <cstddef>
#include <string>
#include <vector>

namespace vorlex::gdi::soft::text {

std::u16string Utf16FromUtf8(const char* text, size_t bytes);

// ExtTextOutA's per-byte advances as per-unit advances: a character takes the
// sum of its bytes' entries; the second unit of a surrogate pair takes 0.
std::vector<int> UnitAdvances(const char* text, size_t bytes, const int* dx);

}  // namespace vorlex::gdi::soft::text
