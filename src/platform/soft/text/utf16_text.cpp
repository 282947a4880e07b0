#include "platform/soft/text/utf16_text.h"

namespace vorlex::gdi::soft::text {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

struct Sequence {
  size_t length = 1;             // bytes taken
  char32_t code = kReplacement;  // the character, or U+FFFD
};

bool IsContinuation(unsigned char byte) { return (byte & 0xC0) == 0x80; }

// The smallest code point a sequence of each length may encode (no overlong
// forms).
constexpr char32_t kMinimum[5] = {0, 0, 0x80, 0x800, 0x10000};

// The length of the sequence a lead byte starts; 0 for a byte no sequence
// starts with.
size_t LengthOf(unsigned char lead) {
  if (lead < 0x80) return 1;
  if (lead >= 0xC2 && lead <= 0xDF) return 2;
  if (lead >= 0xE0 && lead <= 0xEF) return 3;
  if (lead >= 0xF0 && lead <= 0xF4) return 4;
  return 0;
}

// One character from the start of s; an invalid lead byte or an incomplete
// sequence is replaced as a whole by U+FFFD.
Sequence Decode(const unsigned char* s, size_t left) {
  const size_t length = LengthOf(s[0]);
  if (length == 0) return {};
  if (length == 1) return {1, s[0]};
  char32_t code = s[0] & (0x7F >> length);
  size_t taken = 1;
  for (; taken < length && taken < left && IsContinuation(s[taken]); ++taken) code = (code << 6) | (s[taken] & 0x3F);
  if (taken < length) return {taken, kReplacement};
  const bool surrogate = code >= 0xD800 && code <= 0xDFFF;
  if (code < kMinimum[length] || code > 0x10FFFF || surrogate) return {length, kReplacement};
  return {length, code};
}

// The UTF-16 units of one character.
size_t AppendUnits(std::u16string& out, char32_t code) {
  if (code < 0x10000) {
    out.push_back(static_cast<char16_t>(code));
    return 1;
  }
  const char32_t offset = code - 0x10000;
  out.push_back(static_cast<char16_t>(0xD800 + (offset >> 10)));
  out.push_back(static_cast<char16_t>(0xDC00 + (offset & 0x3FF)));
  return 2;
}

}  // namespace

std::u16string Utf16FromUtf8(const char* text, size_t bytes) {
  std::u16string units;
  const auto* s = reinterpret_cast<const unsigned char*>(text);
  for (size_t at = 0; at < bytes;) {
    const Sequence next = Decode(s + at, bytes - at);
    AppendUnits(units, next.code);
    at += next.length;
  }
  return units;
}

std::vector<int> UnitAdvances(const char* text, size_t bytes, const int* dx) {
  std::vector<int> advances;
  std::u16string scratch;
  const auto* s = reinterpret_cast<const unsigned char*>(text);
  for (size_t at = 0; at < bytes;) {
    const Sequence next = Decode(s + at, bytes - at);
    int sum = 0;
    for (size_t i = 0; i < next.length; ++i) sum += dx[at + i];
    const size_t units = AppendUnits(scratch, next.code);
    advances.push_back(sum);
    if (units == 2) advances.push_back(0);
    at += next.length;
  }
  return advances;
}

}  // namespace vorlex::gdi::soft::text
