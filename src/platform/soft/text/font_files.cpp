#include "platform/soft/text/font_files.h"

#include <fontconfig/fontconfig.h>
#include <sys/stat.h>

#include <array>
#include <cctype>
#include <memory>
#include <string_view>

namespace vorlex::gdi::soft::text {
namespace {

// Where fonts-wine installs its fonts (Debian's package, then a local build).
constexpr std::array<const char*, 2> kWineFontDirs = {"/usr/share/wine/fonts", "/usr/local/share/wine/fonts"};
// MS Sans Serif at 96 pixels per inch, code page 1252.
constexpr const char* kSansSerifFile = "sserife.fon";

// Names GDI replaces before it looks (the FontSubstitutes of a US system).
struct Substitute {
  std::string_view from;
  std::string_view to;
};
constexpr std::array<Substitute, 6> kSubstitutes = {{{"MS Shell Dlg", "Tahoma"},
                                                     {"MS Shell Dlg 2", "Tahoma"},
                                                     {"Helv", "MS Sans Serif"},
                                                     {"Helvetica", "Arial"},
                                                     {"Times", "Times New Roman"},
                                                     {"Tms Rmn", "Times New Roman"}}};

bool SameName(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (size_t i = 0; i < a.size(); ++i) {
    if (std::tolower(static_cast<unsigned char>(a[i])) != std::tolower(static_cast<unsigned char>(b[i]))) return false;
  }
  return true;
}

bool IsFile(const std::string& path) {
  struct stat info {};
  return stat(path.c_str(), &info) == 0 && S_ISREG(info.st_mode);
}

bool IsDirectory(const char* path) {
  struct stat info {};
  return stat(path, &info) == 0 && S_ISDIR(info.st_mode);
}

// The process's fontconfig set-up: the system's fonts and fonts-wine's. Never
// destroyed, like the FreeType library.
FcConfig* Config() {
  static FcConfig* const config = [] {
    FcConfig* made = FcInitLoadConfigAndFonts();
    for (const char* dir : kWineFontDirs) {
      if (made != nullptr && IsDirectory(dir)) FcConfigAppFontAddDir(made, reinterpret_cast<const FcChar8*>(dir));
    }
    return made;
  }();
  return config;
}

std::optional<FaceFile> WineSansSerif() {
  for (const char* dir : kWineFontDirs) {
    std::string path = std::string(dir) + "/" + kSansSerifFile;
    if (IsFile(path)) return FaceFile{std::move(path), 0};
  }
  return std::nullopt;
}

// Whether a matched pattern is the family asked for, by family or full name.
bool NamesFamily(FcPattern* match, std::string_view family) {
  for (const char* object : {FC_FAMILY, FC_FULLNAME}) {
    FcChar8* name = nullptr;
    for (int i = 0; FcPatternGetString(match, object, i, &name) == FcResultMatch; ++i) {
      if (SameName(reinterpret_cast<const char*>(name), family)) return true;
    }
  }
  return false;
}

struct PatternDestroyer {
  void operator()(FcPattern* pattern) const { FcPatternDestroy(pattern); }
};
using Pattern = std::unique_ptr<FcPattern, PatternDestroyer>;

Pattern MatchPattern(const std::string& family, const FaceRequest& request) {
  Pattern pattern(FcPatternCreate());
  if (pattern == nullptr) return nullptr;
  FcPatternAddString(pattern.get(), FC_FAMILY, reinterpret_cast<const FcChar8*>(family.c_str()));
  FcPatternAddInteger(pattern.get(), FC_WEIGHT, request.bold ? FC_WEIGHT_BOLD : FC_WEIGHT_REGULAR);
  FcPatternAddInteger(pattern.get(), FC_SLANT, request.italic ? FC_SLANT_ITALIC : FC_SLANT_ROMAN);
  FcConfigSubstitute(Config(), pattern.get(), FcMatchPattern);
  FcDefaultSubstitute(pattern.get());
  FcResult result = FcResultNoMatch;
  return Pattern(FcFontMatch(Config(), pattern.get(), &result));
}

// fontconfig's file for a family; with `exact`, only if it really has it
// (fontconfig otherwise answers with its best substitute).
std::optional<FaceFile> Lookup(const std::string& family, const FaceRequest& request, bool exact) {
  if (Config() == nullptr) return std::nullopt;
  const Pattern match = MatchPattern(family, request);
  FcChar8* file = nullptr;
  if (match == nullptr || (exact && !NamesFamily(match.get(), family)) ||
      FcPatternGetString(match.get(), FC_FILE, 0, &file) != FcResultMatch) {
    return std::nullopt;
  }
  int index = 0;
  FcPatternGetInteger(match.get(), FC_INDEX, 0, &index);
  return FaceFile{reinterpret_cast<const char*>(file), index};
}

std::string Substituted(const std::string& family) {
  for (const Substitute& s : kSubstitutes) {
    if (SameName(family, s.from)) return std::string(s.to);
  }
  return family;
}

// The default faces GDI falls back to, by kind, and fontconfig's own default.
struct Fallbacks {
  std::array<const char*, 3> families;
  const char* generic;
};

Fallbacks FallbacksFor(uint8_t pitchAndFamily) {
  constexpr uint8_t kFixedPitch = 1, kRoman = 0x10, kModern = 0x30;
  const uint8_t family = pitchAndFamily & 0xF0;
  if ((pitchAndFamily & kFixedPitch) != 0 || family == kModern) {
    return {{"Courier New", "Liberation Mono", "Bitstream Vera Sans Mono"}, "monospace"};
  }
  if (family == kRoman) return {{"Times New Roman", "Liberation Serif", "Bitstream Vera Serif"}, "serif"};
  return {{"Arial", "Liberation Sans", "Bitstream Vera Sans"}, "sans-serif"};
}

std::optional<FaceFile> Fallback(const FaceRequest& request) {
  const Fallbacks fallbacks = FallbacksFor(request.pitchAndFamily);
  for (const char* family : fallbacks.families) {
    if (auto found = Lookup(family, request, true)) return found;
  }
  return Lookup(fallbacks.generic, request, false);
}

}  // namespace

std::optional<FaceFile> FindFaceFile(const FaceRequest& request) {
  const std::string family = Substituted(request.family);
  if (SameName(family, "MS Sans Serif")) {
    if (auto raster = WineSansSerif()) return raster;
  }
  if (!family.empty()) {
    if (auto found = Lookup(family, request, true)) return found;
  }
  return Fallback(request);
}

}  // namespace vorlex::gdi::soft::text

// fontconfig loses a few bytes while it parses its configuration files, in
// code the leak checker of sanitized builds cannot trace through; it is told
// to pass over what fontconfig allocates (the patterns made here are owned).
#if defined(__SANITIZE_ADDRESS__)
extern "C" __attribute__((weak)) const char* __lsan_default_suppressions() { return "leak:libfontconfig.so\n"; }
#endif
