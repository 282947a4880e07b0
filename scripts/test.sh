#!/usr/bin/env bash
# Sets up a Debian machine, builds every preset and runs the test suites:
#   native, native-asan   ctest
#   fuzz                  the fuzz targets (pictures, form text, .frx records; clang, libFuzzer), a few seconds each
#   win64                 ctest, every test executable under Wine
#   win32                 Vorlex.ocx and the tool built and linked; the whole
#                         build and its tests only where a 32-bit Wine works
# Ends with one line "N passed, N failed" (test cases over every suite that ran;
# skipped and disabled ones are counted on the line before) and exits non-zero
# when a build or a test failed.
#
# Environment:
#   VORLEX_JOBS           parallel build and test jobs (default: ninja's and nproc)
#   VORLEX_WINEPREFIX     the Wine prefix (default: build/wineprefix)
#   VORLEX_TEST_TIMEOUT   seconds allowed to one test (default 300; doubled under
#                         the sanitizers, tripled under Wine)
#   VORLEX_FUZZ_SECONDS   seconds each fuzz target runs (default 5)
set -euo pipefail

repo="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
cd "$repo"

# ---------------------------------------------------------------------------
# Set-up: install only what is missing.

# shellcheck source=apt-needs.sh
source "$repo/scripts/apt-needs.sh"
need_build_packages
need_host_packages
need_file /usr/src/googletest/CMakeLists.txt googletest
need_file /usr/include/benchmark/benchmark.h libbenchmark-dev
need_command x86_64-w64-mingw32-g++-posix g++-mingw-w64-x86-64
need_command i686-w64-mingw32-g++-posix g++-mingw-w64-i686
[[ -x /usr/lib/wine/wine64 ]] || need_command wine64 wine64
need_file /usr/bin/wine wine

# libFuzzer for the fuzz targets, when clang is there: Debian ships it in the
# runtime package of clang's version (libclang-rt-14-dev for clang 14).
fuzzer_links() {
  mkdir -p "$repo/build"
  echo 'extern "C" int LLVMFuzzerTestOneInput(const unsigned char*, unsigned long) { return 0; }' |
    clang++ -x c++ -fsanitize=fuzzer -o "$repo/build/fuzzer-probe" - >/dev/null 2>&1
}
clang_major="$(clang++ --version 2>/dev/null | sed -n 's/.*clang version \([0-9][0-9]*\).*/\1/p' | head -n 1 || true)"
if [[ -n "$clang_major" ]] && ! fuzzer_links; then
  missing+=("libclang-rt-$clang_major-dev")
fi

install_needed "$repo/build/apt.log"

# Google Benchmark for the Windows builds comes from Debian's source package:
# Debian ships it built for Linux only. A failure here only leaves the Windows
# benchmarks out.
fetch_benchmark_source() {
  local deps="$repo/build/deps"
  [[ -f "$deps/benchmark-1.7.1/CMakeLists.txt" ]] && return 0
  mkdir -p "$deps"
  if ! apt-cache showsrc benchmark >/dev/null 2>&1; then
    printf 'Types: deb-src\nURIs: http://deb.debian.org/debian\nSuites: bookworm\nComponents: main\nSigned-By: /usr/share/keyrings/debian-archive-keyring.gpg\n' \
      >/etc/apt/sources.list.d/vorlex-deb-src.sources 2>/dev/null || return 1
    apt-get update -q >>"$repo/build/apt.log" 2>&1 </dev/null || return 1
  fi
  (cd "$deps" && apt-get source -q --download-only benchmark=1.7.1-1 >>"$repo/build/apt.log" 2>&1 </dev/null &&
    tar xzf benchmark_1.7.1.orig.tar.gz) || return 1
}
mkdir -p build
fetch_benchmark_source || echo "== note: no Google Benchmark source for the Windows builds; their benchmarks are left out"

jobs="${VORLEX_JOBS:-$(nproc)}"
build_jobs=()
[[ -n "${VORLEX_JOBS:-}" ]] && build_jobs=(--parallel "$VORLEX_JOBS")
test_timeout="${VORLEX_TEST_TIMEOUT:-300}"

