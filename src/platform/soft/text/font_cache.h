#pragma once
// Realized fonts kept for logical fonts made again. A control makes and
// deletes the same rotated font for every text it draws, and finding, opening
// and sizing a face costs far more than drawing with it; like GDI's cache of
// unused fonts, the latest few stay realized, glyphs and all.

#include <memory>

#include "platform/gdi.h"
#include "platform/soft/text/realized_font.h"

namespace vorlex::gdi::soft::text {

// The realized font for a logical font, from the cache or made now; null when
// no usable font is installed. Callers hold the object table's lock.
std::shared_ptr<RealizedFont> Realize(const LOGFONTA& logFont);

}  // namespace vorlex::gdi::soft::text
