#pragma once
// A picture box of a page: a softgdi memory context of the box's size that
// the page's logic paints into, shown as an image. It also shows a picture
// object at its natural size from the top-left corner.

#include <QColor>
#include <QImage>
#include <QWidget>

#include "editors/page_view.h"

namespace vorlex::qt {

class PreviewBox final : public QWidget {
 public:
  PreviewBox(int width, int height, QWidget* parent = nullptr);
  ~PreviewBox() override;
  PreviewBox(const PreviewBox&) = delete;
  PreviewBox& operator=(const PreviewBox&) = delete;

  editors::PreviewTarget Begin();
  // Shows what the context holds now.
  void End();
  // Back to the plain back colour.
  void Clear();
  void SetBackColor(OLE_COLOR color);
  void SetPicture(const PicturePtr& picture);
  const QImage& Image() const { return image_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void Fill();
  OLE_COLOR back_ = 0xFFFFFF;
  uintptr_t dc_ = 0;
  uintptr_t bitmap_ = 0;
  uintptr_t previous_ = 0;
  QImage image_;
};

}  // namespace vorlex::qt
