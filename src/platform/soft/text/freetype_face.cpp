#include "platform/soft/text/freetype_face.h"

namespace vorlex::gdi::soft::text {

FT_Library FreeTypeLibrary() {
  static FT_Library const library = [] {
    FT_Library made = nullptr;
    return FT_Init_FreeType(&made) == 0 ? made : nullptr;
  }();
  return library;
}

Face OpenFace(const std::string& path, long index) {
  FT_Library library = FreeTypeLibrary();
  FT_Face face = nullptr;
  if (library == nullptr || FT_New_Face(library, path.c_str(), index, &face) != 0) return nullptr;
  return Face(face);
}

}  // namespace vorlex::gdi::soft::text
