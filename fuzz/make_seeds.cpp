// Writes the seed corpus of every fuzz target: small valid pictures of each
// kind, made by the tests' picture writers.
//   fuzz_seeds FOLDER     (FOLDER is fuzz/corpus)

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "samples.h"
#include "writers/bmp_writer.h"
#include "writers/gif_writer.h"
#include "writers/ico_writer.h"
#include "writers/jpeg_writer.h"
#include "writers/png_writer.h"

using namespace vorlex::picture_test;

namespace {

struct Seed {
  std::string name;
  Bytes bytes;
};

BmpLayout Layout(int32_t width, int32_t height, uint16_t bitCount, std::vector<std::vector<uint32_t>> rows) {
  BmpLayout layout;
  layout.width = width;
  layout.height = height;
  layout.bitCount = bitCount;
  layout.bits = PackRows(width, rows, bitCount);
  return layout;
}

std::vector<Seed> BmpSeeds() {
  BmpLayout one = Layout(9, 2, 1, {{0, 1, 1, 0, 1, 0, 0, 1, 1}, {1, 0, 0, 1, 0, 1, 1, 0, 0}});
  one.palette = {kRed, kBlue};
  BmpLayout four = Layout(3, 2, 4, {{2, 0, 1}, {1, 1, 2}});
  four.palette = {kRed, kGreen, kBlue};
  four.clrUsed = 3;
  BmpLayout eight = Layout(2, 2, 8, {{0, 1}, {1, 0}});
  eight.palette = {kWhite, kBlack};
  eight.clrUsed = 2;
  BmpLayout sixteen = Layout(2, 1, 16, {{0xF800, 0x07E0}});
  sixteen.compression = kBiBitfields;
  sixteen.masks = {0xF800, 0x07E0, 0x001F};
  BmpLayout core = Layout(2, 1, 24, {{kRed, kBlue}});
  core.headerSize = kCoreHeader;
  BmpLayout v5 = Layout(2, -2, 32, {{kRed, kGreen}, {kBlue, kWhite}});
  v5.headerSize = kV5Header;
  BmpLayout rle8 = Layout(4, 3, 8, {});
  rle8.compression = kBiRle8;
  rle8.palette = {kRed, kGreen, kBlue};
  rle8.clrUsed = 3;
  rle8.bits = {2, 1, 0, 0, 0, 3, 0, 1, 2, 0, 0, 2, 1, 1, 1, 2, 0, 1};
  BmpLayout rle4 = rle8;
  rle4.bitCount = 4;
  rle4.compression = kBiRle4;
  rle4.bits = {3, 0x12, 0, 0, 0, 3, 0x21, 0x00, 0, 1};
  return {{"rgb24.bmp", Bmp3x2()},         {"index1.bmp", BmpFile(one)},     {"index4.bmp", BmpFile(four)},
          {"index8.bmp", BmpFile(eight)},  {"rgb565.bmp", BmpFile(sixteen)}, {"core.bmp", BmpFile(core)},
          {"v5-topdown.bmp", BmpFile(v5)}, {"rle8.bmp", BmpFile(rle8)},      {"rle4.bmp", BmpFile(rle4)}};
}

std::vector<Seed> IcoSeeds() {
  const Bytes paletted =
      IcoFile({{2, 2, 4, PalettedIconDib(2, 2, 4, {kRed, kBlue}, {0, 1, 1, 0}, {false, true, false, false})}});
  const Bytes png = IcoFile({{2, 1, 32, PngFile(2, 1, {0xFF000000 | kRed, kBlue}, true)}});
  const Bytes several = IcoFile({{1, 1, 32, IconDib(1, 1, {kRed}, {false})},
                                 {2, 2, 32, IconDib(2, 2, {kRed, kGreen, kBlue, kWhite}, {true, false, false, true})}});
  return {{"masked.ico", Icon4x4()}, {"paletted.ico", paletted}, {"png.ico", png}, {"several.ico", several}};
}

std::vector<Seed> GifSeeds() {
  GifLayout interlaced;
  interlaced.width = 2;
  interlaced.height = 5;
  interlaced.palette = {kRed, kBlue};
  GifFrame frame;
  frame.width = 2;
  frame.height = 5;
  frame.indexes = {0, 1, 1, 0, 0, 0, 1, 1, 0, 1};
  frame.interlaced = true;
  frame.localPalette = {kGreen, kWhite};
  interlaced.frames.push_back(frame);
  return {{"transparent.gif", Gif4x3()}, {"interlaced.gif", GifFile(interlaced)}};
}

std::vector<Seed> JpegSeeds() {
  return {{"blocks.jpg", Jpeg16x8()}, {"odd.jpg", FlatBlockJpeg(10, 9, {kWhite, kBlack, kRed, kBlue})}};
}

std::vector<Seed> PngSeeds() {
  return {{"alpha.png", Png3x1()}, {"rgb.png", PngFile(2, 2, {kRed, kGreen, kBlue, kWhite}, false)}};
}

bool WriteAll(const std::filesystem::path& folder, const std::vector<Seed>& seeds) {
  std::filesystem::create_directories(folder);
  for (const Seed& seed : seeds) {
    std::ofstream out(folder / seed.name, std::ios::binary);
    out.write(reinterpret_cast<const char*>(seed.bytes.data()), static_cast<std::streamsize>(seed.bytes.size()));
    if (!out) return false;
  }
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: fuzz_seeds FOLDER\n");
    return 2;
  }
  const std::filesystem::path root(argv[1]);
  std::vector<Seed> all;
  for (const auto& seeds : {BmpSeeds(), IcoSeeds(), GifSeeds(), JpegSeeds(), PngSeeds()}) {
    all.insert(all.end(), seeds.begin(), seeds.end());
  }
  const bool ok = WriteAll(root / "bmp_fuzzer", BmpSeeds()) && WriteAll(root / "ico_fuzzer", IcoSeeds()) &&
                  WriteAll(root / "gif_fuzzer", GifSeeds()) && WriteAll(root / "jpeg_fuzzer", JpegSeeds()) &&
                  WriteAll(root / "png_fuzzer", PngSeeds()) && WriteAll(root / "picture_fuzzer", all);
  return ok ? 0 : 1;
}
