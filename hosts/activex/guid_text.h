#pragma once
// A GUID from its registry text ("6E51D0BF-4086-4A2C-BAF1-3EE71E0CB742") at
// compile time, so that a class's identity is written once.

#include <string_view>

#include "com_includes.h"

namespace vorlex::activex {

constexpr unsigned HexDigit(char c) {
  return c >= '0' && c <= '9'   ? static_cast<unsigned>(c - '0')
         : c >= 'a' && c <= 'f' ? static_cast<unsigned>(c - 'a' + 10)
         : c >= 'A' && c <= 'F' ? static_cast<unsigned>(c - 'A' + 10)
                                : throw "not a hexadecimal digit";
}

constexpr unsigned long long HexValue(std::string_view text, size_t first, size_t count) {
  unsigned long long value = 0;
  for (size_t i = first; i < first + count; ++i) value = value * 16 + HexDigit(text[i]);
  return value;
}

constexpr GUID GuidFromText(std::string_view text) {
  if (text.size() != 36) throw "a GUID's text has 36 characters";
  GUID guid{};
  guid.Data1 = static_cast<unsigned long>(HexValue(text, 0, 8));
  guid.Data2 = static_cast<unsigned short>(HexValue(text, 9, 4));
  guid.Data3 = static_cast<unsigned short>(HexValue(text, 14, 4));
  guid.Data4[0] = static_cast<unsigned char>(HexValue(text, 19, 2));
  guid.Data4[1] = static_cast<unsigned char>(HexValue(text, 21, 2));
  for (size_t i = 0; i < 6; ++i) guid.Data4[2 + i] = static_cast<unsigned char>(HexValue(text, 24 + 2 * i, 2));
  return guid;
}

}  // namespace vorlex::activex
