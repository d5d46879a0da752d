# Sourced by run and test: installs the Debian packages that a machine lacks.

# need_packages PACKAGE...: says what it installs; fails with advice where it can't.
need_packages() {
  local missing=() package
  for package in "$@"; do
    dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'ok installed' ||
      missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return
  echo "Installing: ${missing[*]}"
  local become=()
  [ "$(id -u)" -eq 0 ] || become=(sudo)
  if ! command -v apt-get >/dev/null; then
    echo "This machine has no apt-get: please install ${missing[*]} and try again." >&2
    return 1
  fi
  "${become[@]}" apt-get update -qq
  DEBIAN_FRONTEND=noninteractive "${become[@]}" apt-get install -y -qq --no-install-recommends \
    "${missing[@]}" >/dev/null
}

build_packages=(cmake ninja-build g++-mingw-w64-x86-64 wine wine64)
# The manual's compiler and the installer's.
package_packages=(fp-utils nsis)
artwork_packages=(python3-numpy python3-scipy python3-pil)
fuzz_packages=(clang libclang-rt-14-dev)
native_packages=(g++ libpng-dev libjpeg-dev libgtest-dev libgmock-dev googletest)
# Without common fonts Wine takes a wide one, which cuts the dialogs' texts.
display_packages=(xvfb xauth openbox x11-utils fonts-liberation)
