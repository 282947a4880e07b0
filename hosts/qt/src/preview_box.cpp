#include "preview_box.h"

#include <QPainter>

#include "platform/gdi.h"
#include "qt_convert.h"

namespace vorlex::qt {

PreviewBox::PreviewBox(int width, int height, QWidget* parent) : QWidget(parent) {
  setFixedSize(width, height);
  setAttribute(Qt::WA_OpaquePaintEvent);
  gdi::HDC screen = gdi::GetDC(nullptr);
  gdi::HDC dc = gdi::CreateCompatibleDC(screen);
  gdi::HBITMAP bitmap = gdi::CreateCompatibleBitmap(screen, width, height);
  previous_ = reinterpret_cast<uintptr_t>(gdi::SelectObject(dc, bitmap));
  gdi::ReleaseDC(nullptr, screen);
  dc_ = reinterpret_cast<uintptr_t>(dc);
  bitmap_ = reinterpret_cast<uintptr_t>(bitmap);
  Clear();
}

PreviewBox::~PreviewBox() {
  auto dc = reinterpret_cast<gdi::HDC>(dc_);
  if (previous_) gdi::SelectObject(dc, reinterpret_cast<gdi::HGDIOBJ>(previous_));
  if (bitmap_) gdi::DeleteObject(reinterpret_cast<gdi::HGDIOBJ>(bitmap_));
  if (dc) gdi::DeleteDC(dc);
}

editors::PreviewTarget PreviewBox::Begin() { return {dc_, static_cast<float>(width()), static_cast<float>(height())}; }

void PreviewBox::End() {
  gdi::Pixels pixels;
  if (!gdi::ReadPixels(reinterpret_cast<gdi::HDC>(dc_), pixels)) return;
  QImage image(pixels.width, pixels.height, QImage::Format_RGB32);
  for (int y = 0; y < pixels.height; ++y) {
    auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (int x = 0; x < pixels.width; ++x)
      row[x] = 0xFF000000u |
               pixels.argb[static_cast<size_t>(y) * static_cast<size_t>(pixels.width) + static_cast<size_t>(x)];
  }
  image_ = std::move(image);
  update();
}

void PreviewBox::Fill() {
  const QColor c = ToQColor(back_);
  gdi::Pixels pixels;
  pixels.width = width();
  pixels.height = height();
  pixels.argb.assign(static_cast<size_t>(pixels.width) * static_cast<size_t>(pixels.height),
                     static_cast<uint32_t>(c.rgb() & 0xFFFFFF));
  gdi::WritePixels(reinterpret_cast<gdi::HDC>(dc_), pixels);
}

void PreviewBox::Clear() {
  Fill();
  End();
}

void PreviewBox::SetBackColor(OLE_COLOR color) {
  back_ = color;
  Clear();
}

void PreviewBox::SetPicture(const PicturePtr& picture) {
  Fill();
  if (picture) picture->Render(dc_, 0, 0);
  End();
}

void PreviewBox::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.drawImage(QRect(0, 0, image_.width(), image_.height()), image_);
}

}  // namespace vorlex::qt
