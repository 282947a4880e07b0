#pragma once
// A logical font made real: the face GDI's mapper would pick, at the size GDI
// gives it, with the synthetic bold and italic GDI adds, and the glyphs and
// widths it draws and measures with (kept once made).

#include <cstdint>
#include <memory>
#include <optional>
#include <unordered_map>

#include "platform/gdi.h"
#include "platform/soft/text/freetype_face.h"
#include "platform/soft/text/glyph_image.h"
#include "platform/soft/text/text_metrics.h"

namespace vorlex::gdi::soft::text {

class RealizedFont {
 public:
  // Null only when no usable font is installed.
  static std::unique_ptr<RealizedFont> Create(const LOGFONTA& logFont);

  // Device metrics (a bitmap font's scale included).
  const TextMetrics& Metrics() const { return metrics_; }
  // The escapement text is laid out along: none for bitmap fonts, which GDI
  // does not rotate.
  int32_t Escapement() const { return escapement_; }

  // What GetTextExtentPoint counts for a character (0 if it cannot be loaded).
  int32_t CharWidth(char16_t c);
  // The glyph ExtTextOut draws for a character; null if it cannot be loaded.
  const GlyphImage* Glyph(char16_t c);

 private:
  RealizedFont(Face face, int32_t escapement) : face_(std::move(face)), escapement_(escapement) {}
  bool SizeFace(const LOGFONTA& logFont);
  bool SizeOutline(int32_t lfHeight, bool fakeItalic);
  bool SizeBitmap(int32_t lfHeight, bool fakeItalic);
  FT_UInt GlyphIndex(char16_t c) const;

  Face face_;
  int32_t escapement_;
  TextMetrics metrics_;
  GlyphStyle style_;
  std::unordered_map<char16_t, int32_t> widths_;
  std::unordered_map<char16_t, std::optional<GlyphImage>> glyphs_;
};

}  // namespace vorlex::gdi::soft::text
