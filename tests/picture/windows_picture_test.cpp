// What only Windows builds show: pictures from the platform's own loader, with
// real GDI handles, metafiles, and the loader's own choices (facts checked
// under Wine).

#ifdef _WIN32

#include <gtest/gtest.h>

#include "decode_helpers.h"
#include "picture_canvas.h"
#include "samples.h"
#include "writers/gif_writer.h"
#include "writers/ico_writer.h"
#include "writers/png_writer.h"
// After the GDI seam: <windows.h> defines macros with the names the seam declares.
#define WIN32_LEAN_AND_MEAN
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

using namespace vorlex;
using namespace vorlex::picture_test;

namespace {

PicturePtr Load(const Bytes& bytes) { return LoadPictureFromMemory(bytes.data(), bytes.size()); }

HGDIOBJ AsObject(uint32_t handle) { return reinterpret_cast<HGDIOBJ>(static_cast<uintptr_t>(handle)); }

IconImage Solid(int size, uint32_t colour) {
  const auto count = static_cast<size_t>(size * size);
  return {size, size, 32, IconDib(size, size, std::vector<uint32_t>(count, colour), std::vector<bool>(count, false))};
}

// An enhanced metafile of a filled rectangle, its frame 10 x 5 mm.
Bytes EnhancedMetafile() {
  const RECT frame{0, 0, 1000, 500};  // 0.01 mm
  const HDC dc = ::CreateEnhMetaFileW(nullptr, nullptr, &frame, nullptr);
  const RECT box{0, 0, 20, 10};
  const HBRUSH brush = ::CreateSolidBrush(RGB(0xE0, 0x10, 0x20));
  ::FillRect(dc, &box, brush);
  ::DeleteObject(brush);
  const HENHMETAFILE metafile = ::CloseEnhMetaFile(dc);
  Bytes bytes(::GetEnhMetaFileBits(metafile, 0, nullptr));
  ::GetEnhMetaFileBits(metafile, static_cast<UINT>(bytes.size()), bytes.data());
  ::DeleteEnhMetaFile(metafile);
  return bytes;
}

}  // namespace

TEST(WindowsPicture, BitmapHandlesAreGdiBitmaps) {
  for (const Bytes& file : {Bmp3x2(), Gif4x3(), Jpeg16x8(), Png3x1()}) {
    const PicturePtr picture = Load(file);
    EXPECT_EQ(::GetObjectType(AsObject(picture->Handle())), static_cast<DWORD>(OBJ_BITMAP));
    BITMAP info{};
    ASSERT_EQ(::GetObjectW(AsObject(picture->Handle()), sizeof info, &info), static_cast<int>(sizeof info));
    EXPECT_EQ(info.bmWidth, picture->PixelWidth());
    EXPECT_EQ(info.bmHeight, picture->PixelHeight());
  }
}

TEST(WindowsPicture, IconHandleIsAnIcon) {
  const PicturePtr picture = Load(Icon4x4());
  ICONINFO info{};
  ASSERT_TRUE(::GetIconInfo(reinterpret_cast<HICON>(static_cast<uintptr_t>(picture->Handle())), &info));
  EXPECT_TRUE(info.fIcon);
  if (info.hbmColor != nullptr) ::DeleteObject(info.hbmColor);
  if (info.hbmMask != nullptr) ::DeleteObject(info.hbmMask);
}

TEST(WindowsPicture, PngHandleLivesAsLongAsThePicture) {
  uint32_t handle = 0;
  {
    const PicturePtr picture = Load(Png3x1());
    handle = picture->Handle();
    EXPECT_EQ(::GetObjectType(AsObject(handle)), static_cast<DWORD>(OBJ_BITMAP));
  }
  EXPECT_EQ(::GetObjectType(AsObject(handle)), 0u);
}

TEST(WindowsPicture, EnhancedMetafileLoadsAndPlays) {
  const PicturePtr picture = Load(EnhancedMetafile());
  EXPECT_EQ(picture->Type(), kPicTypeEnhMetafile);
  EXPECT_NE(picture->Handle(), 0u);
  EXPECT_GT(picture->PixelWidth(), 0);
  EXPECT_GT(picture->PixelHeight(), 0);
  const PictureCanvas canvas(picture->PixelWidth() + 2, picture->PixelHeight() + 2);
  EXPECT_TRUE(canvas.Draw(*picture, 1, 1));
  EXPECT_EQ(canvas.At(0, 0), kPaper);
  EXPECT_EQ(canvas.At(2, 2), kRed);
}

TEST(WindowsPicture, IconLoaderPrefersThe32PixelImage) {
  const PicturePtr picture = Load(IcoFile({Solid(16, kRed), Solid(48, kGreen), Solid(32, kBlue)}));
  EXPECT_EQ(picture->Type(), kPicTypeIcon);
  EXPECT_EQ(picture->PixelWidth(), 32);
  const PictureCanvas canvas(1, 1);
  EXPECT_TRUE(canvas.Draw(*picture));
  EXPECT_EQ(canvas.At(0, 0), kBlue);
}

TEST(WindowsPicture, IconLoaderWithout32PixelImageTakesTheFirst) {
  const PicturePtr picture = Load(IcoFile({Solid(16, kRed), Solid(48, kGreen)}));
  EXPECT_EQ(picture->PixelWidth(), 16);
}

TEST(WindowsPicture, GifFrameOffTheOriginIsThePicture) {
  GifLayout layout;
  layout.width = 3;
  layout.height = 2;
  layout.palette = {kRed, kBlue};
  GifFrame frame;
  frame.left = 1;
  frame.top = 1;
  frame.indexes = {1};
  layout.frames.push_back(frame);
  const PicturePtr picture = Load(GifFile(layout));
  EXPECT_EQ(picture->PixelWidth(), 1);
  EXPECT_EQ(picture->PixelHeight(), 1);
}

#endif  // _WIN32
