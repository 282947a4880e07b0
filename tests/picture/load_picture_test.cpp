// LoadPicture as Basic has it: an empty path, a missing or unreadable file, a
// file that is not a picture, formats told by content, relative and UTF-8
// paths.

#include <gtest/gtest.h>

#include <filesystem>

#include "decode_helpers.h"
#include "picture_canvas.h"
#include "samples.h"
#include "temp_folder.h"
#include "vorlex/Picture.h"

using namespace vorlex;
using namespace vorlex::picture_test;

TEST(LoadPicture, EmptyPathGivesTheEmptyPicture) {
  const PicturePtr picture = LoadPicture("");
  ASSERT_NE(picture, nullptr);
  EXPECT_EQ(picture->Type(), kPicTypeNone);
  EXPECT_EQ(picture->Handle(), 0u);
  EXPECT_EQ(picture->PixelWidth(), 0);
  EXPECT_EQ(picture->PixelHeight(), 0);
}

TEST(LoadPicture, EmptyPictureDrawsNothing) {
  const PictureCanvas canvas(3, 3);
  EXPECT_TRUE(canvas.Draw(*LoadPicture("")));
  for (int y = 0; y < 3; ++y) EXPECT_EQ(canvas.Row(y), "123456 123456 123456");
}

TEST(LoadPicture, MissingFileRaises53FileNotFound) {
  const TempFolder folder;
  try {
    LoadPicture(folder.PathOf("missing.bmp"));
    ADD_FAILURE() << "a missing file loaded";
  } catch (const AutomationError& error) {
    EXPECT_EQ(error.Number(), kErrFileNotFound);
    EXPECT_EQ(error.Description(), "File not found");
  }
  EXPECT_RAISES(kErrFileNotFound, LoadPicture(folder.PathOf("no-such-folder/x.bmp")));
}

TEST(LoadPicture, FolderRaises53) {
  const TempFolder folder;
  EXPECT_RAISES(kErrFileNotFound, LoadPicture(folder.PathOf("")));
}

TEST(LoadPicture, FileThatIsNotAPictureRaises481) {
  const TempFolder folder;
  const std::string text = folder.Write("notes.bmp", Bytes{'h', 'e', 'l', 'l', 'o'});
  try {
    LoadPicture(text);
    ADD_FAILURE() << "a text file loaded";
  } catch (const AutomationError& error) {
    EXPECT_EQ(error.Number(), kErrInvalidPicture);
    EXPECT_EQ(error.Description(), "Invalid picture");
  }
  EXPECT_INVALID_PICTURE(LoadPicture(folder.Write("empty.gif", Bytes{})));
}

TEST(LoadPicture, FormatIsToldByContentNotByName) {
  const TempFolder folder;
  for (const char* name : {"photo.jpg", "picture", "icon.ico"}) {
    const PicturePtr picture = LoadPicture(folder.Write(name, Bmp3x2()));
    EXPECT_EQ(picture->Type(), kPicTypeBitmap) << name;
    EXPECT_EQ(picture->PixelWidth(), 3) << name;
  }
  EXPECT_EQ(LoadPicture(folder.Write("bitmap.bmp", Icon4x4()))->Type(), kPicTypeIcon);
}

TEST(LoadPicture, RelativePathIsRelativeToTheCurrentFolder) {
  const TempFolder folder;
  folder.Write("relative.bmp", Bmp3x2());
  const std::filesystem::path before = std::filesystem::current_path();
  std::filesystem::current_path(folder.path());
  PicturePtr picture;
  try {
    picture = LoadPicture("relative.bmp");
  } catch (...) {
  }
  std::filesystem::current_path(before);
  ASSERT_NE(picture, nullptr);
  EXPECT_EQ(picture->PixelHeight(), 2);
}

TEST(LoadPicture, PathIsUtf8) {
  const TempFolder folder;
  const PicturePtr picture = LoadPicture(folder.Write("gr\xC3\xBC\xC3\x9F\x65 \xE2\x82\xAC.bmp", Bmp3x2()));
  EXPECT_EQ(picture->PixelWidth(), 3);
}

TEST(LoadPicture, FileAndMemoryGiveTheSamePicture) {
  const TempFolder folder;
  const Bytes bytes = Gif4x3();
  const PicturePtr fromFile = LoadPicture(folder.Write("a.gif", bytes));
  const PicturePtr fromMemory = LoadPictureFromMemory(bytes.data(), bytes.size());
  EXPECT_EQ(fromFile->Type(), fromMemory->Type());
  EXPECT_EQ(fromFile->PixelWidth(), fromMemory->PixelWidth());
  EXPECT_EQ(fromFile->PixelHeight(), fromMemory->PixelHeight());
}
