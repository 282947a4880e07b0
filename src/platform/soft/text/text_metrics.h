#pragma once
// A face's vertical metrics at the size GDI makes it, and where ExtTextOut
// puts underline and strike-out.

#include <cstdint>

#include "platform/soft/text/freetype_face.h"

namespace vorlex::gdi::soft::text {

struct TextMetrics {
  int32_t ascent = 0;
  int32_t descent = 0;
  int32_t internalLeading = 0;
  bool outline = false;  // a TrueType face, with outline metrics
  // In font units scaled to pixels, above the baseline when positive; zero
  // when the face has none (outline faces only).
  int32_t underlinePosition = 0;
  int32_t underlineSize = 0;
  int32_t strikeoutPosition = 0;
  int32_t strikeoutSize = 0;

  int32_t Height() const { return ascent + descent; }
};

// The em size in pixels GDI gives an outline face for lfHeight: -lfHeight, or
// the largest whose cell (Windows ascent + descent) fits lfHeight > 0.
int32_t PixelsPerEm(FT_Face face, int32_t lfHeight);

// The metrics of an outline face already sized to `pixelsPerEm`.
TextMetrics OutlineMetrics(FT_Face face, int32_t pixelsPerEm);

// The metrics of a bitmap face at its selected size.
TextMetrics BitmapMetrics(FT_Face face);

// A bitmap font's metrics at a whole scale.
TextMetrics Scaled(const TextMetrics& metrics, int32_t scale);

// Underline and strike-out as drawn: position above the baseline and
// thickness in pixels. Bitmap faces use GDI's defaults from the ascent.
struct Line {
  int32_t position;
  int32_t thickness;
};
Line UnderlineOf(const TextMetrics& metrics);
Line StrikeoutOf(const TextMetrics& metrics);

}  // namespace vorlex::gdi::soft::text
