// The checksums of PNG files: CRC-32 and Adler-32, against their published
// check values and a direct computation.

#include "surface/png_checksums.h"

#include <gtest/gtest.h>

#include <string_view>
#include <vector>

using namespace vorlex;

namespace {

const uint8_t* BytesOf(std::string_view text) { return reinterpret_cast<const uint8_t*>(text.data()); }

// Adler-32 straight from its definition, the modulus taken at every byte.
uint32_t DirectAdler32(const std::vector<uint8_t>& data) {
  uint32_t a = 1;
  uint32_t b = 0;
  for (uint8_t byte : data) {
    a = (a + byte) % 65521;
    b = (b + a) % 65521;
  }
  return (b << 16) | a;
}

}  // namespace

TEST(PngChecksums, Crc32OfTheCheckString) { EXPECT_EQ(Crc32(BytesOf("123456789"), 9), 0xCBF43926u); }

TEST(PngChecksums, Crc32OfTheEndChunksTypeIsTheOneEveryPngEndsWith) {
  EXPECT_EQ(Crc32(BytesOf("IEND"), 4), 0xAE426082u);
}

TEST(PngChecksums, Crc32OfNothingIsZero) { EXPECT_EQ(Crc32(nullptr, 0), 0u); }

TEST(PngChecksums, Crc32RunsOnAcrossCalls) {
  const std::string_view text = "The quick brown fox jumps over the lazy dog";
  EXPECT_EQ(Crc32(BytesOf(text), text.size()), 0x414FA339u);
  EXPECT_EQ(Crc32(BytesOf(text.substr(10)), text.size() - 10, Crc32(BytesOf(text), 10)), 0x414FA339u);
}

TEST(PngChecksums, Adler32OfAKnownText) { EXPECT_EQ(Adler32(BytesOf("Wikipedia"), 9), 0x11E60398u); }

TEST(PngChecksums, Adler32OfNothingIsOne) { EXPECT_EQ(Adler32(nullptr, 0), 1u); }

// Long runs of high bytes are where deferred reduction could overflow.
TEST(PngChecksums, Adler32OfLongDataMatchesTheDefinition) {
  for (size_t size : {5551u, 5552u, 5553u, 100000u}) {
    const std::vector<uint8_t> data(size, 0xFF);
    EXPECT_EQ(Adler32(data.data(), data.size()), DirectAdler32(data)) << size;
  }
  std::vector<uint8_t> mixed(70001);
  for (size_t i = 0; i < mixed.size(); ++i) mixed[i] = static_cast<uint8_t>(i * 131 + 7);
  EXPECT_EQ(Adler32(mixed.data(), mixed.size()), DirectAdler32(mixed));
}

TEST(PngChecksums, Adler32RunsOnAcrossCalls) {
  std::vector<uint8_t> data(20000);
  for (size_t i = 0; i < data.size(); ++i) data[i] = static_cast<uint8_t>(i ^ (i >> 7));
  const uint32_t first = Adler32(data.data(), 7000);
  EXPECT_EQ(Adler32(data.data() + 7000, data.size() - 7000, first), Adler32(data.data(), data.size()));
}
