#include "vorlex/Picture.h"

namespace vorlex {

namespace {
class NoPicture final : public Picture {
 public:
  int16_t Type() const override { return kPicTypeNone; }
  uint32_t Handle() const override { return 0; }
  int32_t PixelWidth() const override { return 0; }
  int32_t PixelHeight() const override { return 0; }
  bool Render(uintptr_t, int32_t, int32_t) const override { return true; }
};
}  // namespace

PicturePtr EmptyPicture() { return std::make_shared<NoPicture>(); }

}  // namespace vorlex
