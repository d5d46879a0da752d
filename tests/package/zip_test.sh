#!/usr/bin/env bash
# zip_test.sh BUILD_FOLDER E2E_PROGRAM: unpacks the zip into a folder with a difficult name, drives
# the editor from there, and compares what it exports with the exports of the build's own editor.
. "$(dirname "$0")/common.sh"
e2e=$2
unpacked="$build/package-test/$folder_name"
rm -rf "$unpacked" "$build/package-test/from-build"
mkdir -p "$unpacked" "$build/package-test/from-build"

zip=$(make_package ZIP)
(cd "$unpacked" && cmake -E tar x "$zip")
program=$(find "$unpacked" -name Corvanta.exe)
[ -n "$program" ] || fail "there is no Corvanta.exe in the zip"
for paper in Readme License Notices; do
  [ -s "${program%/*}/$paper.txt" ] || fail "$paper.txt is missing"
done
for file in "$program" "${program%/*}"/{ImageLib.dll,corvanta-sprite.exe}; do
  if grep -q debug_info "$file"; then fail "$file carries debug symbols"; fi
  headers=$(x86_64-w64-mingw32-objdump -p "$file")
  for needed in HIGH_ENTROPY_VA DYNAMIC_BASE NX_COMPAT 'Virtual Address: .* Chunk size'; do
    grep -q "$needed" <<<"$headers" || fail "$file is built without $needed"
  done
  x86_64-w64-mingw32-nm "$build/bin/${file##*/}" | grep -q stack_chk_fail ||
    fail "$file does not watch its stack"
done

# run_editor PROGRAM RESULTS: the part of the end-to-end test that exports.
run_editor() {
  CORVANTA_E2E_EXE=$1 CORVANTA_E2E_DIR=$2 wine_run "$e2e" --gtest_filter="CoreTest.SavesTheSame*" ||
    fail "the editor does not work as $1"
}
run_editor "$build/bin/Corvanta.exe" "$build/package-test/from-build"
run_editor "$program" "$unpacked/results"

compared=0
for expected in "$build"/package-test/from-build/*.shp "$build"/package-test/from-build/*.pal; do
  cmp "$expected" "$unpacked/results/${expected##*/}" || fail "the exports differ"
  compared=$((compared + 1))
done
[ $compared -ge 2 ] || fail "no SHP and PAL file were compared"
echo "The editor from the zip exports the same $compared files."
