// Which file a face name is drawn with: fonts-wine's bitmap MS Sans Serif,
// fontconfig's families, GDI's substitutes and fallbacks.

#include "platform/soft/text/font_files.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <string>

namespace {

using vorlex::gdi::soft::text::FaceFile;
using vorlex::gdi::soft::text::FaceRequest;
using vorlex::gdi::soft::text::FindFaceFile;

constexpr const char* kWineSansSerif = "/usr/share/wine/fonts/sserife.fon";

bool Exists(const char* path) {
  struct stat info {};
  return stat(path, &info) == 0;
}

std::string FileFor(const std::string& family, bool bold = false, uint8_t pitchAndFamily = 0) {
  FaceRequest request;
  request.family = family;
  request.bold = bold;
  request.pitchAndFamily = pitchAndFamily;
  const std::optional<FaceFile> found = FindFaceFile(request);
  return found ? found->path : std::string("(none)");
}

bool EndsWith(const std::string& text, const std::string& end) {
  return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

TEST(SoftFontFiles, SansSerifIsTheBitmapFontOfFontsWine) {
  if (!Exists(kWineSansSerif)) GTEST_SKIP() << "fonts-wine is not installed";
  EXPECT_EQ(FileFor("MS Sans Serif"), kWineSansSerif);
  EXPECT_EQ(FileFor("ms sans serif"), kWineSansSerif) << "names compare without case";
  EXPECT_EQ(FileFor("MS Sans Serif", true), kWineSansSerif) << "bold is made from it";
  EXPECT_EQ(FileFor("Helv"), kWineSansSerif) << "GDI substitutes Helv";
}

TEST(SoftFontFiles, FontconfigFindsFamiliesAndTheirBoldFaces) {
  const std::string regular = FileFor("DejaVu Sans");
  if (regular.find("DejaVuSans") == std::string::npos) GTEST_SKIP() << "DejaVu Sans is not installed";
  EXPECT_TRUE(EndsWith(regular, "/DejaVuSans.ttf")) << regular;
  EXPECT_TRUE(EndsWith(FileFor("DejaVu Sans", true), "/DejaVuSans-Bold.ttf"));
}

TEST(SoftFontFiles, UnknownNamesFallBackToTheDefaultFaceOfTheirKind) {
  EXPECT_NE(FileFor("No Such Face Anywhere"), "(none)");
  EXPECT_EQ(FileFor("No Such Face Anywhere"), FileFor("")) << "as if no name was given";
  const std::string liberation = FileFor("Liberation Sans");
  if (liberation.find("LiberationSans") == std::string::npos) GTEST_SKIP() << "Liberation Sans is not installed";
  EXPECT_EQ(FileFor("No Such Face Anywhere"), liberation) << "Arial's metric twin, as GDI's default sans";
  constexpr uint8_t kFixedPitch = 1;
  EXPECT_NE(FileFor("No Such Face Anywhere", false, kFixedPitch), liberation) << "a fixed-pitch default";
}

}  // namespace
