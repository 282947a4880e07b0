// GIF through giflib, record by record up to the first frame, so that nothing
// after it is read or kept.

#include "picture/soft/gif_decoder.h"

#include <gif_lib.h>

#include <algorithm>
#include <cstring>
#include <vector>

namespace vorlex::picture {

namespace {

struct Source {
  ByteView bytes;
  size_t pos = 0;
};

int ReadBytes(GifFileType* gif, GifByteType* out, int length) {
  auto* source = static_cast<Source*>(gif->UserData);
  const size_t count = std::min(static_cast<size_t>(std::max(length, 0)), source->bytes.size() - source->pos);
  if (count > 0) std::memcpy(out, source->bytes.data() + source->pos, count);
  source->pos += count;
  return static_cast<int>(count);
}

// Closes giflib's state on every path.
class GifReader {
 public:
  explicit GifReader(Source& source) {
    int error = 0;
    gif_ = DGifOpen(&source, ReadBytes, &error);
    Require(gif_ != nullptr);
  }
  ~GifReader() {
    int error = 0;
    DGifCloseFile(gif_, &error);
  }
  GifReader(const GifReader&) = delete;
  GifReader& operator=(const GifReader&) = delete;
  GifFileType* get() const { return gif_; }

 private:
  GifFileType* gif_ = nullptr;
};

// The transparent index of a graphic control extension, else what it was.
int ReadExtension(GifFileType* gif, int transparent) {
  int code = 0;
  GifByteType* block = nullptr;
  Require(DGifGetExtension(gif, &code, &block) == GIF_OK);
  if (code == GRAPHICS_EXT_FUNC_CODE && block != nullptr && block[0] >= 4) {
    GraphicsControlBlock control{};
    if (DGifExtensionToGCB(block[0], block + 1, &control) == GIF_OK) transparent = control.TransparentColor;
  }
  while (block != nullptr) Require(DGifGetExtensionNext(gif, &block) == GIF_OK);
  return transparent;
}

struct Frame {
  const GifImageDesc& desc;
  const ColorMapObject& colours;
  int transparent;
};

void PutRow(const Frame& frame, const std::vector<GifPixelType>& line, int32_t y, Image& image) {
  for (int32_t x = 0; x < frame.desc.Width; ++x) {
    const int64_t sx = int64_t{frame.desc.Left} + x;
    const int64_t sy = int64_t{frame.desc.Top} + y;
    const int index = line[static_cast<size_t>(x)];
    if (!image.Contains(sx, sy) || index == frame.transparent) continue;
    uint32_t colour = 0;
    if (index < frame.colours.ColorCount) {
      const GifColorType& c = frame.colours.Colors[index];
      colour = (static_cast<uint32_t>(c.Red) << 16) | (static_cast<uint32_t>(c.Green) << 8) | c.Blue;
    }
    const auto at = image.Index(static_cast<int32_t>(sx), static_cast<int32_t>(sy));
    image.pixels[at] = colour;
    image.opaque[at] = 1;
  }
}

// Frame rows in stored order: in sequence, or in the four interlace passes.
std::vector<int32_t> RowOrder(const GifImageDesc& desc) {
  std::vector<int32_t> order;
  if (!desc.Interlace) {
    for (int32_t y = 0; y < desc.Height; ++y) order.push_back(y);
    return order;
  }
  const int32_t starts[] = {0, 4, 2, 1};
  const int32_t steps[] = {8, 8, 4, 2};
  for (int pass = 0; pass < 4; ++pass) {
    for (int32_t y = starts[pass]; y < desc.Height; y += steps[pass]) order.push_back(y);
  }
  return order;
}

void ReadFrame(GifFileType* gif, int transparent, Image& image) {
  Require(DGifGetImageDesc(gif) == GIF_OK);
  const GifImageDesc& desc = gif->Image;
  const ColorMapObject* colours = desc.ColorMap != nullptr ? desc.ColorMap : gif->SColorMap;
  Require(colours != nullptr && desc.Width > 0 && desc.Height > 0);
  Require(static_cast<uint64_t>(desc.Width) * static_cast<uint64_t>(desc.Height) <= kMaxPixels);
  const Frame frame{desc, *colours, transparent};
  std::vector<GifPixelType> line(static_cast<size_t>(desc.Width));
  for (const int32_t y : RowOrder(desc)) {
    Require(DGifGetLine(gif, line.data(), desc.Width) == GIF_OK);
    PutRow(frame, line, y, image);
  }
}

}  // namespace

Image DecodeGif(ByteView file) {
  Source source{file};
  const GifReader reader(source);
  GifFileType* gif = reader.get();
  Image image = NewImage(gif->SWidth, gif->SHeight);
  std::fill(image.opaque.begin(), image.opaque.end(), uint8_t{0});
  int transparent = NO_TRANSPARENT_COLOR;
  for (;;) {
    GifRecordType record = UNDEFINED_RECORD_TYPE;
    Require(DGifGetRecordType(gif, &record) == GIF_OK);
    if (record == IMAGE_DESC_RECORD_TYPE) {
      ReadFrame(gif, transparent, image);
      return image;
    }
    Require(record == EXTENSION_RECORD_TYPE);
    transparent = ReadExtension(gif, transparent);
  }
}

}  // namespace vorlex::picture
