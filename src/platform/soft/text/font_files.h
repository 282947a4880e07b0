#pragma once
// Which font file a logical font is drawn with, found the way GDI's font
// mapper finds it: "MS Sans Serif" is the bitmap font of that name shipped
// with fonts-wine (sserife.fon, whose faces are its sizes); any other name is
// looked up with fontconfig, which also knows the fonts-wine folder; a name
// nobody has falls back to the default face of its kind (sans, serif, fixed).

#include <cstdint>
#include <optional>
#include <string>

namespace vorlex::gdi::soft::text {

struct FaceRequest {
  std::string family;  // the face name, UTF-8; empty for "any"
  bool bold = false;
  bool italic = false;
  uint8_t pitchAndFamily = 0;  // LOGFONT's lfPitchAndFamily, for the fallback
};

struct FaceFile {
  std::string path;
  long index = 0;
};

// Nothing only when no font at all is installed.
std::optional<FaceFile> FindFaceFile(const FaceRequest& request);

}  // namespace vorlex::gdi::soft::text
