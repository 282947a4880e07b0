// The fast drawing functions against the plain per-pixel ones: random scenes
// from fixed seeds drawn both ways must leave identical pixels after every
// operation, and so must the GDI calls themselves.

#include <cstdint>
#include <string>
#include <vector>

#include "platform/soft/object_table.h"
#include "softgdi/random_scene.h"
#include "softgdi/scene_painters.h"
#include "softgdi/soft_canvas.h"

namespace softgdi_test {
namespace {

class SoftGdiFastPath : public LeakChecked {};

constexpr int kMaxWidth = 120;
constexpr int kMaxHeight = 80;

::testing::AssertionResult SamePixels(const std::vector<uint32_t>& fast, const std::vector<uint32_t>& plain,
                                      int width) {
  for (size_t i = 0; i < fast.size(); ++i) {
    if (fast[i] == plain[i]) continue;
    const auto x = static_cast<int>(i % static_cast<size_t>(width));
    const auto y = static_cast<int>(i / static_cast<size_t>(width));
    return ::testing::AssertionFailure() << "first difference at (" << x << ", " << y << "): 0x" << std::hex << fast[i]
                                         << " instead of 0x" << plain[i];
  }
  return ::testing::AssertionSuccess();
}

std::string Where(uint32_t seed, int width, int height, int step, const Op& op) {
  return "seed " + std::to_string(seed) + ", " + std::to_string(width) + " x " + std::to_string(height) +
         " bitmap, operation " + std::to_string(step) + ": " + Describe(op);
}

// One scene: a random bitmap of random pixels, drawn on `operations` times
// along both paths; a blit may read a second random bitmap.
void ExpectPathsAgree(uint32_t seed, int operations, const OpMix& mix) {
  SceneRandom random(seed, kMaxWidth, kMaxHeight);
  const int width = random.Width();
  const int height = random.Height();
  Pixmap fast{width, height, Noise(random, width, height)};
  Pixmap plain = fast;
  const int otherWidth = random.Uniform(1, kMaxWidth);
  const int otherHeight = random.Uniform(1, kMaxHeight);
  Pixmap other{otherWidth, otherHeight, Noise(random, otherWidth, otherHeight)};
  for (int step = 0; step < operations; ++step) {
    const Op op = random.Next(mix);
    Paint(kFastPath, op, fast, other);
    Paint(kPlainPath, op, plain, other);
    ASSERT_TRUE(SamePixels(fast.pixels, plain.pixels, width)) << Where(seed, width, height, step, op);
  }
}

void ExpectScenesAgree(uint32_t firstSeed, int scenes, int operations, const OpMix& mix) {
  for (int scene = 0; scene < scenes; ++scene) {
    ExpectPathsAgree(firstSeed + static_cast<uint32_t>(scene), operations, mix);
    if (::testing::Test::HasFatalFailure()) return;
  }
}

TEST_F(SoftGdiFastPath, SolidAndHatchedFillsInBothModes) {
  ExpectScenesAgree(1000, 1000, 20, {true, false, false, false, true});
}

TEST_F(SoftGdiFastPath, EllipsesOfEverySizeWithAndWithoutAPen) {
  ExpectScenesAgree(2000, 1000, 20, {false, true, false, false, true});
}

TEST_F(SoftGdiFastPath, LinesOfWidthsZeroToFiveInEveryDirection) {
  ExpectScenesAgree(3000, 1000, 30, {false, false, true, false, true});
}

TEST_F(SoftGdiFastPath, OverlappingBlitsWithinAndBetweenBitmaps) {
  ExpectScenesAgree(4000, 1000, 20, {true, false, false, true, true});
}

TEST_F(SoftGdiFastPath, MixedScenes) { ExpectScenesAgree(5000, 1000, 30, {}); }

// Sets a bitmap's pixels directly.
void Load(HBITMAP bitmap, const std::vector<uint32_t>& pixels) {
  const auto lock = soft::LockObjects();
  soft::Bitmap* data = soft::Objects().Get<soft::Bitmap>(soft::ValueOf(bitmap));
  ASSERT_NE(data, nullptr);
  data->pixels = pixels;
}

TEST_F(SoftGdiFastPath, TheGdiCallsDrawWhatThePlainPathDraws) {
  const OpMix mix{true, true, true, true, false};
  for (uint32_t seed = 6000; seed < 6300; ++seed) {
    SceneRandom random(seed, kMaxWidth, kMaxHeight);
    const int width = random.Width();
    const int height = random.Height();
    Pixmap plain{width, height, Noise(random, width, height)};
    const int otherWidth = random.Uniform(1, kMaxWidth);
    const int otherHeight = random.Uniform(1, kMaxHeight);
    Pixmap other{otherWidth, otherHeight, Noise(random, otherWidth, otherHeight)};
    const Canvas canvas(width, height);
    const Canvas otherCanvas(otherWidth, otherHeight);
    Load(canvas.bitmap(), plain.pixels);
    Load(otherCanvas.bitmap(), other.pixels);
    for (int step = 0; step < 20; ++step) {
      const Op op = random.Next(mix);
      PaintThroughGdi(op, canvas.dc(), otherCanvas.dc());
      Paint(kPlainPath, op, plain, other);
      ASSERT_TRUE(SamePixels(canvas.Read().argb, plain.pixels, width)) << Where(seed, width, height, step, op);
    }
  }
}

}  // namespace
}  // namespace softgdi_test
