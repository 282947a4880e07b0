#pragma once
// Windows code page 1252, which the Windows bitmap fonts are indexed by.

namespace vorlex::gdi::soft::text {

// The code page 1252 byte of a UTF-16 unit, or the unit itself when the code
// page has no byte for it (the font then draws its default character).
unsigned Cp1252Code(char16_t c);

}  // namespace vorlex::gdi::soft::text
