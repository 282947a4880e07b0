#include "writers/jpeg_writer.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

namespace vorlex::picture_test {

namespace {

// The DC table of the JPEG standard's luminance example: code lengths of
// categories 0 to 11.
constexpr std::array<uint8_t, 16> kDcCounts = {0, 1, 5, 1, 1, 1, 1, 1, 1, 0, 0, 0, 0, 0, 0, 0};
// An AC table of two symbols: end of block (0x00) as "00" and a zero run (0xF0) as "01".
constexpr std::array<uint8_t, 16> kAcCounts = {0, 2, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0};

struct Code {
  uint32_t bits;
  int length;
};

// Canonical Huffman codes of the DC categories, in symbol order 0..11.
std::array<Code, 12> DcCodes() {
  std::array<Code, 12> codes{};
  uint32_t code = 0;
  size_t symbol = 0;
  for (int length = 1; length <= 16; ++length) {
    for (int i = 0; i < kDcCounts[static_cast<size_t>(length - 1)]; ++i) codes[symbol++] = {code++, length};
    code <<= 1;
  }
  return codes;
}

class BitWriter {
 public:
  explicit BitWriter(Bytes& out) : out_(out) {}
  void Put(uint32_t bits, int length) {
    for (int i = length - 1; i >= 0; --i) {
      current_ = static_cast<uint8_t>((current_ << 1) | ((bits >> i) & 1));
      if (++used_ == 8) Flush();
    }
  }
  void Finish() {
    while (used_ != 0) Put(1, 1);
  }

 private:
  void Flush() {
    out_.push_back(current_);
    if (current_ == 0xFF) out_.push_back(0);  // byte stuffing
    current_ = 0;
    used_ = 0;
  }
  Bytes& out_;
  uint8_t current_ = 0;
  int used_ = 0;
};

void PutSegment(Bytes& out, uint8_t marker, const Bytes& body) {
  out.push_back(0xFF);
  out.push_back(marker);
  PutU8(out, static_cast<uint32_t>((body.size() + 2) >> 8));
  PutU8(out, static_cast<uint32_t>(body.size() + 2));
  Append(out, body);
}

Bytes HuffmanTables() {
  Bytes body{0x00};  // DC table 0
  body.insert(body.end(), kDcCounts.begin(), kDcCounts.end());
  for (uint8_t v = 0; v < 12; ++v) body.push_back(v);
  body.push_back(0x10);  // AC table 0
  body.insert(body.end(), kAcCounts.begin(), kAcCounts.end());
  body.insert(body.end(), {0x00, 0xF0});
  return body;
}

Bytes FrameHeader(int width, int height) {
  Bytes body{8};
  PutU8(body, static_cast<uint32_t>(height) >> 8);
  PutU8(body, static_cast<uint32_t>(height));
  PutU8(body, static_cast<uint32_t>(width) >> 8);
  PutU8(body, static_cast<uint32_t>(width));
  body.push_back(3);
  for (uint8_t id = 1; id <= 3; ++id) body.insert(body.end(), {id, 0x11, 0});
  return body;
}

// Y, Cb, Cr of a colour, each 0..255.
std::array<int, 3> YCbCr(uint32_t rgb) {
  const double r = (rgb >> 16) & 0xFF;
  const double g = (rgb >> 8) & 0xFF;
  const double b = rgb & 0xFF;
  const double c[3] = {0.299 * r + 0.587 * g + 0.114 * b, -0.168736 * r - 0.331264 * g + 0.5 * b + 128,
                       0.5 * r - 0.418688 * g - 0.081312 * b + 128};
  std::array<int, 3> out{};
  for (size_t i = 0; i < 3; ++i) out[i] = std::min(255, std::max(0, static_cast<int>(std::lround(c[i]))));
  return out;
}

// A DC difference: its category's code, then its magnitude bits.
void PutDc(BitWriter& writer, const std::array<Code, 12>& codes, int diff) {
  const int magnitude = std::abs(diff);
  int category = 0;
  while ((1 << category) <= magnitude) ++category;
  writer.Put(codes[static_cast<size_t>(category)].bits, codes[static_cast<size_t>(category)].length);
  const int bits = diff >= 0 ? diff : diff + (1 << category) - 1;
  if (category > 0) writer.Put(static_cast<uint32_t>(bits), category);
}

}  // namespace

Bytes FlatBlockJpeg(int width, int height, const std::vector<uint32_t>& blockColours) {
  Bytes out{0xFF, 0xD8};
  Bytes quant{0x00};
  quant.insert(quant.end(), 64, 1);
  PutSegment(out, 0xDB, quant);
  PutSegment(out, 0xC0, FrameHeader(width, height));
  PutSegment(out, 0xC4, HuffmanTables());
  PutSegment(out, 0xDA, {3, 1, 0x00, 2, 0x00, 3, 0x00, 0, 63, 0});
  const std::array<Code, 12> codes = DcCodes();
  BitWriter writer(out);
  std::array<int, 3> previous{};
  for (uint32_t colour : blockColours) {
    const std::array<int, 3> components = YCbCr(colour);
    for (size_t c = 0; c < 3; ++c) {
      const int dc = 8 * (components[c] - 128);
      PutDc(writer, codes, dc - previous[c]);
      previous[c] = dc;
      writer.Put(0, 2);  // end of block
    }
  }
  writer.Finish();
  out.insert(out.end(), {0xFF, 0xD9});
  return out;
}

}  // namespace vorlex::picture_test
