#!/usr/bin/env bash
# Screenshots of the Qt host into docs/qt/: the demo window, every tab of the
# Block page, the Caption and Boundaries pages and the About box, shown on a
# virtual X display.
#   hosts/qt/screenshots.sh [BUILD_DIR]     default: build/qt-dev
set -euo pipefail
repo="$(cd "$(dirname "$0")/../.." && pwd)"
build="${1:-$repo/build/qt-dev}"
cd "$repo"

if ! command -v xvfb-run >/dev/null; then
  apt-get install -y xvfb xauth >/dev/null
fi
if [[ ! -f "$build/CMakeCache.txt" ]]; then
  cmake -S "$repo" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Debug -DVORLEX_BENCH=OFF >/dev/null
fi
cmake --build "$build" -j2 --target vorlex-qt-screenshots >/dev/null

mkdir -p docs/qt
QT_QPA_PLATFORM=xcb xvfb-run -a -s "-screen 0 1024x768x24" "$build/hosts/qt/vorlex-qt-screenshots" docs/qt
