#pragma once
// Numbers as text, both ways, with Basic's rules.

#include <optional>
#include <string>
#include <string_view>

namespace vorlex {

// The number a string holds, as conversions read it: surrounding spaces, a
// sign, digits with a decimal point and an exponent (E or D), or &H / &O
// literals (16-bit when they fit, else 32-bit, both signed). An out-of-range
// decimal gives infinity; text that is no number gives nothing.
std::optional<double> ParseNumericText(std::string_view text);

// Basic's Val: the number at the start of a text, 0 when there is none. Blanks,
// tabs and line feeds anywhere are skipped; reading stops at the first
// character that cannot continue the number ("12 kg" gives 12, "1e3x" 1000,
// "&H1F" 31, "abc" 0).
double LeadingNumericValue(std::string_view text);

std::string_view TrimSpaces(std::string_view text);
bool EqualsIgnoringCase(std::string_view a, std::string_view b);

}  // namespace vorlex
