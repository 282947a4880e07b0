#include "control/utf8.h"

namespace vorlex {

namespace {
constexpr char32_t kReplacement = 0xFFFD;

// Length of the sequence a lead byte starts, 0 for a byte that cannot lead.
size_t SequenceLength(unsigned char lead) {
  if (lead < 0x80) return 1;
  if (lead >= 0xC2 && lead <= 0xDF) return 2;
  if (lead >= 0xE0 && lead <= 0xEF) return 3;
  if (lead >= 0xF0 && lead <= 0xF4) return 4;
  return 0;
}

bool DecodeOne(std::string_view text, size_t at, size_t length, char32_t& out) {
  if (at + length > text.size()) return false;
  char32_t cp = static_cast<unsigned char>(text[at]) & (0x7F >> length);
  for (size_t i = 1; i < length; ++i) {
    const auto c = static_cast<unsigned char>(text[at + i]);
    if ((c & 0xC0) != 0x80) return false;
    cp = (cp << 6) | (c & 0x3F);
  }
  static constexpr char32_t kMinimum[] = {0, 0, 0x80, 0x800, 0x10000};
  if (cp < kMinimum[length] || cp > 0x10FFFF || (cp >= 0xD800 && cp <= 0xDFFF)) return false;
  out = cp;
  return true;
}
}  // namespace

std::u32string DecodeUtf8(std::string_view text) {
  std::u32string out;
  out.reserve(text.size());
  for (size_t at = 0; at < text.size();) {
    const size_t length = SequenceLength(static_cast<unsigned char>(text[at]));
    char32_t cp = kReplacement;
    if (length == 1) {
      cp = static_cast<unsigned char>(text[at]);
    } else if (length == 0 || !DecodeOne(text, at, length, cp)) {
      cp = kReplacement;
      out.push_back(cp);
      ++at;
      continue;
    }
    out.push_back(cp);
    at += length;
  }
  return out;
}

std::string EncodeUtf8(std::u32string_view text) {
  std::string out;
  out.reserve(text.size());
  for (char32_t cp : text) {
    if (cp > 0x10FFFF || (cp >= 0xD800 && cp <= 0xDFFF)) cp = kReplacement;
    if (cp < 0x80) {
      out += static_cast<char>(cp);
    } else if (cp < 0x800) {
      out += static_cast<char>(0xC0 | (cp >> 6));
      out += static_cast<char>(0x80 | (cp & 0x3F));
    } else if (cp < 0x10000) {
      out += static_cast<char>(0xE0 | (cp >> 12));
      out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
      out += static_cast<char>(0x80 | (cp & 0x3F));
    } else {
      out += static_cast<char>(0xF0 | (cp >> 18));
      out += static_cast<char>(0x80 | ((cp >> 12) & 0x3F));
      out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
      out += static_cast<char>(0x80 | (cp & 0x3F));
    }
  }
  return out;
}

}  // namespace vorlex
