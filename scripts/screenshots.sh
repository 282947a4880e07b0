#!/usr/bin/env bash
# Pictures of the property pages (every tab and nested tab) and the About box,
# as Wine's X11 driver shows them on a virtual screen, written to docs/pages/.
# Builds Vorlex.ocx and the picture program with the win64 toolchain first.
#
# Environment:
#   VORLEX_SHOTS_BUILD   the build folder (default: build/screenshots-win64)
#   VORLEX_WINEPREFIX    the Wine prefix (default: build/screenshots-wineprefix)
#   VORLEX_JOBS          parallel build jobs (default 2)
set -euo pipefail

repo="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
cd "$repo"
build="${VORLEX_SHOTS_BUILD:-build/screenshots-win64}"
[[ "$build" == /* ]] || build="$repo/$build"
export VORLEX_WINEPREFIX="${VORLEX_WINEPREFIX:-$repo/build/screenshots-wineprefix}"
[[ "$VORLEX_WINEPREFIX" == /* ]] || VORLEX_WINEPREFIX="$repo/$VORLEX_WINEPREFIX"
out="$repo/docs/pages"

if ! command -v xvfb-run >/dev/null 2>&1; then
  echo "screenshots: installing xvfb" >&2
  sudo_cmd=""
  [[ $(id -u) -eq 0 ]] || sudo_cmd="sudo"
  $sudo_cmd apt-get update -qq
  $sudo_cmd apt-get install -y -qq xvfb xauth >/dev/null
fi

if [[ ! -f "$build/build.ninja" ]]; then
  cmake -S . -B "$build" -G Ninja --toolchain cmake/mingw-w64-x86_64.cmake \
    -DCMAKE_BUILD_TYPE=RelWithDebInfo -DVORLEX_BENCH=OFF
fi
cmake --build "$build" --target Vorlex page_shots -j "${VORLEX_JOBS:-2}"

# The prefix with the x11,null graphics driver, created by the test runner.
bash scripts/wine-run.sh --init

loader=/usr/lib/wine/wine64
[[ -x "$loader" ]] || loader="$(command -v wine64 || command -v wine)"
mkdir -p "$out"
rm -f "$out"/*.png
export WINEPREFIX="$VORLEX_WINEPREFIX" WINEARCH=win64 WINEDEBUG=-all
export WINEDLLOVERRIDES="mscoree,mshtml,winemenubuilder.exe=d"
# The wineserver of a run without a display would keep the null driver.
"${loader%/*}/wineserver64" -k 2>/dev/null || wineserver -k 2>/dev/null || true
xvfb-run -a -s "-screen 0 1024x768x24" \
  "$loader" "$build/hosts/activex/page_shots.exe" "Z:$build/hosts/activex/Vorlex.ocx" "Z:$out" </dev/null
"${loader%/*}/wineserver64" -w 2>/dev/null || true
ls -1 "$out"
