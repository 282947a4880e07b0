#pragma once
// What modGradient's PaintObjectGradient paints into a context of a size, the
// reference a preview box is compared with. Apart from the Windows headers,
// which the library's GDI declarations do not mix with.

#include <cstdint>

namespace vorlex::activex::test {

void PaintReferenceGradient(uintptr_t hdc, int width, int height, int16_t style, int16_t granularity, uint32_t color,
                            uint32_t colorEnd);

}  // namespace vorlex::activex::test
