#pragma once
// Number literals in Basic syntax: decimal integers and reals, &H hexadecimal
// and &O octal, with Basic's typing of each form.

#include <cstddef>
#include <string_view>

#include "vorlex/Variant.h"

namespace vorlex::cli {

// Whether text begins with a number literal: a digit, a period before a digit,
// or an ampersand before a letter (&H, &O).
bool StartsNumber(std::string_view text);

// The length of the number literal text begins with. Letters and digits that run
// on from it count as part of it, so that "12abc" or "&HFFZ" is read whole and
// rejected by NumberValue rather than split in two.
std::size_t NumberLength(std::string_view text);

// The value of one whole literal, negated when a minus sign preceded it.
//   decimal integer: Integer if it fits 16 bits, else Long if it fits 32, else Double
//   real (1.5, .5, 1e3): Double
//   &H / &O: Integer (signed 16-bit) up to &HFFFF, else Long (signed 32-bit) up to
//            &HFFFFFFFF; a trailing & makes it a Long, a trailing % an Integer
//   suffixes on decimals: % Integer, & Long, ! Single, # Double
// Throws SyntaxError for a malformed literal or one too large for its type.
Variant NumberValue(std::string_view literal, bool negative);

}  // namespace vorlex::cli
