#include "platform/soft/text/code_page.h"

#include <array>

namespace vorlex::gdi::soft::text {
namespace {

// Bytes 0x80..0x9F; 0 where the code page leaves the byte undefined.
constexpr std::array<char16_t, 32> kHighControls = {0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,
                                                    0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

}  // namespace

unsigned Cp1252Code(char16_t c) {
  if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) return c;
  for (unsigned i = 0; i < kHighControls.size(); ++i) {
    if (kHighControls[i] == c) return 0x80 + i;
  }
  return c;
}

}  // namespace vorlex::gdi::soft::text
