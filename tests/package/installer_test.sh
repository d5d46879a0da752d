#!/usr/bin/env bash
# installer_test.sh BUILD_FOLDER: installs silently into a folder with a difficult name, installs
# again over it, uninstalls, and looks at what is there after each step.
. "$(dirname "$0")/common.sh"
mkdir -p "$build/package-test"
programs="$CORVANTA_WINE_PREFIX/drive_c/$folder_name"
rm -rf "$programs"

setup=$(make_package NSIS)
zip=$(make_package ZIP)
(cd "$build/package-test" && rm -rf unpacked && mkdir unpacked && cd unpacked && cmake -E tar x "$zip")

# Everything after /D= up to the end is the folder; it must not be quoted, so it goes in pieces.
# shellcheck disable=SC2086
install() { wine_run "$setup" /S /D=C:\\$folder_name; }

install
diff -r -x Uninstall.exe -x Installed.ini "$build"/package-test/unpacked/* "$programs" ||
  fail "the installer and the zip bring different files"
menu=$(find "$CORVANTA_WINE_PREFIX/drive_c" -path '*Start Menu*' -name Corvanta.lnk)
[ -n "$menu" ] || fail "no entry in the Start menu"

echo "; my own" >>"$programs/Settings.ini"
echo "mine" >"$programs/Templates/mine.png"
for update in first second; do
  install
  grep -q "; my own" "$programs/Settings.ini" || fail "the $update update lost the user's catalogue"
  cmp "$programs/Settings.new.ini" "$build/bin/Settings.ini" || fail "the new catalogue is missing"
done

wine_run "$programs/Uninstall.exe" /S
# The uninstaller goes on in a copy of itself.
for ((i = 0; i < 300; i++)); do
  [ -e "$menu" ] || break
  sleep 0.1
done
[ ! -e "$menu" ] || fail "the entry in the Start menu is still there"
left=$(cd "$programs" && find . -type f | sort | tr '\n' ' ')
[ "$left" = "./Settings.ini ./Templates/mine.png " ] || fail "uninstalling left other files than the user's: $left"
rm -rf "$programs"
echo "The installer installs, updates and uninstalls."
