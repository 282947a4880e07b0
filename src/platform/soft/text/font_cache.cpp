#include "platform/soft/text/font_cache.h"

#include <cstring>
#include <utility>
#include <vector>

namespace vorlex::gdi::soft::text {
namespace {

constexpr size_t kKept = 16;

bool SameLogFont(const LOGFONTA& a, const LOGFONTA& b) {
  return a.lfHeight == b.lfHeight && a.lfWidth == b.lfWidth && a.lfEscapement == b.lfEscapement &&
         a.lfOrientation == b.lfOrientation && a.lfWeight == b.lfWeight && a.lfItalic == b.lfItalic &&
         a.lfUnderline == b.lfUnderline && a.lfStrikeOut == b.lfStrikeOut && a.lfCharSet == b.lfCharSet &&
         a.lfOutPrecision == b.lfOutPrecision && a.lfClipPrecision == b.lfClipPrecision && a.lfQuality == b.lfQuality &&
         a.lfPitchAndFamily == b.lfPitchAndFamily && std::strncmp(a.lfFaceName, b.lfFaceName, sizeof a.lfFaceName) == 0;
}

using Entry = std::pair<LOGFONTA, std::shared_ptr<RealizedFont>>;

// Most recently used last. Never destroyed, like the FreeType library its
// faces belong to.
std::vector<Entry>& Kept() {
  static auto* const kept = new std::vector<Entry>();
  return *kept;
}

}  // namespace

std::shared_ptr<RealizedFont> Realize(const LOGFONTA& logFont) {
  std::vector<Entry>& kept = Kept();
  for (auto it = kept.begin(); it != kept.end(); ++it) {
    if (!SameLogFont(it->first, logFont)) continue;
    Entry found = std::move(*it);
    kept.erase(it);
    kept.push_back(std::move(found));
    return kept.back().second;
  }
  std::shared_ptr<RealizedFont> made = RealizedFont::Create(logFont);
  if (made == nullptr) return nullptr;
  if (kept.size() == kKept) kept.erase(kept.begin());
  kept.emplace_back(logFont, made);
  return made;
}

}  // namespace vorlex::gdi::soft::text
