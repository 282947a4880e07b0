#include "compose/live_text.h"

#include <cstdlib>
#include <functional>
#include <map>

#include "compose/disk_info.h"
#include "control/block_definition.h"
#include "control/utf8.h"
#include "vorlex/Numeric.h"
#include "vorlex/Variant.h"

namespace vorlex {

namespace {

constexpr char32_t kDelimiter = U'!';
constexpr char32_t kSeparator = U':';

// Basic's InStr on characters: the 1-based position of c at or after `from`, 0 when absent.
size_t Find(const std::u32string& text, char32_t c, size_t from) {
  if (from < 1) from = 1;
  if (from > text.size()) return 0;
  const size_t at = text.find(c, from - 1);
  return at == std::u32string::npos ? 0 : at + 1;
}

std::u32string Mid(const std::u32string& text, size_t start, size_t length) {
  if (start < 1 || start > text.size()) return {};
  return text.substr(start - 1, length);
}

std::string LowerAscii(std::u32string name) {
  for (char32_t& c : name) {
    if (c >= U'A' && c <= U'Z') c = c - U'A' + U'a';
  }
  return EncodeUtf8(name);
}

std::string RatioText(float ratio) { return FormatNumber(ratio) + " %"; }

enum class Resize { None, Horizontal, Vertical };

void ResizeBlock(LiveTextContext& c, Resize how, float ratio) {
  if (how == Resize::Horizontal) {
    c.block.BarLeft = 0;
    c.block.BarRight = ToInteger(std::abs(static_cast<double>(c.hRange)) * ratio / 100);
  } else if (how == Resize::Vertical) {
    c.block.BarTop = ToInteger(std::abs(static_cast<double>(c.vRange)) * ratio / 100);
    c.block.BarBottom = 0;
  }
}

using Replacer = std::function<std::string(LiveTextContext&, const std::string& drive)>;

Replacer Date(NamedFormat format) {
  return [format](LiveTextContext& c, const std::string&) { return c.clock.Format(c.clock.Now(), format); };
}

// A ratio token; the resizing ones query the disk once for the size and once more for the text.
Replacer Ratio(bool used, Resize resize) {
  return [used, resize](LiveTextContext& c, const std::string& drive) {
    auto ratio = [&] {
      return used ? modDiskInfo::DiskRatioUsed(c.disks, drive) : modDiskInfo::DiskRatioFree(c.disks, drive);
    };
    if (resize != Resize::None) ResizeBlock(c, resize, ratio());
    return RatioText(ratio());
  };
}

const std::map<std::string, Replacer>& Tokens() {
  static const std::map<std::string, Replacer> tokens = {
      {"short time", Date(NamedFormat::ShortTime)},
      {"medium time", Date(NamedFormat::MediumTime)},
      {"long time", Date(NamedFormat::LongTime)},
      {"general date", Date(NamedFormat::GeneralDate)},
      {"short date", Date(NamedFormat::ShortDate)},
      {"medium date", Date(NamedFormat::MediumDate)},
      {"long date", Date(NamedFormat::LongDate)},
      {"h%", [](LiveTextContext& c, const std::string&) { return c.block.HPercentage + " %"; }},
      {"v%", [](LiveTextContext& c, const std::string&) { return c.block.VPercentage + " %"; }},
      {"disk free:",
       [](LiveTextContext& c, const std::string& d) { return modDiskInfo::DiskFree(c.disks, c.clock, d); }},
      {"disk used:",
       [](LiveTextContext& c, const std::string& d) { return modDiskInfo::DiskUsed(c.disks, c.clock, d); }},
      {"disk total:",
       [](LiveTextContext& c, const std::string& d) { return modDiskInfo::DiskTotal(c.disks, c.clock, d); }},
      {"ratio free:", Ratio(false, Resize::None)},
      {"ratio used:", Ratio(true, Resize::None)},
      {"show vertical ratio free:", Ratio(false, Resize::Vertical)},
      {"show vertical ratio used:", Ratio(true, Resize::Vertical)},
      {"show horizontal ratio free:", Ratio(false, Resize::Horizontal)},
      {"show horizontal ratio used:", Ratio(true, Resize::Horizontal)},
  };
  return tokens;
}

// The token between p1 and p2: its name as compared and its one-character argument.
struct Token {
  std::string name;
  std::string argument;
};

Token ReadToken(const std::u32string& t, size_t p1, size_t p2) {
  const size_t pc = Find(t, kSeparator, p1 + 1);
  Token token;
  if (pc > p1 && pc + 1 < p2) {
    token.name = LowerAscii(Mid(t, p1 + 1, pc - p1 - 1)) + ":";
  } else {
    token.name = LowerAscii(Mid(t, p1 + 1, p2 - p1 - 1));
  }
  // Without a colon of its own the argument is whatever follows the next colon,
  // or, with none after p1 at all, the text's first character.
  token.argument = EncodeUtf8(Mid(t, pc + 1, 1));
  return token;
}

}  // namespace

std::string ExpandLiveText(const std::string& text, LiveTextContext& context) {
  // Most texts have no token: the byte test spares decoding them on every redraw
  // (the delimiter is ASCII, never part of a longer UTF-8 sequence).
  if (text.find(static_cast<char>(kDelimiter)) == std::string::npos) return text;
  std::u32string t = DecodeUtf8(text);
  size_t p1 = Find(t, kDelimiter, 1);
  size_t p2 = p1 ? Find(t, kDelimiter, p1 + 1) : 0;
  // Only a first pair with something between it starts the expansion.
  if (p1 < 1 || p2 <= p1 + 1) return text;
  const auto& tokens = Tokens();
  while (p1 != 0 && p2 != 0) {
    const Token token = ReadToken(t, p1, p2);
    const auto found = tokens.find(token.name);
    const std::u32string replacement =
        found == tokens.end() ? std::u32string() : DecodeUtf8(found->second(context, token.argument));
    t = t.substr(0, p1 - 1) + replacement + t.substr(p2);
    // The scan resumes one character past the replacement, skipping the
    // character that followed the closing delimiter.
    p1 = Find(t, kDelimiter, p1 + replacement.size() + 1);
    p2 = p1 ? Find(t, kDelimiter, p1 + 1) : 0;
  }
  return EncodeUtf8(t);
}

}  // namespace vorlex
