#!/usr/bin/env bash
# Runs a Windows executable under Wine without a display, in the project's own
# Wine prefix, passing the arguments through and returning the program's exit
# code. CTest uses it as the emulator of the win64 and win32 builds.
#
#   scripts/wine-run.sh PROGRAM.exe [ARG...]
#   scripts/wine-run.sh --init        create the prefix now, if it is missing
#   scripts/wine-run.sh --stop        end the prefix's wineserver and its processes
#
# Environment:
#   VORLEX_WINEPREFIX  the prefix (default: <repo>/build/wineprefix)
#   VORLEX_WINE        the Wine loader to use instead of the one chosen here
#   VORLEX_WINE_BOOT_TIMEOUT  seconds allowed to create the prefix (default 300)
set -euo pipefail

repo="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"

WINEPREFIX="${VORLEX_WINEPREFIX:-$repo/build/wineprefix}"
[[ "$WINEPREFIX" == /* ]] || WINEPREFIX="$PWD/$WINEPREFIX"   # Wine wants it absolute
export WINEPREFIX
export WINEARCH=win64
export WINEDEBUG="${WINEDEBUG:--all}"
# No Mono or Gecko installer prompts, no desktop menu entries.
export WINEDLLOVERRIDES="${WINEDLLOVERRIDES:-mscoree,mshtml,winemenubuilder.exe=d}"
unset DISPLAY WAYLAND_DISPLAY

# The loader for 64-bit programs: Debian keeps it out of PATH.
wine64_loader() {
  if [[ -n "${VORLEX_WINE:-}" ]]; then
    echo "$VORLEX_WINE"
  elif [[ -x /usr/lib/wine/wine64 ]]; then
    echo /usr/lib/wine/wine64
  elif command -v wine64 >/dev/null 2>&1; then
    command -v wine64
  else
    echo wine
  fi
}

# The loader for 32-bit programs: /usr/bin/wine picks the 32-bit loader when
# one is installed.
wine32_loader() {
  if [[ -n "${VORLEX_WINE:-}" ]]; then
    echo "$VORLEX_WINE"
  else
    echo wine
  fi
}

wineserver_cmd() {
  if [[ -x /usr/lib/wine/wineserver64 ]]; then
    echo /usr/lib/wine/wineserver64
  elif command -v wineserver >/dev/null 2>&1; then
    command -v wineserver
  else
    echo /usr/lib/wine/wineserver
  fi
}

# Wine's own fonts (MS Sans Serif, System, Small Fonts, Tahoma, ...), where a
# Windows system has its fonts: Debian's fonts-wine installs them in a folder
# its Wine does not look in, so they are linked into the prefix's Fonts folder.
wine_fonts=/usr/share/wine/fonts
prefix_fonts() { echo "$WINEPREFIX/drive_c/windows/Fonts"; }

fonts_linked() {
  [[ ! -d "$wine_fonts" || -e "$(prefix_fonts)/sserife.fon" ]]
}

link_wine_fonts() {
  local fonts font
  fonts="$(prefix_fonts)"
  [[ -d "$wine_fonts" && -d "$fonts" ]] || return 0
  for font in "$wine_fonts"/*; do
    [[ -e "$fonts/${font##*/}" ]] || ln -s "$font" "$fonts/" || true
  done
}

# Windows can be created without a display only when the prefix falls back to
# Wine's null driver; with DISPLAY set (Xvfb, for screenshots) X11 is used.
graphics_set() {
  grep -q '^"Graphics"="x11,null"' "$WINEPREFIX/user.reg" 2>/dev/null
}

set_graphics() {
  timeout -k 5 120 "$(wine64_loader)" reg add 'HKCU\Software\Wine\Drivers' /v Graphics /d x11,null /f \
    </dev/null >>"$WINEPREFIX.boot.log" 2>&1 || return 1
  # The registry reaches user.reg when the wineserver ends.
  timeout -k 5 60 "$(wineserver_cmd)" -w </dev/null >/dev/null 2>&1 || true
  graphics_set
}

