#include "platform/soft/text/text_metrics.h"

#include FT_TRUETYPE_TABLES_H
#include FT_WINFONTS_H

#include <cstdlib>

namespace vorlex::gdi::soft::text {
namespace {

constexpr int32_t kLargestEm = (1 << 16) - 1;

// Some fonts store the Windows descent negative.
FT_Long WinDescent(const TT_OS2& os2) { return std::abs(static_cast<int16_t>(os2.usWinDescent)); }

// Ascent and descent in font units: the Windows metrics, else the
// horizontal header's.
struct Extent {
  FT_Long ascent;
  FT_Long descent;
};

Extent UnitsExtent(const TT_OS2& os2, const TT_HoriHeader* hhea) {
  if (os2.usWinAscent + WinDescent(os2) != 0 || hhea == nullptr) return {os2.usWinAscent, WinDescent(os2)};
  return {hhea->Ascender, -hhea->Descender};
}

int32_t Pixels(FT_Long units, FT_Long emScale) { return static_cast<int32_t>(FT_MulFix(units, emScale)); }

// A line thickness: at least one pixel, keeping the sign.
int32_t Thickness(int32_t size) {
  const int32_t width = size == 0 ? 1 : std::abs(size);
  return size < 0 ? -width : width;
}

// Metrics from FreeType's size alone (a face without Windows metrics).
TextMetrics SizeMetrics(FT_Face face) {
  TextMetrics m;
  m.ascent = static_cast<int32_t>(face->size->metrics.ascender >> 6);
  m.descent = static_cast<int32_t>(-face->size->metrics.descender >> 6);
  m.internalLeading = m.ascent + m.descent - face->size->metrics.y_ppem;
  return m;
}

}  // namespace

int32_t PixelsPerEm(FT_Face face, int32_t lfHeight) {
  const auto* os2 = static_cast<const TT_OS2*>(FT_Get_Sfnt_Table(face, FT_SFNT_OS2));
  const auto* hhea = static_cast<const TT_HoriHeader*>(FT_Get_Sfnt_Table(face, FT_SFNT_HHEA));
  const int32_t height = lfHeight == 0 ? 16 : lfHeight;
  if (height < 0) return height >= -kLargestEm ? -height : 1;
  FT_Long units = face->units_per_EM;
  if (os2 != nullptr) {
    const Extent extent = UnitsExtent(*os2, hhea);
    units = extent.ascent + extent.descent;
  }
  if (units <= 0) return height;
  FT_Long ppem = FT_MulDiv(face->units_per_EM, height, units);
  if (ppem > 1 && FT_MulDiv(units, ppem, face->units_per_EM) > height) --ppem;
  return ppem > kLargestEm || ppem < 1 ? 1 : static_cast<int32_t>(ppem);
}

TextMetrics OutlineMetrics(FT_Face face, int32_t pixelsPerEm) {
  const auto* os2 = static_cast<const TT_OS2*>(FT_Get_Sfnt_Table(face, FT_SFNT_OS2));
  const auto* hhea = static_cast<const TT_HoriHeader*>(FT_Get_Sfnt_Table(face, FT_SFNT_HHEA));
  const auto* post = static_cast<const TT_Postscript*>(FT_Get_Sfnt_Table(face, FT_SFNT_POST));
  if (os2 == nullptr || hhea == nullptr || face->units_per_EM == 0) return SizeMetrics(face);
  const FT_Long emScale = FT_MulDiv(pixelsPerEm, 1 << 16, face->units_per_EM);
  const Extent extent = UnitsExtent(*os2, hhea);
  TextMetrics m;
  m.outline = true;
  m.ascent = Pixels(extent.ascent, emScale);
  m.descent = Pixels(extent.descent, emScale);
  m.internalLeading = Pixels(extent.ascent + extent.descent - face->units_per_EM, emScale);
  m.strikeoutPosition = Pixels(os2->yStrikeoutPosition, emScale);
  m.strikeoutSize = Pixels(os2->yStrikeoutSize, emScale);
  if (post != nullptr) {
    m.underlinePosition = Pixels(post->underlinePosition, emScale);
    m.underlineSize = Pixels(post->underlineThickness, emScale);
  }
  return m;
}

TextMetrics BitmapMetrics(FT_Face face) {
  FT_WinFNT_HeaderRec header{};
  if (FT_Get_WinFNT_Header(face, &header) != 0) return SizeMetrics(face);
  TextMetrics m;
  m.ascent = header.ascent;
  m.descent = header.pixel_height - header.ascent;
  m.internalLeading = header.internal_leading;
  return m;
}

TextMetrics Scaled(const TextMetrics& metrics, int32_t scale) {
  TextMetrics m = metrics;
  m.ascent *= scale;
  m.descent *= scale;
  m.internalLeading *= scale;
  return m;
}

Line UnderlineOf(const TextMetrics& metrics) {
  if (!metrics.outline) return {0, metrics.ascent / 20 + 1};
  return {metrics.underlinePosition, Thickness(metrics.underlineSize)};
}

Line StrikeoutOf(const TextMetrics& metrics) {
  if (!metrics.outline) return {metrics.ascent / 2, metrics.ascent / 20 + 1};
  return {metrics.strikeoutPosition, Thickness(metrics.strikeoutSize)};
}

}  // namespace vorlex::gdi::soft::text
