#!/usr/bin/env bash
# manual_test.sh: every link and picture of the manual leads somewhere, every page and picture is
# led to, and the contents and the index name pages that exist. Every message of the program is
# explained, and README and manual name the same address as the About box.
set -eu
cd "$(dirname "$0")/../.."
wrong=0
say() {
  echo "FAILED: $*" >&2
  wrong=1
}

text=$(tr '\n' ' ' <docs/manual/trouble.html | sed 's/<br>/ /g')
while read -r message; do
  [[ $text == *"\"$message\""* ]] || say "the manual does not explain: $message"
done < <(grep -rhoE --include=*.cpp --exclude-dir=platform '"(Error: |Please )[^"]*"|"[A-Z][^"]*[!?]"' src |
  tr -d '"' | sed 's/\\n/ /')
cd docs/manual

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