results="$repo/build/test-results"
mkdir -p "$results"

failures=()   # what went wrong, beyond failed test cases
total_passed=0
total_failed=0
total_skipped=0

# ---------------------------------------------------------------------------
# Builds.

declare -A built=()

# A build folder configured from another source folder or with another
# generator (a copied tree, say) cannot be reused.
clear_stale_build() {
  local dir="$repo/build/$1" cache home gen
  cache="$dir/CMakeCache.txt"
  [[ -f "$cache" ]] || return 0
  home="$(sed -n 's/^CMAKE_HOME_DIRECTORY:INTERNAL=//p' "$cache")"
  gen="$(sed -n 's/^CMAKE_GENERATOR:INTERNAL=//p' "$cache")"
  if [[ "$home" != "$repo" || "$gen" != "Ninja" ]]; then
    echo "== $1: removing a build folder configured elsewhere"
    rm -rf "$dir"
  fi
}

# Without a 32-bit Wine (Debian's wine32, whose loader is /usr/lib/wine/wine)
# the win32 tests cannot run: that build makes only the control and the tool.
targets_of() {
  if [[ "$1" == win32 && ! -x /usr/lib/wine/wine ]]; then
    echo "--target Vorlex vorlex_tool"
  fi
}

# The benchmarks are compiled natively; the Windows ones only by scripts/bench.sh,
# which runs them.
configure_args_of() {
  if [[ "$1" == win64 ]]; then
    echo "-DVORLEX_BENCH=OFF"
  fi
}

for preset in native native-asan win64 win32; do
  echo "== configure $preset"
  clear_stale_build "$preset"
  # shellcheck disable=SC2046  # the argument words split on purpose
  if ! cmake --preset "$preset" $(configure_args_of "$preset"); then
    failures+=("the $preset configuration failed")
    continue
  fi
  echo "== build $preset $(targets_of "$preset")"
  # shellcheck disable=SC2046  # the target words split on purpose
  if ! cmake --build --preset "$preset" "${build_jobs[@]}" $(targets_of "$preset"); then
    failures+=("the $preset build failed")
    continue
  fi
  built[$preset]=1
done

# ---------------------------------------------------------------------------
# Counting.

# ctest's JUnit report: one test case per CTest test.
count_ctest_junit() {
  local file="$1" status
  TIER_PASSED=0 TIER_FAILED=0 TIER_SKIPPED=0
  [[ -f "$file" ]] || return 0
  while IFS= read -r status; do
    case "$status" in
      run) TIER_PASSED=$((TIER_PASSED + 1)) ;;
      fail) TIER_FAILED=$((TIER_FAILED + 1)) ;;
      *) TIER_SKIPPED=$((TIER_SKIPPED + 1)) ;;
    esac
  done < <(sed -n 's/^[[:space:]]*<testcase .* status="\([a-z]*\)".*/\1/p' "$file")
}

# An attribute of the <testsuites> element of a GoogleTest XML report.
gtest_attr() {
  local tag value
  tag="$(tr '\r\n' '  ' <"$1" | grep -o '<testsuites [^>]*>' | head -n 1 || true)"
  value="$(sed -n 's/.*[[:space:]]'"$2"'="\([0-9]*\)".*/\1/p' <<<"$tag")"
  echo "${value:-0}"
}

# GoogleTest XML reports, one per executable, checked against ctest's report of
# the executables: one that failed without a failed case (a crash, a timeout),
# or that wrote no report at all, counts as one failed case.
count_gtest_xml() {
  local junit="$1" xmldir="$2" xml tests failed disabled skipped name status
  TIER_PASSED=0 TIER_FAILED=0 TIER_SKIPPED=0
  for xml in "$xmldir"/*.xml; do
    [[ -f "$xml" ]] || continue
    tests="$(gtest_attr "$xml" tests)"
    failed=$(($(gtest_attr "$xml" failures) + $(gtest_attr "$xml" errors)))
    disabled="$(gtest_attr "$xml" disabled)"
    skipped="$(grep -c 'result="skipped"' "$xml" || true)"
    TIER_PASSED=$((TIER_PASSED + tests - failed - disabled - skipped))
    TIER_FAILED=$((TIER_FAILED + failed))
    TIER_SKIPPED=$((TIER_SKIPPED + disabled + skipped))
  done
  [[ -f "$junit" ]] || return 0
  while read -r name status; do
    xml="$xmldir/$name.xml"
    if [[ "$status" == fail ]]; then
      if [[ ! -f "$xml" ]] || (($(gtest_attr "$xml" failures) + $(gtest_attr "$xml" errors) == 0)); then
        TIER_FAILED=$((TIER_FAILED + 1))
      fi
    elif [[ ! -f "$xml" ]]; then
      echo "== $name ran but wrote no test report"
      TIER_FAILED=$((TIER_FAILED + 1))
    fi
  done < <(sed -n 's/^[[:space:]]*<testcase name="\([^"]*\)".* status="\([a-z]*\)".*/\1 \2/p' "$junit")
}

