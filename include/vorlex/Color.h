#pragma once
// Colours: 0x00BBGGRR, or a system colour reference with the high bit set.

#include <cstdint>

namespace vorlex {

using OLE_COLOR = uint32_t;

inline constexpr OLE_COLOR kWhite = 0xFFFFFF;
inline constexpr OLE_COLOR kLightGrey = 0xC0C0C0;
inline constexpr OLE_COLOR kDarkGrey = 0x808080;
inline constexpr OLE_COLOR kBlack = 0x000000;

constexpr bool IsSystemColor(OLE_COLOR c) { return (c & 0x80000000u) != 0; }

}  // namespace vorlex
