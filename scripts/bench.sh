#!/usr/bin/env bash
# Runs the benchmarks natively (softgdi) and under Wine (the platform's GDI) in
# one go and prints a table of both with their ratio. Builds what it needs;
# scripts/test.sh sets the machine up.
#
#   scripts/bench.sh [BENCHMARK_FILTER]     e.g. scripts/bench.sh 'Gradient|Fill'
set -euo pipefail
repo="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
cd "$repo"
filter="${1:-.}"
min_time="${VORLEX_BENCH_MIN_TIME:-0.2}"

benches=(surface_bench redraw_bench)
cmake --preset native >/dev/null
cmake --build build/native --target "${benches[@]}" >/dev/null
cmake --preset win64 >/dev/null
cmake --build build/win64 --target "${benches[@]}" >/dev/null

out="$repo/build/bench"
mkdir -p "$out"
: >"$out/native.csv"
: >"$out/wine.csv"
for bench in "${benches[@]}"; do
  # A filter may match nothing in one of them.
  [[ -n "$("build/native/bench/$bench" --benchmark_list_tests --benchmark_filter="$filter" 2>/dev/null)" ]] || continue
  "build/native/bench/$bench" --benchmark_filter="$filter" --benchmark_min_time="$min_time" \
    --benchmark_format=csv >>"$out/native.csv" 2>/dev/null
  scripts/wine-run.sh "build/win64/bench/$bench.exe" --benchmark_filter="$filter" \
    --benchmark_min_time="$min_time" --benchmark_format=csv >>"$out/wine.csv" 2>/dev/null
done

# name,iterations,real_time,cpu_time,time_unit,...: CPU time in nanoseconds by name.
to_ns() {
  tr -d '\r' <"$1" | awk -F, 'NR > 1 && $1 ~ /^"?BM_/ {
    gsub(/"/, "", $1); f = ($5 == "us") ? 1e3 : (($5 == "ms") ? 1e6 : (($5 == "s") ? 1e9 : 1));
    printf "%s %.1f\n", $1, $4 * f }'
}
printf '%-44s %14s %14s %8s\n' benchmark "softgdi ns" "Wine GDI ns" ratio
join <(to_ns "$out/native.csv" | sort) <(to_ns "$out/wine.csv" | sort) |
  awk '{ printf "%-44s %14.1f %14.1f %8.2f\n", $1, $2, $3, ($2 > 0 ? $3 / $2 : 0) }'
echo "(ratio = Wine / softgdi; above 1 means softgdi is faster)"

# The ActiveX server's late binding, Windows only: IDispatch by id and by name
# beside the direct call, all in one run so the ratios compare.
cmake --build build/win64 --target activex_bench >/dev/null
echo
scripts/wine-run.sh build/win64/bench/activex_bench.exe --benchmark_min_time="$min_time" 2>/dev/null | tr -d '\r'
