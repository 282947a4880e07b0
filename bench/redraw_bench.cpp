// RedrawBar, the hit test and live text at scale: the dashboard scene, many
// visible blocks, larger surfaces, 32,767 blocks to hit-test, and a long text
// full of tokens.

#include <benchmark/benchmark.h>

#include <memory>
#include <string>
#include <vector>

#include "compose/live_text.h"
#include "control/block_definition.h"
#include "dashboard_scene.h"
#include "vorlex/ClockService.h"
#include "vorlex/DiskService.h"
#include "vorlex/FormText.h"
#include "vorlex/HeadlessSite.h"
#include "vorlex/Vorlex.h"

namespace {

using vorlex::HeadlessSite;
using vorlex::Variant;
using vorlex::VARIANT_FALSE;
using vorlex::VARIANT_TRUE;
using vorlex::Vorlex;

// A 1 GiB drive C, half free, whatever the machine has.
class HalfFreeDisk : public vorlex::DiskService {
 public:
  bool GetDiskFreeSpaceA(const std::string& root, int32_t& sectors, int32_t& bytes, int32_t& free,
                         int32_t& total) override {
    if (root != "C:\\") return false;
    sectors = 8;
    bytes = 512;
    free = 131072;
    total = 262144;
    return true;
  }
};

std::unique_ptr<HeadlessSite> MakeSite(int width, int height) {
  auto site = std::make_unique<HeadlessSite>(width, height);
  site->SetDisks(std::make_unique<HalfFreeDisk>());
  site->SetClock(vorlex::FixedClock({2026, 11, 22, 16, 30, 5}));
  return site;
}

void BM_RedrawDashboard(benchmark::State& state) {
  auto site = MakeSite(vorlex::bench::kDashboardWidth, vorlex::bench::kDashboardHeight);
  Vorlex control(*site);
  control.InitProperties();
  vorlex::bench::BuildDashboard(control);
  for (auto _ : state) control.Refresh();
}
BENCHMARK(BM_RedrawDashboard)->Unit(benchmark::kMicrosecond);

// The reference dashboard form itself, loaded from its file.
void BM_RedrawDashboardForm(benchmark::State& state) {
  auto site = MakeSite(vorlex::bench::kDashboardWidth, vorlex::bench::kDashboardHeight);
  Vorlex control(*site);
  std::vector<vorlex::FormControl> forms = vorlex::LoadForm(VORLEX_DASHBOARD_FORM);
  vorlex::ApplyForm(control, forms.at(0), VORLEX_DASHBOARD_FORM);
  for (auto _ : state) control.Refresh();
}
BENCHMARK(BM_RedrawDashboardForm)->Unit(benchmark::kMicrosecond);

// n plain blocks side by side, each visible, on an 800 x 64 bar.
void AddStrip(Vorlex& control, int count) {
  control.put_Redraw(VARIANT_FALSE);
  control.put_HMaxValue(static_cast<int16_t>(count < 32767 ? count : 32767));
  for (int i = 1; i <= count; ++i) {
    control.AddBlock();
    control.put_BlockBarLeft(static_cast<int16_t>(i - 1), Variant(i));
    control.put_BlockBarRight(static_cast<int16_t>(i), Variant(i));
    control.put_BlockColor(static_cast<vorlex::OLE_COLOR>(i * 0x010203), Variant(i));
  }
  control.put_Redraw(VARIANT_TRUE);
}

void BM_RedrawVisibleBlocks(benchmark::State& state) {
  auto site = MakeSite(800, 64);
  Vorlex control(*site);
  control.InitProperties();
  AddStrip(control, static_cast<int>(state.range(0)));
  for (auto _ : state) control.Refresh();
  state.SetComplexityN(state.range(0));
}
BENCHMARK(BM_RedrawVisibleBlocks)->Arg(10)->Arg(100)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);

// The dashboard's 32 blocks stretched over growing surfaces.
void BM_RedrawDashboardAtSize(benchmark::State& state) {
  auto site = MakeSite(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
  Vorlex control(*site);
  control.InitProperties();
  vorlex::bench::BuildDashboard(control);
  for (auto _ : state) control.Refresh();
}
BENCHMARK(BM_RedrawDashboardAtSize)
    ->Args({400, 32})
    ->Args({800, 64})
    ->Args({1600, 128})
    ->Args({3200, 256})
    ->Unit(benchmark::kMicrosecond);

// A release that misses every one of 32,767 clickable blocks: the whole list is tested.
void BM_HitTestMiss32767(benchmark::State& state) {
  auto site = MakeSite(800, 64);
  Vorlex control(*site);
  control.InitProperties();
  control.put_Redraw(VARIANT_FALSE);
  for (int i = 1; i <= 32767; ++i) control.AddBlock();
  control.put_Redraw(VARIANT_TRUE);
  control.Refresh();  // unit sizes; every block keeps its -1 bar values
  for (auto _ : state) {
    control.UserControl_MouseUp(1, 0, 400.0f, 32.0f);
    site->ClearRecords();
  }
}
BENCHMARK(BM_HitTestMiss32767)->Unit(benchmark::kMicrosecond);

// 200 characters with 10 tokens: times, dates, disk figures and percentages.
void BM_ExpandTwoHundredCharactersTenTokens(benchmark::State& state) {
  HalfFreeDisk disks;
  const auto clock = vorlex::FixedClock({2026, 11, 22, 16, 30, 5});
  vorlex::BlockDefinition block;
  vorlex::ApplyNewBlockDefaults(block, nullptr);
  block.HPercentage = "25";
  block.VPercentage = "75";
  const std::string text =
      "Time !short time! / !long time!, date !long date! (!short date!), C: !disk free:c! free of "
      "!disk total:c!, !ratio used:c! used, !disk used:c! taken; size !h%! by !v%!, as of this redraw of the bar....";
  for (auto _ : state) {
    vorlex::LiveTextContext context{disks, *clock, block, 100, 100};
    benchmark::DoNotOptimize(vorlex::ExpandLiveText(text, context));
  }
}
BENCHMARK(BM_ExpandTwoHundredCharactersTenTokens)->Unit(benchmark::kMicrosecond);

}  // namespace
