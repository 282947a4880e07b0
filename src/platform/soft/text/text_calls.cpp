// CreateFontIndirectA, GetTextExtentPoint32A and ExtTextOutA: fonts are
// objects of the table, made real with FreeType on first use.

#include <string>

#include "platform/gdi.h"
#include "platform/soft/box.h"
#include "platform/soft/draw_target.h"
#include "platform/soft/object_table.h"
#include "platform/soft/text/font_cache.h"
#include "platform/soft/text/realized_font.h"
#include "platform/soft/text/text_run.h"
#include "platform/soft/text/utf16_text.h"

namespace vorlex::gdi {
namespace {

using soft::text::RealizedFont;

// The font selected into a DC, realized when first needed; null when no font
// can be found.
RealizedFont* SelectedFont(const soft::DeviceContext& dc) {
  soft::Font* font = soft::Objects().Get<soft::Font>(dc.font);
  if (font == nullptr) return nullptr;
  if (!font->realized) font->realized = soft::text::Realize(font->logFont);
  return font->realized.get();
}

soft::text::RunStyle StyleOf(const soft::DeviceContext& dc, unsigned options, const RECT* rect) {
  const LOGFONTA& logFont = soft::Objects().Get<soft::Font>(dc.font)->logFont;
  soft::text::RunStyle style;
  style.textColor = dc.textColor;
  style.opaque = dc.bkMode == OPAQUE;
  style.background = dc.bkColor;
  if ((options & ETO_CLIPPED) != 0 && rect != nullptr) {
    style.clip = soft::OrderedBox(rect->left, rect->top, rect->right, rect->bottom);
  }
  style.underline = logFont.lfUnderline != 0;
  style.strikeout = logFont.lfStrikeOut != 0;
  return style;
}

}  // namespace

HFONT CreateFontIndirectA(const LOGFONTA* font) {
  const auto lock = soft::LockObjects();
  if (font == nullptr) return nullptr;
  return soft::HandleOf<HFONT>(soft::Objects().Add(soft::Font{*font, nullptr}));
}

BOOL GetTextExtentPoint32A(HDC dc, const char* text, int count, SIZE* size) {
  const auto lock = soft::LockObjects();
  const soft::DeviceContext* context = soft::FindDc(dc);
  if (context == nullptr || size == nullptr || count < 0 || (text == nullptr && count > 0)) return soft::kFalse;
  RealizedFont* font = SelectedFont(*context);
  if (font == nullptr) return soft::kFalse;
  *size = soft::text::MeasureRun(*font, soft::text::Utf16FromUtf8(text, static_cast<size_t>(count)));
  return soft::kTrue;
}

BOOL ExtTextOutA(HDC dc, int x, int y, unsigned options, const RECT* rect, const char* text, unsigned count,
                 const int* dx) {
  const auto lock = soft::LockObjects();
  const auto target = soft::FindTarget(dc);
  if (!target || (text == nullptr && count > 0)) return soft::kFalse;
  RealizedFont* font = SelectedFont(*target->dc);
  if (font == nullptr) return soft::kFalse;
  const std::u16string units = soft::text::Utf16FromUtf8(text, count);
  const std::vector<int32_t> advances =
      dx != nullptr ? soft::text::UnitAdvances(text, count, dx) : std::vector<int32_t>{};
  soft::text::DrawRun(target->surface, *font, {x, y}, StyleOf(*target->dc, options, rect), units, advances);
  return soft::kTrue;
}

}  // namespace vorlex::gdi