add_tier() {
  echo "== $1 results: passed $TIER_PASSED, failed $TIER_FAILED, skipped $TIER_SKIPPED"
  total_passed=$((total_passed + TIER_PASSED))
  total_failed=$((total_failed + TIER_FAILED))
  total_skipped=$((total_skipped + TIER_SKIPPED))
}

# ---------------------------------------------------------------------------
# Native suites.

run_native() {
  local preset="$1" timeout="$2" junit="$results/$1.xml" rc=0
  echo "== test $preset"
  rm -f "$junit"
  timeout -k 30 1800 ctest --test-dir "build/$preset" -j "$jobs" --timeout "$timeout" \
    --output-on-failure --no-tests=error --output-junit "$junit" </dev/null || rc=$?
  count_ctest_junit "$junit"
  add_tier "$preset"
  if ((rc != 0 && TIER_FAILED == 0)); then
    failures+=("ctest for $preset exited with status $rc")
  fi
}

if [[ -n "${built[native]:-}" ]]; then
  run_native native "$test_timeout"
fi
if [[ -n "${built[native-asan]:-}" ]]; then
  ASAN_OPTIONS="${ASAN_OPTIONS:-detect_leaks=1}" \
  UBSAN_OPTIONS="${UBSAN_OPTIONS:-print_stacktrace=1:halt_on_error=1}" \
    run_native native-asan $((test_timeout * 2))
fi

# ---------------------------------------------------------------------------
# Fuzz targets of the picture decoders and the form reader: a project of their
# own (fuzz/) built with clang. Each runs for a few seconds from its seed corpus (fuzz/corpus,
# read only; what it finds goes to build/fuzz-corpus); each target is one test
# case, failed by a crash, a leak, a sanitizer report or a timeout.

fuzz_seconds="${VORLEX_FUZZ_SECONDS:-5}"
# The targets are the ones fuzz/CMakeLists.txt declares with vorlex_fuzzer().
mapfile -t fuzz_targets < <(sed -n 's/^vorlex_fuzzer(\([A-Za-z0-9_]*\)).*/\1/p' "$repo/fuzz/CMakeLists.txt")

build_fuzzers() {
  local dir="$repo/build/fuzz" home
  home="$(sed -n 's/^CMAKE_HOME_DIRECTORY:INTERNAL=//p' "$dir/CMakeCache.txt" 2>/dev/null || true)"
  [[ -z "$home" || "$home" == "$repo/fuzz" ]] || rm -rf "$dir"
  echo "== configure fuzz"
  CC=clang CXX=clang++ cmake -S "$repo/fuzz" -B "$dir" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo &&
    echo "== build fuzz" &&
    cmake --build "$dir" "${build_jobs[@]}"
}

run_fuzzer() {
  local name="$1" log="$results/fuzz-$1.log" rc=0
  mkdir -p "$repo/build/fuzz-corpus/$name" "$repo/build/fuzz-artifacts"
  timeout -k 10 $((fuzz_seconds * 4 + 60)) "$repo/build/fuzz/$name" \
    "$repo/build/fuzz-corpus/$name" "$repo/fuzz/corpus/$name" \
    -max_total_time="$fuzz_seconds" -runs=5000000 -timeout=10 -rss_limit_mb=2048 \
    -artifact_prefix="$repo/build/fuzz-artifacts/$name-" >"$log" 2>&1 </dev/null || rc=$?
  if ((rc == 0)); then
    echo "== fuzz $name: $(grep -o 'Done [0-9]* runs in [0-9]* second(s)' "$log" | tail -n 1)"
    TIER_PASSED=$((TIER_PASSED + 1))
  else
    echo "== fuzz $name failed (exit $rc; log: $log)"
    tail -n 30 "$log"
    TIER_FAILED=$((TIER_FAILED + 1))
  fi
}

