#!/usr/bin/env bash
#
# letter_test.sh <letter> <scratch folder>
#
# Runs the example program and looks at what it writes with qpdf, pdfinfo, pdffonts and pdftotext.
# Prints a line for each check and fails if one of them failed.
set -u -o pipefail

if (($# != 2)); then
  echo "usage: letter_test.sh <letter> <scratch folder>" >&2
  exit 2
fi
letter=$(realpath "$1") || exit 2
data=$(realpath "$(dirname "${BASH_SOURCE[0]}")/../../examples/data") || exit 2
# shellcheck source=tests/examples/checks.sh
source "$(dirname "${BASH_SOURCE[0]}")/checks.sh" || exit 2
mkdir -p "$2" && cd "$2" || exit 2

# The words of a letter in their order, one a line, without the page numbers.
words_of() {
  pdftotext -raw -enc UTF-8 "$1" - | tr '\f' '\n' | grep -vE '^Page [0-9]+ of [0-9]+$' |
    tr -s '[:space:]' '\n' | sed '/^$/d'
}

# words_due <text> <column=value>...: the same of a text whose marks are taken off. The standard
# faces show an apostrophe as a right quote.
words_due() {
  local text pair
  text=$(sed -E 's/^# //; s/^> //; s/\*+//g' "$1")
  shift
  for pair in "$@"; do text=${text//"{${pair%%=*}}"/"${pair#*=}"}; done
  tr -s '[:space:]' '\n' <<<"${text//\'/’}" | sed '/^$/d'
}

page_count() { pdfinfo "$1" | awk '/^Pages:/ { print $2 }'; }

### The shipped letter

rm -rf letters
check "runs" "$letter" "$data/letter.txt" "$data/recipients.csv" letters
check "one letter for each recipient" same "$(cd letters && echo *)" \
  "letter-001.pdf letter-002.pdf letter-003.pdf"
for pdf in letters/*.pdf; do
  check "$pdf: sound" is_sound "$pdf"
  check "$pdf: two pages" same "$(page_count "$pdf")" 2
  check "$pdf: its faces" same "$(pdffonts "$pdf" | awk 'NR > 2 { print $1 }' | sort | xargs)" \
    "Helvetica Helvetica-Bold Times-Bold Times-BoldItalic Times-Italic Times-Roman"
  check "$pdf: page numbers" same "$(pdftotext "$pdf" - | grep '^Page ' | xargs)" \
    "Page 1 of 2 Page 2 of 2"
done
words_of letters/letter-003.pdf >found.txt
words_due "$data/letter.txt" "salutation=Dear Librarian" "due=8 January 2027" \
  $'address=The Librarian\nSt Brannoc\'s School\nUpper Town UT1 1AA' \
  'books=forty-one school readers, "well loved"' \
  "work=reinforced joints and washable covers" >due.txt
check "every word, in its order" diff due.txt found.txt

### What other files hold

printf 'name\nAda\n' >one.csv
# write <text>: a letter to Ada.
write() {
  printf '%b' "$1" >text.txt
  rm -rf out
  "$letter" text.txt one.csv out
}

check "an empty text is an empty page" write ''
check "an empty text: one page" same "$(page_count out/letter-001.pdf)" 1
check "marks that are escaped" write '\\# \\*no\\* \\{name} *{name}*'
check "marks that are escaped: shown" same "$(words_of out/letter-001.pdf | xargs)" \
  "# *no* {name} Ada"
check "no page number on a single page" same "$(pdftotext out/letter-001.pdf - | grep -c Page)" 0

# The text is between 85 and 510, and lines are shifted by whole points.
lines_are_placed() {
  pdftotext -bbox "$1" - | awk '
    match($0, /xMin="[0-9.]+"/) { left = substr($0, RSTART + 6, RLENGTH - 7) }
    match($0, /xMax="[0-9.]+"/) { right = substr($0, RSTART + 6, RLENGTH - 7) }
    />(centred|twice)</ { n++; d = (left + right) / 2 - 297.5; if (d < -0.6 || d > 0.6) bad = 1 }
    />(left)</ { n++; if (left < 84.9 || left > 85.1) bad = 1 }
    END { exit bad || n != 4 }'
}

check "centred lines" write 'left\n\n> centred\n> twice\n\nleft again\n'
check "centred lines: their places" lines_are_placed out/letter-001.pdf

# 20,000 words fill one page after another, each word once.
seq 1 20000 | sed -E 's/$/**x**y/' | fmt -w 70 >text.txt
rm -rf out
check "a long letter" "$letter" text.txt one.csv out
check "a long letter: sound" is_sound out/letter-001.pdf
check "a long letter: every word" cmp <(words_of out/letter-001.pdf) <(seq 1 20000 | sed 's/$/xy/')

# The box ends 90 points above the lower edge, the page number begins 61 above it.
nothing_is_below_the_box() {
  pdftotext -bbox "$1" - | awk '
    match($0, /yMax="[0-9.]+"/) {
      above = 841.89 - substr($0, RSTART + 6, RLENGTH - 7)
      if (above > 62 && above < 89.9) exit 1
    }'
}
check "a long letter: nothing below the box" nothing_is_below_the_box out/letter-001.pdf

### In a family of TrueType fonts

use_fonts_of "$liberation"
# writes_in_family <folder> [<option>...]
writes_in_family() {
  local folder=$1
  shift
  rm -rf "$folder"
  says "" "$letter" --font "Liberation Serif" "$@" "$data/letter.txt" "$data/recipients.csv" \
    "$folder"
}
check "a family: runs without a notice" writes_in_family family
for pdf in family/*.pdf; do
  check "$pdf: sound" is_sound "$pdf"
  check "$pdf: its faces, embedded" embeds "$pdf" "LiberationSerif" "LiberationSerif,Bold" \
    "LiberationSerif,BoldItalic" "LiberationSerif,Italic"
  check "$pdf: page numbers" same "$(pdftotext "$pdf" - | grep '^Page ' | xargs)" \
    "Page 1 of 2 Page 2 of 2"
done
sed "s/’/'/g" due.txt >plain.txt
check "a family: every word, in its order" diff plain.txt <(words_of family/letter-003.pdf)
# The last line of the first page, above its number.
last_line() { pdftotext -l 1 -layout "$1" - | sed '/^ *$/d; /Page 1/,$d' | tail -n 1; }
for pdf in letters/letter-003.pdf family/letter-003.pdf; do
  check "$pdf: no heading is left behind" test ! \
    "$(grep -cxF "# $(last_line "$pdf")" "$data/letter.txt")" -gt 0
done
check "a family: again" writes_in_family again
check "a family: the same bytes" diff -r family again
check "a font folder: runs" writes_in_family again --font-folder "$liberation"
check "a font folder: the same bytes" diff -r family again

printf 'Za\305\272\303\263\305\202\304\207 caf\303\251\n' >text.txt
notice='letter: there are characters beyond ASCII, which Times shows wrongly or not at all;'
notice+=' --font NAME embeds a TrueType font that has them'
check "beyond ASCII without a font: a notice" says "$notice" "$letter" text.txt one.csv out
check "beyond ASCII with a font: none" says "" "$letter" --font "Liberation Sans" text.txt one.csv out
check "accents come back" same "$(words_of out/letter-001.pdf | tail -n 1)" "café"

### What is refused

"$letter" text.txt one.csv >stdout.log 2>stderr.log
check "no folder: refused" same "exit code $?" "exit code 2"
check "no folder: the reason" same "$(head -n 1 stderr.log)" \
  "letter: a text, a file of recipients and an output folder are needed"
"$letter" --font-folder "$liberation" text.txt one.csv out >stdout.log 2>stderr.log
check "a font folder without a font: refused" same "exit code $?" "exit code 2"
check "a font folder without a font: the reason" same "$(head -n 1 stderr.log)" \
  "letter: --font-folder is of no use without --font"

check "a column that there is not" fails_with "text.txt:3: the recipients have no column 'town'" \
  write 'a\n\nb\n{town}\n'
check "no letter then" test ! -e out/letter-001.pdf
check "bold without an end" fails_with "text.txt:1: a '**' is never closed" write '**a\n'
check "italic without an end" fails_with "text.txt:2: a '*' is never closed" write '# a\n*b\n'
check "a column without an end" fails_with "text.txt:1: a '{' is never closed" write 'a {name\n'
write 'a\n'
check "no recipients file" fails_with "none.csv: cannot be opened: No such file or directory" \
  env LC_ALL=C "$letter" text.txt none.csv out
check "no text file" fails_with "none.txt: cannot be opened: No such file or directory" \
  env LC_ALL=C "$letter" none.txt one.csv out
printf 'a,b\n1\n' >bad.csv
check "a field missing" fails_with "bad.csv:2: 1 fields where the header has 2" \
  "$letter" "$data/letter.txt" bad.csv out

finish
