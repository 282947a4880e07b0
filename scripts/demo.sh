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

missing=()
command -v cmake >/dev/null 2>&1 || missing+=(cmake)
command -v ninja >/dev/null 2>&1 || missing+=(ninja-build)
command -v g++ >/dev/null 2>&1 || missing+=(g++)
[[ -f /usr/include/png.h ]] || missing+=(libpng-dev)
[[ -f /usr/include/freetype2/ft2build.h ]] || missing+=(libfreetype-dev)
[[ -f /usr/include/fontconfig/fontconfig.h ]] || missing+=(libfontconfig-dev)
[[ -f /usr/share/wine/fonts/sserife.fon ]] || missing+=(fonts-wine)
[[ -f /usr/share/fonts/truetype/dejavu/DejaVuSans.ttf ]] || missing+=(fonts-dejavu-core)
[[ -f /usr/include/jpeglib.h ]] || missing+=(libjpeg-dev)
[[ -f /usr/include/gif_lib.h ]] || missing+=(libgif-dev)
if ((${#missing[@]})); then
  echo "== installing: ${missing[*]}" >&2
  sudo=()
  if [[ $(id -u) -ne 0 ]]; then
    command -v sudo >/dev/null 2>&1 || { echo "error: ${missing[*]} missing and not running as root" >&2; exit 1; }
    sudo=(sudo)
  fi
  mkdir -p build
  if ! { "${sudo[@]}" apt-get update -q &&
         "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -q "${missing[@]}"; } \
       >build/apt-demo.log 2>&1 </dev/null; then
    tail -n 40 build/apt-demo.log >&2
    echo "error: apt-get could not install ${missing[*]} (log: build/apt-demo.log)" >&2
    exit 1
  fi
fi

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
