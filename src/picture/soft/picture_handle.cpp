// Picture handles where there is no platform bitmap: numbers from a counter,
// unique among live pictures until the counter wraps after 2^32 pictures.

#include "picture/picture_handle.h"

#include <atomic>

namespace vorlex::picture {

namespace {
std::atomic<uint32_t> next_handle{0x00010000};
}  // namespace

PictureHandle::PictureHandle(const Image&) {
  do {
    value_ = next_handle.fetch_add(1);
  } while (Value() == 0);
}

PictureHandle::~PictureHandle() = default;

}  // namespace vorlex::picture
