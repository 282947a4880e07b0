// The block list at scale: adding, per-block access by number and by key, and
// snapshots of 10,000 blocks.

#include <benchmark/benchmark.h>

#include <string>

#include "control/block_definition.h"
#include "vorlex/HeadlessSite.h"
#include "vorlex/Vorlex.h"

namespace {

using vorlex::Variant;

constexpr int kBlocks = 10000;

struct Bar {
  Bar() {
    control.InitProperties();
    for (int i = 0; i < kBlocks; ++i) control.AddBlock();
    for (int i = 1; i <= kBlocks; ++i) control.put_BlockKey("block" + std::to_string(i), Variant(i));
  }
  vorlex::HeadlessSite site;
  vorlex::Vorlex control{site};
};

Bar& SharedBar() {
  static Bar bar;
  return bar;
}

void BM_AddBlockTo10000(benchmark::State& state) {
  for (auto _ : state) {
    vorlex::HeadlessSite site;
    vorlex::Vorlex control(site);
    control.InitProperties();
    for (int i = 0; i < kBlocks; ++i) control.AddBlock();
    benchmark::DoNotOptimize(control.get_Blocks());
  }
  state.counters["bytes_per_block"] = static_cast<double>(sizeof(vorlex::BlockDefinition));
}
BENCHMARK(BM_AddBlockTo10000)->Unit(benchmark::kMillisecond);

void BM_GetByNumber(benchmark::State& state) {
  Bar& bar = SharedBar();
  const Variant block(static_cast<int16_t>(kBlocks / 2));
  for (auto _ : state) benchmark::DoNotOptimize(bar.control.get_BlockColor(block));
}
BENCHMARK(BM_GetByNumber);

void BM_LetByNumber(benchmark::State& state) {
  Bar& bar = SharedBar();
  const Variant block(static_cast<int16_t>(kBlocks / 2));
  vorlex::OLE_COLOR color = 0;
  for (auto _ : state) bar.control.put_BlockColor(++color & 0xFFFFFF, block);
}
BENCHMARK(BM_LetByNumber);

// Keys are found by a walk from block 1: the cost grows with the block's place.
void BM_GetByKey(benchmark::State& state) {
  Bar& bar = SharedBar();
  const Variant key("block" + std::to_string(state.range(0)));
  for (auto _ : state) benchmark::DoNotOptimize(bar.control.get_BlockColor(key));
}
BENCHMARK(BM_GetByKey)->Arg(1)->Arg(kBlocks / 2)->Arg(kBlocks);

void BM_LetByKey(benchmark::State& state) {
  Bar& bar = SharedBar();
  const Variant key("block" + std::to_string(state.range(0)));
  vorlex::OLE_COLOR color = 0;
  for (auto _ : state) bar.control.put_BlockColor(++color & 0xFFFFFF, key);
}
BENCHMARK(BM_LetByKey)->Arg(1)->Arg(kBlocks / 2)->Arg(kBlocks);

void BM_SaveSetting10000(benchmark::State& state) {
  Bar& bar = SharedBar();
  for (auto _ : state) bar.control.SaveSetting();
}
BENCHMARK(BM_SaveSetting10000)->Unit(benchmark::kMicrosecond);

void BM_RestoreSetting10000(benchmark::State& state) {
  Bar& bar = SharedBar();
  bar.control.SaveSetting();
  for (auto _ : state) bar.control.RestoreSetting();
}
BENCHMARK(BM_RestoreSetting10000)->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
