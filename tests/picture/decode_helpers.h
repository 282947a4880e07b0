#pragma once
// Running the decoders on bytes the tests wrote, and what they must give.

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

#include "picture/byte_view.h"
#include "picture/image.h"
#include "vorlex/AutomationError.h"
#include "writers/bytes.h"

namespace vorlex::picture_test {

inline picture::ByteView View(const Bytes& bytes) { return picture::ByteView(bytes.data(), bytes.size()); }

// The decoded picture's size and pixels, top row first, each 0x00RRGGBB.
struct Decoded {
  int32_t width;
  int32_t height;
  std::vector<uint32_t> pixels;
  bool operator==(const Decoded&) const = default;
};

inline Decoded Of(const picture::Image& image) { return {image.width, image.height, image.pixels}; }

// Which pixels are drawn: 1 opaque, 0 transparent, top row first.
inline std::vector<int> OpaqueOf(const picture::Image& image) {
  return std::vector<int>(image.opaque.begin(), image.opaque.end());
}

// Whether running f raises the automation error of that number.
template <typename F>
::testing::AssertionResult Raises(int32_t number, F&& f) {
  try {
    f();
  } catch (const AutomationError& error) {
    if (error.Number() == number) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << "raised error " << error.Number() << " instead of " << number;
  }
  return ::testing::AssertionFailure() << "raised nothing, expected error " << number;
}

}  // namespace vorlex::picture_test

// The statement raises automation error `number`; a message may be streamed.
#define EXPECT_RAISES(number, statement) EXPECT_TRUE(::vorlex::picture_test::Raises((number), [&] { statement; }))
// The statement rejects its bytes as not a picture (error 481).
#define EXPECT_INVALID_PICTURE(statement) EXPECT_RAISES(::vorlex::kErrInvalidPicture, statement)
