# Sourced by the tests of the packages, which get the build folder as their first argument.
set -eu
build=$(cd "$1" && pwd)
source_folder=$(cd "$(dirname "$0")/../.." && pwd)
# A name that only a program with UTF-8 as its code page can open.
folder_name="Загрузка экрана ö"
export LC_ALL=C.UTF-8 CORVANTA_WINE_PREFIX=$build/wine
# Wine copies Start menu entries to the desktop of whoever runs it: not ours to change.
export XDG_DATA_HOME=$build/package-test/xdg XDG_CONFIG_HOME=$build/package-test/xdg

fail() {
  echo "FAILED: $*" >&2
  exit 1
}

# make_package GENERATOR: packs the build as it stands; prints the package's path.
make_package() {
  local output=$build/package-test/$1
  rm -rf "$output"
  cpack --config "$build/CPackConfig.cmake" -G "$1" -B "$output" >"$build/package-test/$1.log" ||
    fail "no $1 package: see $build/package-test/$1.log"
  find "$output" -maxdepth 1 -type f
}

wine_run() { "$source_folder/cmake/wine-run" "$@"; }