# Creates the prefix once; concurrent callers wait for the first one.
ensure_prefix() {
  [[ -f "$WINEPREFIX/system.reg" ]] && fonts_linked && graphics_set && return 0
  mkdir -p "$(dirname "$WINEPREFIX")"
  local lock="$WINEPREFIX.lock"
  exec 9>"$lock"
  flock 9
  if [[ ! -f "$WINEPREFIX/system.reg" ]]; then
    echo "wine-run: creating Wine prefix $WINEPREFIX" >&2
    local rc=0
    # Wine's background processes inherit the output handles: keep them away
    # from the caller's pipes so nothing waits on them.
    timeout -k 10 "${VORLEX_WINE_BOOT_TIMEOUT:-300}" \
      "$(wine64_loader)" wineboot.exe -i </dev/null >"$WINEPREFIX.boot.log" 2>&1 || rc=$?
    timeout -k 5 60 "$(wineserver_cmd)" -w </dev/null >/dev/null 2>&1 || true
    if [[ $rc -ne 0 || ! -f "$WINEPREFIX/system.reg" ]]; then
      echo "wine-run: could not create the Wine prefix (exit $rc); see $WINEPREFIX.boot.log" >&2
      exec 9>&-
      return 1
    fi
  fi
  link_wine_fonts
  if ! graphics_set && ! set_graphics; then
    echo "wine-run: could not set the prefix's graphics driver to x11,null; see $WINEPREFIX.boot.log" >&2
    exec 9>&-
    return 1
  fi
  exec 9>&-
}

# The PE machine field: 8664 for x86-64, 014c for i386.
pe_machine() {
  local file="$1" offset
  offset="$(od -An -t u4 -j 60 -N 4 "$file" 2>/dev/null | tr -d ' \n')"
  [[ -n "$offset" ]] || return 0
  od -An -t x2 -j $((offset + 4)) -N 2 "$file" 2>/dev/null | tr -d ' \n'
}

case "${1:-}" in
  "")
    echo "usage: $0 PROGRAM.exe [ARG...] | --init | --stop" >&2
    exit 2
    ;;
  --init)
    ensure_prefix
    exit 0
    ;;
  --stop)
    [[ -d "$WINEPREFIX" ]] || exit 0
    "$(wineserver_cmd)" -k </dev/null >/dev/null 2>&1 || true
    exit 0
    ;;
esac

program="$1"
shift
ensure_prefix

loader="$(wine64_loader)"
if [[ -f "$program" && "$(pe_machine "$program")" == "014c" ]]; then
  loader="$(wine32_loader)"
fi

# On a terminal the program writes straight to it.
if [[ -t 1 && -t 2 ]]; then
  exec "$loader" "$program" "$@"
fi

# Otherwise (CTest, a pipe) the caller waits for the end of its output, and
# Wine's background processes (wineserver, services, explorer), started by the
# first program that needs them, keep the output handles they inherit open long
# after that program has ended. So the program writes to files, which are
# followed to this script's own output until the program ends.
# Beside the prefix, so that a run killed on a timeout leaves nothing elsewhere.
mkdir -p "$WINEPREFIX.runs"
outdir="$(mktemp -d "$WINEPREFIX.runs/XXXXXX")"
trap 'rm -rf "$outdir"' EXIT
[[ -e /dev/stdin ]] || exec </dev/null

run_once() {
  : >"$outdir/out"
  : >"$outdir/err"
  exec 3<&0   # a background job would otherwise read /dev/null
  "$loader" "$program" "$@" <&3 >"$outdir/out" 2>"$outdir/err" &
  local pid=$! out_tail err_tail rc=0
  exec 3<&-
  tail -s 0.1 -n +1 -f --pid="$pid" "$outdir/out" &
  out_tail=$!
  tail -s 0.1 -n +1 -f --pid="$pid" "$outdir/err" >&2 &
  err_tail=$!
  wait "$pid" || rc=$?
  wait "$out_tail" || true
  wait "$err_tail" || true
  return "$rc"
}

# Now and then, with several programs starting at once, Wine fails to start one:
# it ends at once with an error and without a byte of output, never having
# reached the program's main. Such a start is tried once more.
rc=0
run_once "$@" || rc=$?
if ((rc != 0)) && [[ ! -s "$outdir/out" && ! -s "$outdir/err" ]]; then
  echo "wine-run: $program did not start (exit $rc); trying once more" >&2
  rc=0
  run_once "$@" || rc=$?
fi
exit "$rc"
