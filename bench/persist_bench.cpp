// Saving and loading controls of 1,000 and 10,000 blocks as form text, and
// through a bag in memory.

#include <benchmark/benchmark.h>

#include <string>

#include "vorlex/FormText.h"
#include "vorlex/HeadlessSite.h"
#include "vorlex/Vorlex.h"

namespace {

// A bar of n blocks, each with a handful of fields off their defaults.
void Fill(vorlex::Vorlex& control, int n) {
  control.InitProperties();
  control.put_Redraw(vorlex::VARIANT_FALSE);
  for (int i = 1; i <= n; ++i) {
    control.AddBlock();
    const vorlex::Variant b(static_cast<int16_t>(i));
    control.put_BlockKey("b" + std::to_string(i), b);
    control.put_BlockBarLeft(static_cast<int16_t>(i % 100), b);
    control.put_BlockBarRight(static_cast<int16_t>(i % 100 + 1), b);
    control.put_BlockColor(static_cast<vorlex::OLE_COLOR>(i * 2654435761u) & 0xFFFFFF, b);
    control.put_BlockText(i % 2 ? "!h%!" : "B", b);
    control.put_BlockGradientStyle(i % 12, b);
  }
}

// Not written: no picture is saved, so the form's folder is never touched.
const std::string kFormPath = "persist_bench.frm";

void SaveFormTextBlocks(benchmark::State& state) {
  vorlex::HeadlessSite site;
  vorlex::Vorlex control(site);
  Fill(control, static_cast<int>(state.range(0)));
  size_t bytes = 0;
  for (auto _ : state) {
    const std::string text = vorlex::SaveFormText(control, "Bar", kFormPath);
    bytes = text.size();
    benchmark::DoNotOptimize(text.data());
  }
  state.SetBytesProcessed(static_cast<int64_t>(bytes) * state.iterations());
}
BENCHMARK(SaveFormTextBlocks)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

void LoadFormTextBlocks(benchmark::State& state) {
  vorlex::HeadlessSite site;
  vorlex::Vorlex control(site);
  Fill(control, static_cast<int>(state.range(0)));
  const std::string text = vorlex::SaveFormText(control, "Bar", kFormPath);
  for (auto _ : state) {
    std::vector<vorlex::FormControl> forms = vorlex::ReadFormText(text, kFormPath);
    vorlex::HeadlessSite target;
    vorlex::Vorlex loaded(target);
    vorlex::ApplyForm(loaded, forms.at(0), kFormPath);
    benchmark::DoNotOptimize(loaded.get_Blocks());
  }
  state.SetBytesProcessed(static_cast<int64_t>(text.size()) * state.iterations());
}
BENCHMARK(LoadFormTextBlocks)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

void WritePropertiesBlocks(benchmark::State& state) {
  vorlex::HeadlessSite site;
  vorlex::Vorlex control(site);
  Fill(control, static_cast<int>(state.range(0)));
  for (auto _ : state) {
    vorlex::MemoryPropertyBag bag;
    control.UserControl_WriteProperties(bag);
    benchmark::DoNotOptimize(bag.Size());
  }
}
BENCHMARK(WritePropertiesBlocks)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

void ReadPropertiesBlocks(benchmark::State& state) {
  vorlex::HeadlessSite site;
  vorlex::Vorlex control(site);
  Fill(control, static_cast<int>(state.range(0)));
  vorlex::MemoryPropertyBag bag;
  control.UserControl_WriteProperties(bag);
  for (auto _ : state) {
    vorlex::HeadlessSite target;
    vorlex::Vorlex loaded(target);
    loaded.UserControl_ReadProperties(bag);
    benchmark::DoNotOptimize(loaded.get_Blocks());
  }
}
BENCHMARK(ReadPropertiesBlocks)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

}  // namespace
