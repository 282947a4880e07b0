#pragma once
// What every fuzz target does with its input: hands it to one decoder, where
// refusing it (automation error 481) is a correct outcome; anything else the
// sanitizers or libFuzzer catch is a failure.

#include <cstddef>
#include <cstdint>

#include "picture/byte_view.h"
#include "picture/image.h"
#include "vorlex/AutomationError.h"

namespace vorlex::fuzz {

template <typename Decode>
int RunDecoder(const uint8_t* data, size_t size, Decode decode) {
  try {
    const picture::Image image = decode(picture::ByteView(data, size));
    // Every decoded picture keeps its own promises.
    if (image.width <= 0 || image.height <= 0 ||
        image.pixels.size() != static_cast<size_t>(image.width) * static_cast<size_t>(image.height) ||
        image.opaque.size() != image.pixels.size()) {
      __builtin_trap();
    }
    for (uint32_t pixel : image.pixels) {
      if (pixel > 0x00FFFFFFu) __builtin_trap();
    }
  } catch (const AutomationError& error) {
    if (error.Number() != kErrInvalidPicture) __builtin_trap();
  }
  return 0;
}

}  // namespace vorlex::fuzz
