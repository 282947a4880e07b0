#pragma once
// Text is UTF-8 inside the control and UTF-16 at the Windows calls: the two
// conversions, in one place.

#include <string>
#include <string_view>

namespace vorlex::activex {

std::wstring ToWide(std::string_view utf8);
std::string ToUtf8(std::wstring_view wide);

}  // namespace vorlex::activex
