#pragma once
// FreeType for softgdi: one library for the process, and faces owned by the
// fonts that opened them.

#include <ft2build.h>
#include FT_FREETYPE_H

#include <memory>
#include <string>

namespace vorlex::gdi::soft::text {

// The process's library, made on first use. Like softgdi's object table it is
// never destroyed, so nothing depends on the order of destruction at exit; the
// faces are freed with the fonts that own them. Null if FreeType fails.
FT_Library FreeTypeLibrary();

struct FaceCloser {
  void operator()(FT_Face face) const { FT_Done_Face(face); }
};
using Face = std::unique_ptr<FT_FaceRec_, FaceCloser>;

// Face `index` of a font file; null when it cannot be opened.
Face OpenFace(const std::string& path, long index);

}  // namespace vorlex::gdi::soft::text