if [[ -z "$clang_major" ]] || ! fuzzer_links; then
  echo "== fuzz: no clang with libFuzzer; the fuzz targets are left out"
elif ! build_fuzzers; then
  failures+=("the fuzz build failed")
else
  TIER_PASSED=0 TIER_FAILED=0 TIER_SKIPPED=0
  for target in "${fuzz_targets[@]}"; do run_fuzzer "$target"; done
  add_tier fuzz
fi

# ---------------------------------------------------------------------------
# Windows suites under Wine.

export VORLEX_WINEPREFIX="${VORLEX_WINEPREFIX:-$repo/build/wineprefix}"
unset DISPLAY WAYLAND_DISPLAY
export WINEDEBUG=-all
wine_run="$repo/scripts/wine-run.sh"
wine_state=""   # "", ok or broken

stop_wine() {
  if [[ -n "$wine_state" ]]; then
    bash "$wine_run" --stop </dev/null || true
  fi
}
trap stop_wine EXIT

wine_ready() {
  if [[ -z "$wine_state" ]]; then
    echo "== preparing the Wine prefix $VORLEX_WINEPREFIX"
    if bash "$wine_run" --init </dev/null; then
      wine_state=ok
    else
      wine_state=broken
    fi
  fi
  [[ "$wine_state" == ok ]]
}

run_wine() {
  local preset="$1" junit="$results/$1.xml" xmldir="$results/$1-gtest" rc=0 winpath
  echo "== test $preset (Wine)"
  rm -f "$junit"
  rm -rf "$xmldir"
  mkdir -p "$xmldir"
  # GoogleTest writes one report per executable; the folder as Windows sees it.
  winpath="Z:${xmldir//\//\\}\\"
  GTEST_OUTPUT="xml:$winpath" \
    timeout -k 30 1800 ctest --test-dir "build/$preset" -j "$jobs" --timeout $((test_timeout * 3)) \
      --output-on-failure --no-tests=error --output-junit "$junit" </dev/null || rc=$?
  count_gtest_xml "$junit" "$xmldir"
  add_tier "$preset"
  if ((rc != 0 && TIER_FAILED == 0)); then
    failures+=("ctest for $preset exited with status $rc")
  fi
}

if [[ -n "${built[win64]:-}" ]]; then
  if wine_ready; then
    run_wine win64
  else
    failures+=("Wine could not prepare its prefix for the win64 suites")
  fi
fi

# A 64-bit-only Wine may start a 32-bit program, fail and still exit 0:
# the probe must list its tests.
win32_works() {
  local listing
  listing="$(timeout -k 5 60 bash "$wine_run" "$1" --gtest_list_tests </dev/null 2>/dev/null)" || return 1
  grep -q '^[A-Za-z_][A-Za-z0-9_/]*\.' <<<"$listing"
}

if [[ -n "${built[win32]:-}" ]]; then
  probe="$(find build/win32 -name '*_test.exe' -type f -print -quit)"
  if [[ -z "$probe" ]]; then
    echo "== win32: Vorlex.ocx and the tool were built and linked; the tests need a 32-bit Wine"
  elif wine_ready && win32_works "$probe"; then
    run_wine win32
  else
    echo "== win32: the executables were built but not run because no 32-bit Wine is available"
  fi
fi

# ---------------------------------------------------------------------------
# Summary.

status=0
for failure in "${failures[@]}"; do
  echo "FAILED: $failure"
  status=1
done
((total_failed == 0)) || status=1

((total_skipped == 0)) || echo "== skipped or disabled test cases: $total_skipped"
echo "$total_passed passed, $total_failed failed"
exit "$status"
