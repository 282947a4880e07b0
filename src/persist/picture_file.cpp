#include "persist/picture_file.h"

#include "picture/format.h"
#include "platform/gdi.h"

namespace vorlex {

namespace {

void Put16(std::vector<uint8_t>& out, uint32_t v) {
  out.push_back(static_cast<uint8_t>(v));
  out.push_back(static_cast<uint8_t>(v >> 8));
}
void Put32(std::vector<uint8_t>& out, uint32_t v) {
  Put16(out, v & 0xFFFF);
  Put16(out, v >> 16);
}

std::string ExtensionOf(const std::vector<uint8_t>& bytes) {
  using picture::PictureFormat;
  switch (picture::DetectFormat(picture::ByteView(bytes.data(), bytes.size()))) {
    case PictureFormat::Bmp:
      return "bmp";
    case PictureFormat::Icon:
      return "ico";
    case PictureFormat::Gif:
      return "gif";
    case PictureFormat::Jpeg:
      return "jpg";
    case PictureFormat::Png:
      return "png";
    case PictureFormat::Metafile:
      return "wmf";
    case PictureFormat::EnhancedMetafile:
      return "emf";
    default:
      return "bin";
  }
}

// The picture drawn on white into a bitmap of its size.
gdi::Pixels Rendered(const Picture& picture) {
  gdi::Pixels pixels;
  const int w = picture.PixelWidth();
  const int h = picture.PixelHeight();
  if (w <= 0 || h <= 0) return pixels;
  const gdi::HDC screen = gdi::GetDC(nullptr);
  const gdi::HDC dc = gdi::CreateCompatibleDC(screen);
  const gdi::HBITMAP bitmap = gdi::CreateCompatibleBitmap(screen, w, h);
  const gdi::HGDIOBJ old = gdi::SelectObject(dc, bitmap);
  const gdi::HBRUSH white = gdi::CreateSolidBrush(0xFFFFFF);
  const gdi::RECT all{0, 0, w, h};
  gdi::FillRect(dc, &all, white);
  gdi::DeleteObject(white);
  picture.Render(reinterpret_cast<uintptr_t>(dc), 0, 0);
  gdi::ReadPixels(dc, pixels);
  gdi::SelectObject(dc, old);
  gdi::DeleteObject(bitmap);
  gdi::DeleteDC(dc);
  gdi::ReleaseDC(nullptr, screen);
  return pixels;
}

}  // namespace

std::vector<uint8_t> Bmp24(int32_t width, int32_t height, const std::vector<uint32_t>& pixels) {
  const uint32_t stride = (static_cast<uint32_t>(width) * 3 + 3) & ~3u;
  const uint32_t imageSize = stride * static_cast<uint32_t>(height);
  std::vector<uint8_t> out;
  out.reserve(54 + imageSize);
  out.push_back('B');
  out.push_back('M');
  Put32(out, 54 + imageSize);
  Put32(out, 0);
  Put32(out, 54);
  Put32(out, 40);
  Put32(out, static_cast<uint32_t>(width));
  Put32(out, static_cast<uint32_t>(height));
  Put16(out, 1);
  Put16(out, 24);
  Put32(out, 0);
  Put32(out, imageSize);
  Put32(out, 2835);
  Put32(out, 2835);
  Put32(out, 0);
  Put32(out, 0);
  for (int32_t y = height - 1; y >= 0; --y) {
    for (int32_t x = 0; x < width; ++x) {
      const uint32_t rgb = pixels[static_cast<size_t>(y) * static_cast<size_t>(width) + static_cast<size_t>(x)];
      out.push_back(static_cast<uint8_t>(rgb));
      out.push_back(static_cast<uint8_t>(rgb >> 8));
      out.push_back(static_cast<uint8_t>(rgb >> 16));
    }
    for (uint32_t pad = static_cast<uint32_t>(width) * 3; pad < stride; ++pad) out.push_back(0);
  }
  return out;
}

PictureFile PictureFileOf(const Picture& picture) {
  PictureFile file;
  file.bytes = picture.SaveAsFile();
  if (!file.bytes.empty()) {
    file.extension = ExtensionOf(file.bytes);
    return file;
  }
  const gdi::Pixels pixels = Rendered(picture);
  if (pixels.argb.empty()) return file;
  file.bytes = Bmp24(pixels.width, pixels.height, pixels.argb);
  file.extension = "bmp";
  return file;
}

}  // namespace vorlex
