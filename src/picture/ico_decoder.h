#pragma once
// Icon and cursor files: a directory of images, each a DIB with an AND mask or
// a PNG file. The largest image is decoded (the first of the largest when
// several have the same size).

#include <cstddef>
#include <cstdint>
#include <vector>

#include "picture/byte_view.h"
#include "picture/image.h"

namespace vorlex::picture {

struct IconEntry {
  int32_t width = 0;  // as the directory states it, 0 read as 256
  int32_t height = 0;
  uint32_t size = 0;
  uint32_t offset = 0;
};

// The directory; rejects (error 481) a header that is not an icon's or a
// cursor's, no entries, or a directory cut short.
std::vector<IconEntry> ReadIconDirectory(ByteView file);

// Which entry is decoded: the largest by width times height, the first of them
// on a tie.
size_t ChooseIconEntry(const std::vector<IconEntry>& entries);

// Rejects (error 481) anything that is not an icon file it can read,
// including an image whose bytes lie past the end of the file.
Image DecodeIco(ByteView file);

}  // namespace vorlex::picture
