#!/usr/bin/env bash
#
# specimen_test.sh <specimen> <scratch folder>
#
# Runs the example program over the fonts of Debian's package fonts-liberation and looks at what it
# writes with qpdf, pdfinfo, pdffonts and pdftotext; iconv tells what the codes stand for. Prints a
# line for each check and fails if one of them failed.
set -u -o pipefail

if (($# != 2)); then
  echo "usage: specimen_test.sh <specimen> <scratch folder>" >&2
  exit 2
fi
specimen=$(realpath "$1") || exit 2
# shellcheck source=tests/examples/checks.sh
source "$(dirname "${BASH_SOURCE[0]}")/checks.sh" || exit 2
mkdir -p "$2" && cd "$2" || exit 2

page_text() { pdftotext -raw -enc UTF-8 -f "$2" -l "$2" "$1" -; }

# families <pdf>: those whose names head the pages.
families() {
  local page pages
  pages=$(pdfinfo "$1" | awk '/^Pages:/ { print $2 }')
  for ((page = 1; page <= pages; ++page)); do
    page_text "$1" "$page" | sed -nE "1s/ $page of $pages\$//p"
  done
}

# shows_families <pdf> <family>...
shows_families() {
  local pdf=$1
  shift
  same "$(families "$pdf")" "$(printf '%s\n' "$@")"
}

# words <text>: one a line.
words() { tr -s ' \n\f' '\n'; }

# Each character and its code in hexadecimal. Blanks do not come back as words, the soft hyphen (AD)
# comes back as the hyphen that it looks like; 7F is the delete character.
expected_cells() {
  local code hex character
  for ((code = 32; code < 256; ++code)); do
    printf -v hex %02X "$code"
    character=$(printf '%b' "\\x$hex" | iconv -f CP1252 -t UTF-8 2>/dev/null) || continue
    case $hex in
      20 | A0) echo "$hex" ;;
      7F) ;;
      AD) printf '%s\n' - AD ;;
      *) printf '%s\n' "$character" "$hex" ;;
    esac
  done
}

# shows_cells <pdf> <page>: every character with its code and its width, and nothing else in between.
shows_cells() {
  page_text "$1" "$2" | sed -n '/^20 [0-9]*$/,/FF [0-9]*$/p' |
    sed -E 's/\b([0-9A-F]{2}) [0-9]+\b/\1/g' | words | diff - expected.txt
}

sample='“Zwölf Boxkämpfer” – voilà, crème brûlée & jalapeño: £8 or €9.95'

# shows_styles <pdf> <page>: the line in each style comes back.
shows_styles() {
  local style
  page_text "$1" "$2" >page.txt
  for style in Regular Italic Bold 'Bold italic'; do
    shows page.txt "$style $sample" || return 1
  done
}

expected_cells >expected.txt
# The code page has 256 codes: without 32 control characters, the delete character and five without
# a meaning 218 are left, of which two are blanks.
check "iconv knows the code page" same "$(wc -l <expected.txt)" $((2 * 218 - 2))

use_fonts_of "$liberation"
rm -f all.pdf again.pdf
check "all families: runs without a warning" says "" "$specimen" all.pdf
check "all families: sound" is_sound all.pdf
check "all families: a page each, sorted by name" shows_families all.pdf \
  "Liberation Mono" "Liberation Sans" "Liberation Sans Narrow" "Liberation Serif"
styles=()
for family in Mono Sans SansNarrow Serif; do
  for style in "" ,Bold ,BoldItalic ,Italic; do
    styles+=("Liberation$family$style")
  done
done
check "all families: each style is embedded" embeds all.pdf "${styles[@]}"
for page in 1 2 3 4; do
  check "page $page: every character with its code" shows_cells all.pdf "$page"
  check "page $page: a line in each style" shows_styles all.pdf "$page"
done
check "monospaced: every width is 600" same \
  "$(page_text all.pdf 1 | grep -oE '[0-9A-F]{2} [0-9]+$' | cut -d ' ' -f 2 | sort -u)" 600
check "again: runs" "$specimen" again.pdf
check "again: the same bytes" cmp all.pdf again.pdf

rm -f named.pdf
check "named families: runs without a warning" says "" \
  "$specimen" named.pdf "Liberation Serif" "Liberation Mono"
check "named families: in the order named" shows_families named.pdf \
  "Liberation Serif" "Liberation Mono"

rm -f replaced.pdf
"$specimen" replaced.pdf "No Such Face" 2>replaced.log
check "unknown family: goes on" same "exit code $?" "exit code 0"
face=$(sed -nE "s/^WARNING: Font 'No Such Face' could not be found\.  Using '(.+)' instead\.$/\1/p" \
  replaced.log)
check "unknown family: one warning" same "$(wc -l <replaced.log)" 1
check "unknown family: its replacement is shown" shows_families replaced.pdf "$face"

mkdir -p empty
use_fonts_of "$PWD/empty"
rm -f none.pdf folder.pdf
check "no fonts installed: an error" fails_with "specimen: there are no TrueType fonts to show" \
  "$specimen" none.pdf
check "no fonts installed: no PDF" test ! -e none.pdf
check "font folder: runs without a warning" says "" \
  "$specimen" --font-folder "$liberation" folder.pdf
check "font folder: the same bytes as from the system's fonts" cmp folder.pdf all.pdf

"$specimen" 2>usage.log
check "no output file: refused" same "exit code $?" "exit code 2"
check "no output file: the reason" \
  same "$(head -n 1 usage.log)" "specimen: an output file is needed"

finish
