# Sourced by the set-up scripts: collect the Debian packages a machine lacks,
# then install them in one apt-get run.
#
#   need_command COMMAND PACKAGE   PACKAGE unless COMMAND is on the PATH
#   need_file PATH PACKAGE         PACKAGE unless PATH exists
#   install_needed LOG             installs what was collected (as root or with
#                                  sudo), the output into LOG; exits on failure

missing=()

need_command() { command -v "$1" >/dev/null 2>&1 || missing+=("$2"); }
need_file() { [[ -e "$1" ]] || missing+=("$2"); }

# What softgdi and the picture loaders build against: compilers and CMake,
# libpng, FreeType with fontconfig, Wine's MS Sans Serif and a sans fallback,
# libjpeg and giflib.
need_build_packages() {
  need_command cmake cmake
  need_command ninja ninja-build
  need_command g++ g++
  need_file /usr/include/png.h libpng-dev
  need_file /usr/include/freetype2/ft2build.h libfreetype-dev
  need_file /usr/include/fontconfig/fontconfig.h libfontconfig-dev
  need_file /usr/share/wine/fonts/sserife.fon fonts-wine
  need_file /usr/share/fonts/truetype/dejavu/DejaVuSans.ttf fonts-dejavu-core
  need_file /usr/include/jpeglib.h libjpeg-dev
  need_file /usr/include/gif_lib.h libgif-dev
}

# What the hosts build against: widl and Wine's IDL files for the ActiveX
# control's type library, Qt 6 with its Designer and UI-loader modules for the
# Qt widget.
need_host_packages() {
  need_file /usr/bin/widl wine64-tools
  need_file /usr/include/wine/wine/windows/oaidl.idl wine64-tools
  need_file /usr/lib/x86_64-linux-gnu/cmake/Qt6Widgets/Qt6WidgetsConfig.cmake qt6-base-dev
  need_file /usr/lib/x86_64-linux-gnu/cmake/Qt6Designer/Qt6DesignerConfig.cmake qt6-tools-dev
  need_file /usr/lib/x86_64-linux-gnu/cmake/Qt6UiTools/Qt6UiToolsConfig.cmake qt6-tools-dev
}

install_needed() {
  local log="$1"
  ((${#missing[@]})) || return 0
  echo "== installing: ${missing[*]}" >&2
  local sudo=()
  if [[ $(id -u) -ne 0 ]]; then
    if ! command -v sudo >/dev/null 2>&1; then
      echo "error: ${missing[*]} missing and not running as root" >&2
      exit 1
    fi
    sudo=(sudo)
  fi
  mkdir -p "$(dirname "$log")"
  if ! { "${sudo[@]}" apt-get update -q &&
         "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -q "${missing[@]}"; } \
       >"$log" 2>&1 </dev/null; then
    tail -n 40 "$log" >&2
    echo "error: apt-get could not install ${missing[*]} (log: $log)" >&2
    exit 1
  fi
}
