#!/usr/bin/env bash
#
# statement_test.sh <statement> <hello> <scratch folder>
#
# Runs the two example programs and looks at what they write with qpdf, pdfinfo and pdftotext; the
# sums are worked out again by awk. Prints a line for each check and fails if one of them failed.
set -u -o pipefail

if (($# != 3)); then
  echo "usage: statement_test.sh <statement> <hello> <scratch folder>" >&2
  exit 2
fi
statement=$(realpath "$1") || exit 2
hello=$(realpath "$2") || exit 2
data=$(realpath "$(dirname "${BASH_SOURCE[0]}")/../../examples/data/statement.csv") || exit 2
# shellcheck source=tests/examples/checks.sh
source "$(dirname "${BASH_SOURCE[0]}")/checks.sh" || exit 2
mkdir -p "$3" && cd "$3" || exit 2

page_count() { pdfinfo "$1" | awk '/^Pages:/ { print $2 }'; }

# rows <csv>: a file that holds no line breaks in quotes, without its header, as lines of "date,
# description, amount in cents, amount and balance as printed" with tabs between them. Cents stay
# far below 2^53, where awk counts exactly.
rows() {
  awk '
    function money(cents,   sign, text, out) {
      sign = cents < 0 ? "-" : ""
      if (cents < 0) cents = -cents
      text = sprintf("%d", int(cents / 100))
      while (length(text) > 3) {
        out = "," substr(text, length(text) - 2) out
        text = substr(text, 1, length(text) - 3)
      }
      return sign text out sprintf(".%02d", cents % 100)
    }
    function cents(text,   sign) {
      sign = sub(/^-/, "", text) ? -1 : 1
      sub(/\./, "", text)
      return sign * text
    }
    NR > 1 {
      date = substr($0, 1, 10)
      match($0, /,[^,]*$/)
      amount = cents(substr($0, RSTART + 1))
      description = substr($0, 12, RSTART - 12)
      if (description ~ /^"/) {
        description = substr(description, 2, length(description) - 2)
        gsub(/""/, "\"", description)
      }
      balance += amount
      print date "\t" description "\t" amount "\t" money(amount) "\t" money(balance)
    }' "$1"
}

# rows_come_back <text> <rows> <least count>: each row's date, description, amount and balance stand
# on one line, in order. Those of a page are looked for in that order; a description that does not
# fit is cut and ends in "...".
rows_come_back() {
  awk -F '\t' '
    FNR == NR { text[FNR] = $0; lines = FNR; next }
    $2 == "Opening balance" && !rows { next }
    {
      ++rows
      whole = $1 " " $2 " " $4 " " $5
      tail = "... " $4 " " $5
      for (found = 0; !found && line < lines; ) {
        candidate = text[++line]
        if (candidate == whole) found = 1
        at = length(candidate) - length(tail)
        if (substr(candidate, at + 1) == tail) {
          start = substr(candidate, 1, at)
          if (length(start) > 30 && index(whole, start) == 1) found = ++cut
        }
      }
      if (!found) { print "no line for: " whole; exit failed = 1 }
    }
    END {
      if (failed) exit 1
      print rows " rows, " cut + 0 " cut"
      exit !(rows >= least && cut < rows / 5)
    }' least="$3" "$1" "$2"
}

# carries <pdf>: what a page carries forward, the next one brings forward.
carries() {
  local page carried
  for ((page = 1; page < $(page_count "$1"); ++page)); do
    carried=$(pdf_text "$1" -f "$page" -l "$page" | sed -n 's/^Carried forward //p')
    [[ $carried =~ ^-?[0-9,]+\.[0-9]{2}\ -?[0-9,]+\.[0-9]{2}$ ]] || {
      echo "page $page carries '$carried'" && return 1
    }
    same "$(pdf_text "$1" -f $((page + 1)) -l $((page + 1)) | sed -n 's/^Brought forward //p')" \
      "$carried" || return 1
  done
}

# is_numbered <pdf>: "1 of 12", "2 of 12", ... at the end of the pages' last lines.
is_numbered() {
  local page pages
  pages=$(page_count "$1")
  ((pages > 1)) || return 1
  for ((page = 1; page <= pages; ++page)); do
    pdf_text "$1" -f "$page" -l "$page" | sed '/^\f*$/d' | tail -n 1 |
      grep -q " $page of $pages\$" || { echo "page $page of $pages" && return 1; }
  done
}

# draws_watermark_first <pdf>: in every content stream the rotated text comes before all other text.
draws_watermark_first() {
  local shown pages
  pages=$(page_count "$1")
  shown=$(qpdf --qdf --object-streams=disable "$1" - | LC_ALL=C awk '
    /^stream/ { in_stream = 1; first = "" }
    /^endstream/ { if (in_stream && first ~ /SPECIMEN/) ++count; in_stream = 0 }
    in_stream && first == "" && /Tj/ { first = $0 }
    END { print count + 0 }')
  same "$shown" "$pages"
}

# writes_pdf <what> <csv bytes> <line>...: the CSV gives a sound PDF with these lines.
writes_pdf() {
  local what=$1 line
  printf '%b' "$2" >good.csv
  shift 2
  rm -f good.pdf
  check "$what: accepted" "$statement" good.csv good.pdf
  check "$what: sound" is_sound good.pdf
  pdf_text good.pdf >good.txt
  for line in "$@"; do
    check "$what: '$line'" shows good.txt "$line"
  done
}

# refuses <what> <line> <csv bytes>: one line on standard error, no PDF, and an older PDF is kept.
refuses() {
  printf '%b' "$3" >bad.csv
  rm -f none.pdf
  echo "an older file" >stale
  check "$1: one line, exit code 1" fails_with "$2" "$statement" bad.csv none.pdf
  check "$1: no PDF" test ! -e none.pdf
  check "$1: again over an older PDF" fails_with "$2" "$statement" bad.csv stale
  check "$1: the older PDF is kept" same "$(cat stale)" "an older file"
}

### The first program

rm -f hello.pdf named.pdf
check "hello: runs" "$hello"
check "hello: takes a path" "$hello" named.pdf
check "hello: the same bytes under both names" cmp hello.pdf named.pdf
check "hello: sound" is_sound hello.pdf
pdf_text hello.pdf >hello.txt
check "hello: its title" shows hello.txt "Hello, page"

### Long statements, on each size of page

# total <rows> <condition on c, an amount in cents>: the sum without the opening balance, as printed.
total() {
  awk -F '\t' 'NR > 1 { c = $3; if ('"$2"') sum += c } END { printf "%.2f\n", sum / 100 }' "$1" |
    sed -E ':again; s/([0-9])([0-9]{3})(,|\.)/\1,\2\3/; t again'
}

# columns_align <pdf>: beyond the first page, which has other figures too, all sums of money end at
# one of two places.
columns_align() {
  pdftotext -bbox -f 2 "$1" - |
    sed -nE 's|.* xMax="([0-9.]+)".*>-?[0-9,]+\.[0-9]{2}</word>|\1|p' | sort -n | awk '
      NR == 1 || $1 > last + 0.01 { ++places; first = $1 }
      $1 > first + 0.01 { apart = 1 }
      { last = $1 }
      END {
        print NR " sums of money end at " places " places" (apart ? ", or nearly so" : "")
        exit !(NR > 500 && places == 2 && !apart)
      }'
}

# writes_statement <name> <page extents> <csv> <least count of rows> <option>...: into <name>.pdf.
writes_statement() {
  local name=$1 extents=$2 csv=$3 least=$4 pdf=$1.pdf opening closing
  shift 4
  rows "$csv" >rows.tsv
  opening=$(awk -F '\t' 'NR == 1 { print $4 }' rows.tsv)
  closing=$(awk -F '\t' 'END { print $5 }' rows.tsv)

  rm -f "$pdf"
  check "$name: runs without a warning" says "" "$statement" "$@" "$csv" "$pdf"
  check "$name: sound" is_sound "$pdf"
  check "$name: size of the pages" same \
    "$(pdfinfo -f 1 -l 99 "$pdf" | awk '/^Page .*size:/ { print $4 "x" $6 }' | sort -u)" "$extents"
  pdf_text "$pdf" >"$name.txt"
  check "$name: the rows' texts come back" rows_come_back "$name.txt" rows.tsv "$least"
  check "$name: opening balance, money in and out, closing balance" shows "$name.txt" \
    "$opening $(total rows.tsv 'c > 0') $(total rows.tsv 'c < 0') $closing"
  check "$name: total and closing balance" shows "$name.txt" \
    "Total and closing balance $(total rows.tsv 1) $closing"
  check "$name: money columns" columns_align "$pdf"
  check "$name: sums carried from page to page" carries "$pdf"
  check "$name: page numbers" is_numbered "$pdf"
  check "$name: watermark beneath the text" draws_watermark_first "$pdf"
}

# The standard faces show ASCII, so they get the rows that are.
LC_ALL=C grep -v '[^ -~]' "$data" >plain.csv
use_fonts_of "$liberation"
while read -r size extents; do
  writes_statement "$size-standard" "$extents" plain.csv 300 --page-size "$size"
  check "$size-standard: nothing is embedded" embeds "$size-standard.pdf" ""
  writes_statement "$size-embedded" "$extents" "$data" 390 --page-size "$size" \
    --font "Liberation Sans"
  check "$size-embedded: both styles are embedded" embeds "$size-embedded.pdf" \
    LiberationSans LiberationSans,Bold
done <<'SIZES'
a4 595.276x841.89
letter 612x792
a5 419.528x595.276
legal 612x1008
SIZES

rm -f default.pdf
check "default: runs" "$statement" plain.csv default.pdf
check "default: is A4 in Helvetica" cmp default.pdf a4-standard.pdf
qpdf --qdf --object-streams=disable default.pdf default.qdf
check "viewer preferences: fit window" grep -aq '/FitWindow true' default.qdf
check "viewer preferences: page layout" grep -aq '/PageLayout /OneColumn' default.qdf

### Fonts

for line in '2026-01-13 Amélie Delacroix, invoice 4106: slip cases (4) 147.76 8,093.03' \
  '2026-01-14 Card 7730: bakery “Morning Roll” -10.46 8,082.57' \
  '2026-01-15 Weberei Groß, Plauen: buckram, 3 rolls (€403.50) -350.72 8,155.06'; do
  check "accents, curly quotes, euro sign: '$line'" shows a4-embedded.txt "$line"
done

notice='statement: there are characters beyond ASCII, which Helvetica shows wrongly or not at all;'
notice+=' --font NAME embeds a TrueType font that has them'
rm -f noticed.pdf
check "no font for the accents: a notice" says "$notice" "$statement" "$data" noticed.pdf
check "no font for the accents: sound" is_sound noticed.pdf
check "no font for the holder's accents: a notice" says "$notice" \
  "$statement" --holder 'Café' plain.csv noticed.pdf

rm -f replaced.pdf
"$statement" --font "No Such Face" "$data" replaced.pdf 2>replaced.log
check "unknown font: goes on" same "exit code $?" "exit code 0"
check "unknown font: one warning that names the replacement" grep -qxE \
  "WARNING: Font 'No Such Face' could not be found\.  Using '(Liberation [A-Z][A-Za-z ]+)' instead\." \
  replaced.log
check "unknown font: no other line" same "$(wc -l <replaced.log)" 1
check "unknown font: sound" is_sound replaced.pdf
face=$(sed -nE "s/.* Using '(.*)' instead\.$/\1/p" replaced.log | tr -d ' ')
check "unknown font: the replacement is embedded" embeds replaced.pdf "$face" "$face,Bold"

mkdir -p empty damaged
head -c 1000 "$liberation/LiberationSans-Regular.ttf" >damaged/cut.ttf
use_fonts_of "$PWD/empty"
rm -f server.pdf none.pdf
check "no fonts installed: an error that names the font" fails_with \
  "PDFFonts.Add: font 'Liberation Sans': there is no TrueType font, neither among the document's\
 font files nor installed where libfontconfig.so.1 finds it: install one, or add its file to FontFiles" \
  "$statement" --font "Liberation Sans" "$data" none.pdf
check "no fonts installed: no PDF" test ! -e none.pdf
check "font folder: runs without a warning" says "" \
  "$statement" --font "Liberation Sans" --font-folder "$liberation" "$data" server.pdf
check "font folder: the same bytes as from the system's fonts" cmp server.pdf a4-embedded.pdf
rm -f server.pdf
"$statement" --font "Liberation Sans" --font-folder damaged --font-folder "$liberation" \
  "$data" server.pdf 2>damaged.log
check "damaged font in a folder: goes on" same "exit code $?" "exit code 0"
check "damaged font in a folder: named" grep -q "^statement: .*'$PWD/damaged/cut.ttf': damaged font" \
  damaged.log
check "damaged font in a folder: no other line" same "$(wc -l <damaged.log)" 1
check "damaged font in a folder: the other folder counts" cmp server.pdf a4-embedded.pdf
check "font folder that is not there: an error that names it" fails_with \
  "FontFiles.AddFolder: folder '$PWD/nowhere': cannot be read: No such file or directory" \
  env LC_ALL=C "$statement" --font "Liberation Sans" --font-folder nowhere "$data" none.pdf
check "font folder that is not there: no PDF" test ! -e none.pdf
"$statement" --font-folder "$liberation" "$data" none.pdf 2>usage.log
check "font folder without a font: refused" same "exit code $?" "exit code 2"
check "font folder without a font: the reason" \
  same "$(head -n 1 usage.log)" "statement: --font-folder is of no use without --font"

### What other files hold

header='date,description,amount\n'
writes_pdf "header only" "$header" "No transactions" \
  "Total and closing balance 0.00 0.00" "Harbour Lane Bookbinders 1 of 1"
writes_pdf "byte order mark, CR LF, no end of line" \
  '\xEF\xBB\xBFdate,description,amount\r\n2026-01-02,Paper,-0.05\r\n2026-01-03,Ink,+7' \
  "2026-01-02 Paper -0.05 -0.05" "2026-01-03 Ink 7.00 6.95" "2 January 2026 to 3 January 2026"
writes_pdf "quotes, commas and line breaks" \
  "$header"'2026-01-02,"a ""b"", (c\\d)\r\ne",1234567.8\n\n"2024-02-29",,"-.5"\n' \
  '2026-01-02 a "b", (c\d) e 1,234,567.80 1,234,567.80' "2024-02-29 -0.50 1,234,567.30"
writes_pdf "columns in another order" \
  'Amount,Reference, DATE ,Description\n100,x,2026-01-02,Opening Balance\n-1.10,y,2026-01-03,Ink\n' \
  "2026-01-03 Ink -1.10 98.90" "Total and closing balance -1.10 98.90"
writes_pdf "large amounts" "$header"'2026-01-02,Sale,99999999999.99\n2026-01-03,Return,-99999999999.98\n' \
  "2026-01-02 Sale 99,999,999,999.99 99,999,999,999.99" "2026-01-03 Return -99,999,999,999.98 0.01"

### What is refused

row='2026-01-02,Ink,1.00\n'
refuses "empty file" \
  "bad.csv:1: the file is empty where a header with date, description and amount is expected" ""
refuses "no header" "bad.csv:1: the header has no column 'date'" "$row"
refuses "column missing" "bad.csv:1: the header has no column 'amount'" 'date,description\n'
refuses "too few fields" "bad.csv:3: 2 fields where the header has 3" "$header$row"'2026-01-02,Ink\n'
refuses "too many fields" "bad.csv:2: 4 fields where the header has 3" "$header"'2026-01-02,a,b,1\n'
refuses "amount is no number" "bad.csv:3: amount '12,x' is not a number" \
  "$header$row"'2026-01-02,Ink,"12,x"\n'
refuses "amount missing" "bad.csv:2: amount '' is not a number" "$header"'2026-01-02,Ink,\n'
refuses "amount of signs" "bad.csv:2: amount '--5' is not a number" "$header"'2026-01-02,Ink,--5\n'
refuses "amount with an exponent" "bad.csv:2: amount '1e3' is not a number" \
  "$header"'2026-01-02,Ink,1e3\n'
refuses "amount of mills" "bad.csv:2: amount '0.125' has more than two decimals" \
  "$header"'2026-01-02,Ink,0.125\n'
refuses "amount too large" "bad.csv:2: amount '100000000000' is too large" \
  "$header"'2026-01-02,Ink,100000000000\n'
refuses "sum too large" "bad.csv:3: the amounts up to here sum up to more than 99,999,999,999.99" \
  "$header"'2026-01-02,Ink,99999999999\n2026-01-02,Ink,1\n'
refuses "line break in an amount" "bad.csv:2: amount '1?2' is not a number" \
  "$header"'2026-01-02,Ink,"1\n2"\n'
refuses "no such day" "bad.csv:2: date '2026-02-30' is not in the calendar" \
  "$header"'2026-02-30,Ink,1\n'
refuses "no leap year" "bad.csv:2: date '2025-02-29' is not in the calendar" \
  "$header"'2025-02-29,Ink,1\n'
refuses "date in another form" "bad.csv:2: date '3.1.2026' is not of the form 2026-01-31" \
  "$header"'3.1.2026,Ink,1\n'
refuses "quote never closed" "bad.csv:3: a quoted field is never closed" \
  "$header$row"'2026-01-02,"Ink,1\n'"$row"
refuses "text after a quote" "bad.csv:3: text follows the closing quote of a field" \
  "$header"'2026-01-02,"Ink\n"x,1\n'
refuses "quote within a field" "bad.csv:2: a quote in a field that does not start with one" \
  "$header"'2026-01-02,5" nails,1\n'
refuses "not UTF-8" "bad.csv:3: the text is not UTF-8" "$header$row"'2026-01-02,caf\xE9,1\n'
refuses "line after a multi-line field" "bad.csv:4: amount 'x' is not a number" \
  "$header"'2026-01-02,"a\nb",1\n2026-01-02,Ink,x\n'

rm -f missing.csv none.pdf
check "missing file: one line, exit code 1" \
  fails_with "missing.csv: cannot be opened: No such file or directory" \
  env LC_ALL=C "$statement" missing.csv none.pdf
check "missing file: no PDF" test ! -e none.pdf
mkdir -p folder.csv
check "folder: one line, exit code 1" fails_with "folder.csv: cannot be read" \
  "$statement" folder.csv none.pdf
check "folder: no PDF" test ! -e none.pdf

finish
