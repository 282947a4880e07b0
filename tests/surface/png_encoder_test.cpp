// PNG files of our own encoder, read back field by field and through the
// platform's PNG decoder (libpng, or the Windows Imaging Component).

#include "surface/png_encoder.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "picture/byte_view.h"
#include "picture/png_decoder.h"
#include "surface/png_checksums.h"

using namespace vorlex;

namespace {

using Bytes = std::vector<uint8_t>;

uint32_t U32At(const Bytes& bytes, size_t at) {
  return (uint32_t{bytes[at]} << 24) | (uint32_t{bytes[at + 1]} << 16) | (uint32_t{bytes[at + 2]} << 8) |
         uint32_t{bytes[at + 3]};
}

struct Chunk {
  std::string type;
  Bytes data;
  uint32_t crc = 0;          // as stored
  uint32_t computedCrc = 0;  // over type and data
};

// The chunks after the signature; stops at the end of the bytes.
std::vector<Chunk> ChunksOf(const Bytes& file) {
  std::vector<Chunk> chunks;
  size_t at = 8;
  while (at + 12 <= file.size()) {
    const uint32_t length = U32At(file, at);
    if (at + 12 + length > file.size()) break;
    Chunk chunk;
    chunk.type.assign(file.begin() + static_cast<std::ptrdiff_t>(at + 4),
                      file.begin() + static_cast<std::ptrdiff_t>(at + 8));
    chunk.data.assign(file.begin() + static_cast<std::ptrdiff_t>(at + 8),
                      file.begin() + static_cast<std::ptrdiff_t>(at + 8 + length));
    chunk.crc = U32At(file, at + 8 + length);
    chunk.computedCrc = Crc32(file.data() + at + 4, 4 + length);
    chunks.push_back(chunk);
    at += 12 + length;
  }
  return chunks;
}

struct Stored {
  Bytes data;
  std::vector<size_t> blockSizes;
  bool wellFormed = false;
};

// The data of a zlib stream made of stored deflate blocks only.
Stored UnstoredZlib(const Bytes& stream) {
  Stored out;
  if (stream.size() < 6 || stream[0] != 0x78 || ((stream[0] << 8) | stream[1]) % 31 != 0) return out;
  size_t at = 2;
  bool last = false;
  while (!last) {
    if (at + 5 > stream.size() || (stream[at] & 0x06) != 0) return out;  // BTYPE must be 00
    last = (stream[at] & 1) != 0;
    const size_t length = stream[at + 1] | (size_t{stream[at + 2]} << 8);
    const size_t complement = stream[at + 3] | (size_t{stream[at + 4]} << 8);
    if ((length ^ complement) != 0xFFFF || at + 5 + length > stream.size()) return out;
    out.data.insert(out.data.end(), stream.begin() + static_cast<std::ptrdiff_t>(at + 5),
                    stream.begin() + static_cast<std::ptrdiff_t>(at + 5 + length));
    out.blockSizes.push_back(length);
    at += 5 + length;
  }
  if (at + 4 != stream.size()) return out;
  out.wellFormed = U32At(stream, at) == Adler32(out.data.data(), out.data.size());
  return out;
}

gdi::Pixels Pattern(int width, int height) {
  gdi::Pixels p;
  p.width = width;
  p.height = height;
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      p.argb.push_back((static_cast<uint32_t>(x * 7) & 0xFF) << 16 | (static_cast<uint32_t>(y * 13) & 0xFF) << 8 |
                       static_cast<uint32_t>((x ^ y) & 0xFF));
    }
  }
  return p;
}

}  // namespace

TEST(PngEncoder, StartsWithTheSignatureAndHasHeaderDataAndEndChunks) {
  const Bytes file = EncodePng(Pattern(3, 2));
  ASSERT_GE(file.size(), 8u);
  EXPECT_EQ(Bytes(file.begin(), file.begin() + 8), (Bytes{0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'}));
  const std::vector<Chunk> chunks = ChunksOf(file);
  ASSERT_EQ(chunks.size(), 3u);
  EXPECT_EQ(chunks[0].type, "IHDR");
  EXPECT_EQ(chunks[1].type, "IDAT");
  EXPECT_EQ(chunks[2].type, "IEND");
  EXPECT_TRUE(chunks[2].data.empty());
  // Nothing after the end chunk.
  size_t total = 8;
  for (const Chunk& chunk : chunks) total += 12 + chunk.data.size();
  EXPECT_EQ(total, file.size());
}

TEST(PngEncoder, EveryChunkCarriesTheCrcOfItsTypeAndData) {
  const std::vector<Chunk> chunks = ChunksOf(EncodePng(Pattern(5, 4)));
  ASSERT_EQ(chunks.size(), 3u);
  for (const Chunk& chunk : chunks) EXPECT_EQ(chunk.crc, chunk.computedCrc) << chunk.type;
  EXPECT_EQ(chunks[2].crc, 0xAE426082u);
}

TEST(PngEncoder, HeaderIsEightBitRgbWithoutInterlace) {
  const std::vector<Chunk> chunks = ChunksOf(EncodePng(Pattern(300, 2)));
  ASSERT_FALSE(chunks.empty());
  const Bytes& header = chunks[0].data;
  ASSERT_EQ(header.size(), 13u);
  EXPECT_EQ(U32At(header, 0), 300u);
  EXPECT_EQ(U32At(header, 4), 2u);
  EXPECT_EQ(Bytes(header.begin() + 8, header.end()), (Bytes{8, 2, 0, 0, 0}));
}

TEST(PngEncoder, ImageDataIsUnfilteredRgbRowsInStoredBlocks) {
  const gdi::Pixels pixels = Pattern(3, 2);
  const std::vector<Chunk> chunks = ChunksOf(EncodePng(pixels));
  ASSERT_EQ(chunks.size(), 3u);
  const Stored stored = UnstoredZlib(chunks[1].data);
  ASSERT_TRUE(stored.wellFormed);
  Bytes expected;
  for (int y = 0; y < 2; ++y) {
    expected.push_back(0);
    for (int x = 0; x < 3; ++x) {
      const uint32_t p = pixels.At(x, y);
      expected.insert(expected.end(),
                      {static_cast<uint8_t>(p >> 16), static_cast<uint8_t>(p >> 8), static_cast<uint8_t>(p)});
    }
  }
  EXPECT_EQ(stored.data, expected);
}

// 200 x 150 pixels are 90150 bytes of rows: a full block of 65535 and the rest.
TEST(PngEncoder, LargeImagesSpanSeveralBlocks) {
  const std::vector<Chunk> chunks = ChunksOf(EncodePng(Pattern(200, 150)));
  ASSERT_EQ(chunks.size(), 3u);
  const Stored stored = UnstoredZlib(chunks[1].data);
  ASSERT_TRUE(stored.wellFormed);
  EXPECT_EQ(stored.blockSizes, (std::vector<size_t>{65535, 90150 - 65535}));
}

TEST(PngEncoder, ThePlatformsDecoderReadsThePixelsBack) {
  for (const auto& [width, height] : {std::pair{1, 1}, std::pair{3, 2}, std::pair{200, 150}}) {
    const gdi::Pixels pixels = Pattern(width, height);
    const Bytes file = EncodePng(pixels);
    const picture::Image image = picture::DecodePng(picture::ByteView(file.data(), file.size()));
    EXPECT_EQ(image.width, width);
    EXPECT_EQ(image.height, height);
    EXPECT_EQ(image.pixels, pixels.argb) << width << " x " << height;
    EXPECT_FALSE(image.HasTransparency());
  }
}
