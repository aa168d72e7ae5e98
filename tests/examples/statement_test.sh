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
mkdir -p "$3" && cd "$3" || exit 2

failures=0

# check <what> <command>...: the command succeeds.
check() {
  local what=$1
  shift
  if "$@" >check.log 2>&1; then
    echo "ok: $what"
  else
    echo "FAILED: $what"
    sed 's/^/    /' check.log
    failures=$((failures + 1))
  fi
}

same() {
  [[ $1 == "$2" ]] || { printf 'found:    %s\nexpected: %s\n' "$1" "$2" && false; }
}

# qpdf's exit code is 0 only without errors and warnings.
is_sound() { qpdf --check "$1"; }

# pdf_text <pdf> [<option>...]: the text line by line, blanks folded, without the rotated watermark,
# whose letters would come back between those of the lines that they cross.
pdf_text() {
  local pdf=$1
  shift
  pdftotext -layout -nodiag -enc UTF-8 "$@" "$pdf" - | sed -E 's/[[:space:]]+/ /g; s/^ //; s/ $//'
}

page_count() { pdfinfo "$1" | awk '/^Pages:/ { print $2 }'; }

# The shipped file, which holds no line breaks in quotes, without its header, as lines of "date,
# description, amount in cents, money as printed" with tabs between them. Cents stay far below 2^53,
# where awk counts exactly.
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
    }' "$data"
}

# Each row's date, description, amount and balance stand on one line, in order. Those of a page are
# looked for in that order; a description that does not fit is cut and ends in "...".
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
      exit !(rows > 300 && cut < rows / 5)
    }' "$1" rows.tsv
}

# shows <text> <line>: the text has this line.
shows() { grep -qxF -e "$2" "$1" || { echo "no line: $2" && false; }; }

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

# fails_with <line> <command>...: exactly this one line on standard error, nothing on standard
# output, exit code 1.
fails_with() {
  local expected=$1 code
  shift
  "$@" >stdout.log 2>stderr.log
  code=$?
  same "exit code $code" "exit code 1" && same "$(cat stdout.log)" "" &&
    printf '%s\n' "$expected" | diff - stderr.log
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

### The shipped statement, on each size of page

rows >rows.tsv
opening=$(awk -F '\t' 'NR == 1 { print $4 }' rows.tsv)
closing=$(awk -F '\t' 'END { print $5 }' rows.tsv)

# total <condition on c, an amount in cents>: the sum without the opening balance, as printed.
total() {
  awk -F '\t' 'NR > 1 { c = $3; if ('"$1"') sum += c } END { printf "%.2f\n", sum / 100 }' \
    rows.tsv | sed -E ':again; s/([0-9])([0-9]{3})(,|\.)/\1,\2\3/; t again'
}

while read -r size extents; do
  pdf=$size.pdf
  rm -f "$pdf"
  check "$size: runs" "$statement" --page-size "$size" "$data" "$pdf"
  check "$size: sound" is_sound "$pdf"
  check "$size: size of the pages" same \
    "$(pdfinfo -f 1 -l 99 "$pdf" | awk '/^Page .*size:/ { print $4 "x" $6 }' | sort -u)" "$extents"
  pdf_text "$pdf" >"$size.txt"
  check "$size: the rows' texts come back" rows_come_back "$size.txt"
  check "$size: opening balance, money in and out, closing balance" shows "$size.txt" \
    "$opening $(total 'c > 0') $(total 'c < 0') $closing"
  check "$size: total and closing balance" shows "$size.txt" \
    "Total and closing balance $(total 1) $closing"
  check "$size: sums carried from page to page" carries "$pdf"
  check "$size: page numbers" is_numbered "$pdf"
  check "$size: watermark beneath the text" draws_watermark_first "$pdf"
done <<'SIZES'
a4 595.276x841.89
letter 612x792
a5 419.528x595.276
legal 612x1008
SIZES

rm -f default.pdf
check "default: runs" "$statement" "$data" default.pdf
check "default: is A4" cmp default.pdf a4.pdf
qpdf --qdf --object-streams=disable a4.pdf a4.qdf
check "viewer preferences: fit window" grep -aq '/FitWindow true' a4.qdf
check "viewer preferences: page layout" grep -aq '/PageLayout /OneColumn' a4.qdf

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

if ((failures > 0)); then
  echo "$failures failed"
  exit 1
fi
