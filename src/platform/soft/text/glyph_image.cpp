#include "platform/soft/text/glyph_image.h"

#include FT_BITMAP_H
#include FT_TRIGONOMETRY_H
#include FT_OUTLINE_H

#include <algorithm>

namespace vorlex::gdi::soft::text {
namespace {

constexpr FT_Pos kPixel = 64;
// Glyph images larger than this are not drawn (the pen still moves on), so
// that an absurd height cannot ask for gigabytes.
constexpr int64_t kLargestImage = int64_t{1} << 24;

// Bitmap glyphs only when drawing one-bit glyphs untransformed; hinted for
// one-bit output when drawing those, with the default hinting when measuring
// and when drawing smoothed glyphs.
FT_Int32 LoadFlags(bool drawing, const GlyphStyle& style) {
  FT_Int32 flags = FT_LOAD_IGNORE_GLOBAL_ADVANCE_WIDTH;
  if (drawing && !style.smoothed) flags |= FT_LOAD_TARGET_MONO;
  if (style.transform.active || !drawing || style.smoothed) flags |= FT_LOAD_NO_BITMAP;
  return flags;
}

bool Load(FT_Face face, FT_UInt index, FT_Int32 flags) {
  if (FT_Load_Glyph(face, index, flags) == 0) return true;
  return FT_Load_Glyph(face, index, flags | FT_LOAD_NO_HINTING) == 0;
}

// The loaded glyph's metrics: emboldened outline or one pixel wider bitmap,
// then cut to the face's ascent and descent.
FT_Glyph_Metrics MetricsOf(FT_GlyphSlot slot, const GlyphStyle& style) {
  FT_Glyph_Metrics m = slot->metrics;
  if (style.fakeBold && slot->format == FT_GLYPH_FORMAT_OUTLINE &&
      FT_Outline_Embolden(&slot->outline, FT_MulDiv(style.pixelsPerEm, kPixel, 24)) == 0) {
    FT_BBox box{};
    FT_Outline_Get_CBox(&slot->outline, &box);
    m.width = box.xMax - box.xMin;
    m.height = box.yMax - box.yMin;
    m.horiBearingX = box.xMin;
    m.horiBearingY = box.yMax;
  } else if (style.fakeBold && m.width != 0) {
    m.width += kPixel;
  }
  const FT_Pos top = std::min<FT_Pos>(m.horiBearingY, FT_Pos{style.ascent} * kPixel);
  const FT_Pos bottom = std::max<FT_Pos>(m.horiBearingY - m.height, -FT_Pos{style.descent} * kPixel);
  m.horiBearingY = top;
  m.height = top - bottom;
  return m;
}

uint8_t* RowOf(GlyphImage& image, int32_t y) {
  return image.levels.data() + static_cast<size_t>(y) * static_cast<size_t>(image.width);
}

// One-bit rows (bit 0x80 >> (x % 8) of byte x / 8 is column x) as levels 0
// and full, each lit pixel also lighting the one to its right under a
// synthetic bold.
void CopyOneBit(const unsigned char* buffer, int pitch, int32_t rows, int32_t columns, bool fakeBold,
                GlyphImage& image) {
  for (int32_t y = 0; y < rows; ++y) {
    const unsigned char* row = buffer + static_cast<ptrdiff_t>(y) * pitch;
    uint8_t* out = RowOf(image, y);
    for (int32_t x = 0; x < columns; ++x) {
      if ((row[x / 8] & (0x80 >> (x % 8))) == 0) continue;
      out[x] = kFullLevel;
      if (fakeBold && x + 1 < image.width) out[x + 1] = kFullLevel;
    }
  }
}

// A bitmap glyph copied to the image's top-left corner.
void CopyBitmap(const FT_Bitmap& source, bool fakeBold, GlyphImage& image) {
  if (source.pixel_mode != FT_PIXEL_MODE_MONO) return;
  const auto rows = std::min<int32_t>(image.height, static_cast<int32_t>(source.rows));
  const auto columns = std::min<int32_t>(image.width, static_cast<int32_t>(source.width));
  CopyOneBit(source.buffer, source.pitch, rows, columns, fakeBold, image);
}

// An outline glyph through the font's transformation, scanned into the box:
// for one bit, or for 256 grays that GDI then brings down to its 17 levels
// (gray * 17 / 256, so that only a fully covered pixel reaches 16).
void RenderOutline(FT_GlyphSlot slot, const FT_BBox& box, const GlyphStyle& style, GlyphImage& image) {
  if (style.transform.active) FT_Outline_Transform(&slot->outline, &style.transform.rotated);
  FT_Outline_Translate(&slot->outline, -box.xMin, -box.yMin);
  FT_Bitmap target;
  FT_Bitmap_Init(&target);
  target.width = static_cast<unsigned>(image.width);
  target.rows = static_cast<unsigned>(image.height);
  if (style.smoothed) {
    target.pitch = image.width;
    target.pixel_mode = FT_PIXEL_MODE_GRAY;
    target.num_grays = 256;
    target.buffer = image.levels.data();
    FT_Outline_Get_Bitmap(FreeTypeLibrary(), &slot->outline, &target);
    for (uint8_t& level : image.levels) level = static_cast<uint8_t>(level * (kFullLevel + 1) / 256);
    return;
  }
  const int pitch = (image.width + 31) / 32 * 4;
  std::vector<unsigned char> bits(static_cast<size_t>(pitch) * static_cast<size_t>(image.height), 0);
  target.pitch = pitch;
  target.pixel_mode = FT_PIXEL_MODE_MONO;
  target.buffer = bits.data();
  FT_Outline_Get_Bitmap(FreeTypeLibrary(), &slot->outline, &target);
  CopyOneBit(bits.data(), pitch, image.height, image.width, false, image);
}

}  // namespace

std::optional<GlyphImage> RenderGlyph(FT_Face face, FT_UInt index, const GlyphStyle& style) {
  const bool transformed = style.transform.active;
  if (!Load(face, index, LoadFlags(true, style))) return std::nullopt;
  FT_GlyphSlot slot = face->glyph;
  const FT_Glyph_Metrics metrics = MetricsOf(slot, style);
  const FT_Matrix* matrix = transformed ? &style.transform.rotated : nullptr;
  const FT_BBox box = BoxOf(metrics, matrix);
  const FT_Vector advance = AdvanceOf(metrics.horiAdvance, style.fakeBold, matrix);
  GlyphImage image;
  image.left = static_cast<int32_t>(box.xMin >> 6);
  image.top = static_cast<int32_t>(box.yMax >> 6);
  image.width = static_cast<int32_t>((box.xMax - box.xMin) >> 6);
  image.height = static_cast<int32_t>((box.yMax - box.yMin) >> 6);
  image.advanceX = static_cast<int32_t>(advance.x >> 6);
  image.advanceY = static_cast<int32_t>(advance.y >> 6);
  if (image.width <= 0 || image.height <= 0 || int64_t{image.width} * image.height > kLargestImage) {
    image.width = image.height = 0;
    return image;
  }
  image.levels.assign(static_cast<size_t>(image.width) * static_cast<size_t>(image.height), 0);
  if (slot->format == FT_GLYPH_FORMAT_BITMAP) CopyBitmap(slot->bitmap, style.fakeBold, image);
  if (slot->format == FT_GLYPH_FORMAT_OUTLINE) RenderOutline(slot, box, style, image);
  return image;
}

std::optional<int32_t> GlyphWidth(FT_Face face, FT_UInt index, const GlyphStyle& style) {
  const bool transformed = style.transform.active;
  if (!Load(face, index, LoadFlags(false, style))) return std::nullopt;
  const FT_Glyph_Metrics metrics = MetricsOf(face->glyph, style);
  const FT_Matrix* matrix = transformed ? &style.transform.unrotated : nullptr;
  FT_Vector advance = AdvanceOf(metrics.horiAdvance, style.fakeBold, matrix);
  const FT_Pos length = matrix != nullptr ? FT_Vector_Length(&advance) : advance.x;
  return static_cast<int32_t>(length >> 6);
}

}  // namespace vorlex::gdi::soft::text
