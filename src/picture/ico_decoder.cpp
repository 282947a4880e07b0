#include "picture/ico_decoder.h"

#include "picture/format.h"
#include "picture/icon_dib.h"
#include "picture/png_decoder.h"

namespace vorlex::picture {

namespace {
constexpr size_t kHeaderSize = 6;
constexpr size_t kEntrySize = 16;

int32_t DirectorySize(uint8_t stated) { return stated == 0 ? 256 : stated; }
}  // namespace

std::vector<IconEntry> ReadIconDirectory(ByteView file) {
  const uint16_t type = file.U16(2);
  const uint16_t count = file.U16(4);
  Require(file.U16(0) == 0 && (type == 1 || type == 2) && count > 0);
  Require(file.Has(kHeaderSize, kEntrySize * count));
  std::vector<IconEntry> entries;
  for (size_t i = 0; i < count; ++i) {
    const size_t at = kHeaderSize + kEntrySize * i;
    entries.push_back(
        {DirectorySize(file.U8(at)), DirectorySize(file.U8(at + 1)), file.U32(at + 8), file.U32(at + 12)});
  }
  return entries;
}

size_t ChooseIconEntry(const std::vector<IconEntry>& entries) {
  size_t best = 0;
  for (size_t i = 1; i < entries.size(); ++i) {
    if (entries[i].width * entries[i].height > entries[best].width * entries[best].height) best = i;
  }
  return best;
}

Image DecodeIco(ByteView file) {
  const std::vector<IconEntry> entries = ReadIconDirectory(file);
  const IconEntry& entry = entries[ChooseIconEntry(entries)];
  const ByteView image = file.Sub(entry.offset, entry.size);
  if (DetectFormat(image) == PictureFormat::Png) return DecodePng(image);
  return DecodeIconDib(image);
}

}  // namespace vorlex::picture
