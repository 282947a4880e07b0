#pragma once
// Text is UTF-8 inside; where behaviour counts characters, it works on code points.

#include <string>
#include <string_view>

namespace vorlex {

// Invalid bytes decode as U+FFFD each.
std::u32string DecodeUtf8(std::string_view text);
std::string EncodeUtf8(std::u32string_view text);

}  // namespace vorlex
