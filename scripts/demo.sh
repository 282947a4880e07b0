#!/usr/bin/env bash
# Renders the built-in demo dashboard to a PNG and prints the PNG's path. On a
# fresh Debian machine it first installs what the build needs with apt-get.
#
#   scripts/demo.sh [OUT.png]        default: build/demo/demo.png
#
# The dashboard's disk gauge shows drive D. Disk figures are 32-bit, so only a
# volume below 2 GiB can be shown; the script maps D to the smallest mounted
# one it finds (or to VORLEX_DEMO_DRIVE, a folder, when set). Without one the
# gauge stays empty and shows "?".
set -euo pipefail

repo="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
cd "$repo"
out="${1:-build/demo/demo.png}"

# shellcheck source=apt-needs.sh
source "$repo/scripts/apt-needs.sh"
need_build_packages
install_needed "$repo/build/apt-demo.log"

# Only the tool: no test suites, no benchmarks.
echo "== building the vorlex tool" >&2
cmake --preset native -B build/demo -DVORLEX_TESTS=OFF -DVORLEX_BENCH=OFF >build/demo-configure.log 2>&1 ||
  { cat build/demo-configure.log >&2; exit 1; }
cmake --build build/demo --target vorlex_tool >build/demo-build.log 2>&1 || { tail -n 40 build/demo-build.log >&2; exit 1; }

# The smallest mounted volume from 1 MiB to 2 GiB that holds something, for drive D.
small_volume() {
  df -P -B1 2>/dev/null | awk 'NR > 1 && $2 >= 1048576 && $2 < 2147483648 && $3 > 0 { print $2, $6 }' |
    sort -n | awk '{ print $2; exit }'
}
volume="${VORLEX_DEMO_DRIVE:-$(small_volume || true)}"
drive=()
if [[ -n "$volume" ]]; then
  drive=(--drive "D=$volume")
else
  echo "== no volume below 2 GiB found: the disk gauge stays empty (set VORLEX_DEMO_DRIVE to a folder)" >&2
fi

mkdir -p "$(dirname "$out")"
build/demo/tools/vorlex/vorlex render --demo "${drive[@]}" -o "$out"
echo "$(cd "$(dirname "$out")" && pwd)/$(basename "$out")"
