#!/usr/bin/env bash
# manual_test.sh: every link and picture of the manual leads somewhere, every page and picture is
# led to, and the contents and the index name pages that exist.
set -eu
cd "$(dirname "$0")/../../docs/manual"
wrong=0
say() {
  echo "FAILED: $*" >&2
  wrong=1
}

# "page target" for every reference within the manual.
references=$(grep -oE '(href|src)="[^"]*"|"Local" value="[^"]*"' ./*.h* |
  sed -E 's/^\.\/([^:]*):.*"([^"]*)"$/\1 \2/' | grep -v ' https\?:')
while read -r page target; do
  [ -e "${target%%#*}" ] || say "$page leads to $target, which does not exist"
done <<<"$references"

for file in *.html pictures/*.png; do
  grep -q " $file\$" <<<"$references" || say "nothing leads to $file"
done
for page in *.html; do
  grep -qxF "$page" <(tr -d '\r' <manual.hhp) || say "$page is missing from manual.hhp"
  grep -q "^manual.hhc $page\$" <<<"$references" || say "$page is missing from the contents"
done
page=$(sed -n 's/.*HOMEPAGE_URL \([^ ]*\).*/\1/p' ../../CMakeLists.txt)
grep -qF "<$page>" ../../README.md && grep -qF "\"$page\"" about.html || say "README and manual name another page than $page"
exit $wrong
