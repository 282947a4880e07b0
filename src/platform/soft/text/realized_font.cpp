#include "platform/soft/text/realized_font.h"

#include FT_GASP_H
#include FT_WINFONTS_H

#include <cstring>
#include <string>
#include <vector>

#include "platform/soft/text/code_page.h"
#include "platform/soft/text/font_files.h"
#include "platform/soft/text/raster_size.h"

namespace vorlex::gdi::soft::text {
namespace {

constexpr int32_t kBoldAbove = 550;  // weights above this are bold
constexpr uint8_t kNonAntialiasedQuality = 3;

FaceRequest RequestFor(const LOGFONTA& logFont) {
  FaceRequest request;
  request.family.assign(logFont.lfFaceName, strnlen(logFont.lfFaceName, sizeof logFont.lfFaceName));
  request.bold = logFont.lfWeight > kBoldAbove;
  request.italic = logFont.lfItalic != 0;
  request.pitchAndFamily = logFont.lfPitchAndFamily;
  return request;
}

bool FaceIsBold(FT_Face face) {
  if ((face->style_flags & FT_STYLE_FLAG_BOLD) != 0) return true;
  FT_WinFNT_HeaderRec header{};
  return !FT_IS_SCALABLE(face) && FT_Get_WinFNT_Header(face, &header) == 0 && header.weight > FW_NORMAL;
}

// A bitmap size as GDI reads it: from the Windows font header, else from the
// given strike.
RasterSize SizeOf(FT_Face face, int strike) {
  FT_WinFNT_HeaderRec header{};
  if (FT_Get_WinFNT_Header(face, &header) == 0) return {header.pixel_height, header.internal_leading};
  const FT_Bitmap_Size& size = face->available_sizes[strike];
  return {size.height, size.height - static_cast<int32_t>(size.y_ppem >> 6)};
}

// The face of a Windows .fon file, which holds one face per size, that GDI
// draws lfHeight with.
Face PickFaceBySize(const std::string& path, long faceCount, int32_t lfHeight) {
  std::vector<long> indexes;
  std::vector<RasterSize> sizes;
  for (long i = 0; i < faceCount; ++i) {
    const Face face = OpenFace(path, i);
    if (face == nullptr || face->num_fixed_sizes == 0) continue;
    indexes.push_back(i);
    sizes.push_back(SizeOf(face.get(), 0));
  }
  if (sizes.empty()) return nullptr;
  return OpenFace(path, indexes[PickRasterSize(sizes, lfHeight)]);
}

// Whether an outline font is drawn with grayscale smoothing, as GDI does
// with standard font smoothing on: every quality but NONANTIALIASED_QUALITY
// asks for it, and the face's 'gasp' table may refuse it at its size, unless
// GDI synthesizes bold or italic (those are smoothed whatever the table says).
bool Smoothed(FT_Face face, uint8_t quality, bool synthesized) {
  if (quality == kNonAntialiasedQuality) return false;
  if (synthesized) return true;
  const FT_Int gasp = FT_Get_Gasp(face, face->size->metrics.y_ppem);
  return gasp == FT_GASP_NO_TABLE || (gasp & FT_GASP_DO_GRAY) != 0;
}

// Some fonts carry no Unicode map: symbol fonts and Windows bitmap fonts.
void ChooseCharmap(FT_Face face) {
  if (face->charmap == nullptr && face->num_charmaps > 0) FT_Set_Charmap(face, face->charmaps[0]);
}

}  // namespace

std::unique_ptr<RealizedFont> RealizedFont::Create(const LOGFONTA& logFont) {
  const std::optional<FaceFile> file = FindFaceFile(RequestFor(logFont));
  if (!file) return nullptr;
  Face face = OpenFace(file->path, file->index);
  if (face == nullptr) return nullptr;
  const bool scalable = FT_IS_SCALABLE(face.get());
  if (!scalable && face->num_fixed_sizes == 0) return nullptr;
  std::unique_ptr<RealizedFont> font(new RealizedFont(std::move(face), scalable ? logFont.lfEscapement : 0));
  if (!scalable && font->face_->num_faces > 1) {
    if (Face chosen = PickFaceBySize(file->path, font->face_->num_faces, logFont.lfHeight)) {
      font->face_ = std::move(chosen);
    }
  }
  if (!font->SizeFace(logFont)) return nullptr;
  ChooseCharmap(font->face_.get());
  return font;
}

bool RealizedFont::SizeFace(const LOGFONTA& logFont) {
  FT_Face face = face_.get();
  style_.fakeBold = logFont.lfWeight > kBoldAbove && !FaceIsBold(face);
  const bool fakeItalic = logFont.lfItalic != 0 && (face->style_flags & FT_STYLE_FLAG_ITALIC) == 0;
  if (!FT_IS_SCALABLE(face)) return SizeBitmap(logFont.lfHeight, fakeItalic);
  if (!SizeOutline(logFont.lfHeight, fakeItalic)) return false;
  style_.smoothed = Smoothed(face, logFont.lfQuality, style_.fakeBold || fakeItalic);
  return true;
}

bool RealizedFont::SizeOutline(int32_t lfHeight, bool fakeItalic) {
  FT_Face face = face_.get();
  const int32_t ppem = PixelsPerEm(face, lfHeight);
  if (FT_Set_Pixel_Sizes(face, 0, static_cast<FT_UInt>(ppem)) != 0) return false;
  metrics_ = OutlineMetrics(face, ppem);
  style_.pixelsPerEm = ppem;
  style_.ascent = metrics_.ascent;
  style_.descent = metrics_.descent;
  style_.transform = MakeGlyphTransform(1, fakeItalic, escapement_);
  return true;
}

// Glyph boxes are cut to the unscaled cell; the scale is a transformation.
bool RealizedFont::SizeBitmap(int32_t lfHeight, bool fakeItalic) {
  FT_Face face = face_.get();
  std::vector<RasterSize> sizes;
  for (int i = 0; i < face->num_fixed_sizes; ++i) sizes.push_back(SizeOf(face, i));
  const size_t strike = PickRasterSize(sizes, lfHeight);
  if (FT_Select_Size(face, static_cast<FT_Int>(strike)) != 0) return false;
  const TextMetrics unscaled = BitmapMetrics(face);
  const int32_t scale = RasterScale(sizes[strike], lfHeight);
  metrics_ = Scaled(unscaled, scale);
  style_.pixelsPerEm = static_cast<int32_t>(face->size->metrics.y_ppem);
  style_.ascent = unscaled.ascent;
  style_.descent = unscaled.descent;
  style_.transform = MakeGlyphTransform(scale, fakeItalic, 0);
  return true;
}

FT_UInt RealizedFont::GlyphIndex(char16_t c) const {
  FT_Face face = face_.get();
  if (face->charmap == nullptr) return 0;
  switch (face->charmap->encoding) {
    case FT_ENCODING_UNICODE:
      return FT_Get_Char_Index(face, c);
    case FT_ENCODING_MS_SYMBOL: {
      const FT_UInt index = c < 0x100 ? FT_Get_Char_Index(face, 0xF000u + c) : 0;
      return index != 0 ? index : FT_Get_Char_Index(face, c);
    }
    default:
      return FT_Get_Char_Index(face, Cp1252Code(c));
  }
}

int32_t RealizedFont::CharWidth(char16_t c) {
  const auto found = widths_.find(c);
  if (found != widths_.end()) return found->second;
  const int32_t width = GlyphWidth(face_.get(), GlyphIndex(c), style_).value_or(0);
  widths_.emplace(c, width);
  return width;
}

const GlyphImage* RealizedFont::Glyph(char16_t c) {
  auto found = glyphs_.find(c);
  if (found == glyphs_.end()) found = glyphs_.emplace(c, RenderGlyph(face_.get(), GlyphIndex(c), style_)).first;
  return found->second ? &*found->second : nullptr;
}

}  // namespace vorlex::gdi::soft::text
