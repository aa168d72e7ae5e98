#!/usr/bin/env bash
#
# catalogue_test.sh <catalogue> <scratch folder>
#
# Runs the example program and looks at what it writes with qpdf, pdfinfo, pdftotext, pdfimages and
# mutool; ImageMagick reads the pictures. Prints a line for each check and fails if one of them
# failed.
set -u -o pipefail

if (($# != 2)); then
  echo "usage: catalogue_test.sh <catalogue> <scratch folder>" >&2
  exit 2
fi
catalogue=$(realpath "$1") || exit 2
data=$(realpath "$(dirname "${BASH_SOURCE[0]}")/../../examples/data") || exit 2
pictures=$data/catalogue
captions=$data/catalogue.csv
# shellcheck source=tests/examples/checks.sh
source "$(dirname "${BASH_SOURCE[0]}")/checks.sh" || exit 2
mkdir -p "$2" && cd "$2" || exit 2

page_count() { pdfinfo "$1" | awk '/^Pages:/ { print $2 }'; }

page_text() { pdftotext -raw -enc UTF-8 -f "$2" -l "$2" "$1" -; }

# rows <csv>: its lines behind the header as picture, title and caption with tabs between them. A
# field holds no line break, and no quote that is not around it.
rows() {
  awk '
    function field(   text) {
      match($0, /^("[^"]*"|[^,]*)/)
      text = substr($0, 1, RLENGTH)
      $0 = substr($0, RLENGTH + 2)
      gsub(/^"|"$/, "", text)
      return text
    }
    NR > 1 { picture = field(); title = field(); print picture "\t" title "\t" field() }' "$1"
}

# picture <number>: its file.
picture() { sed -n "$1p" rows.tsv | cut -f 1; }

words() { tr -s ' \n\f' '\n' | sed '/^$/d'; }

# expected_words <page>: the header, four pictures' numbers, titles and captions, the page's number.
expected_words() {
  local first=$((4 * ($1 - 2) + 1))
  {
    echo "HARBOUR LANE PRINT ROOM"
    awk -F '\t' -v first=$first 'NR >= first && NR < first + 4 { print NR, $2, $3 }' rows.tsv
    echo "$1"
  } | words
}

shows_words() { page_text "$1" "$2" | words | diff - <(expected_words "$2"); }

# keeps_columns <pdf> <page>: beyond the header, which is centred, no word reaches out of the two
# columns of frames; an edge is exact to a hundredth.
keeps_columns() {
  pdftotext -bbox -f "$2" -l "$2" "$1" - |
    sed -nE 's|.*<word xMin="([0-9.]+)" yMin="([0-9.]+)" xMax="([0-9.]+)".*>(.*)</word>|\1 \2 \3 \4|p' |
    awk '$2 > 90 && $2 < 790 {
        ++words
        left = $1 > 65.99 && $3 < 284.01
        right = $1 > 311.26 && $3 < 529.29
        if (!left && !right) { print "from " $1 " to " $3 ": " $4; bad = 1 }
      }
      END { print words " words"; exit bad || words < 20 }'
}

# drawn <pdf> <page>: what the page draws by name, in order.
drawn() { mutool show -b "$1" "pages/$2/Contents" | sed -n 's/^\(\/.*\) Do$/\1/p' | xargs; }

# is_picture <number> <image taken out of the PDF>: byte for byte, or pixel for pixel for a bitmap.
is_picture() {
  local file
  file=$pictures/$(picture "$1")
  case $file in
    *.jpg) cmp "$file" "$2" ;;
    *.bmp) same "$(compare -metric AE "$file" "$2" null: 2>&1)" 0 ;;
    *) false ;;
  esac
}

# keeps_shapes <pdf>: pictures are as wide as high pixels on the page, to the rounding of pdfimages.
keeps_shapes() {
  pdfimages -list "$1" | awk 'NR > 2 { ++images; if (($13 - $14) ^ 2 > 1) bad = 1 }
    END { exit bad || !images }'
}

# hangs_in_middle <pdf> <page>: each picture is in the middle of the mat that is drawn before it, as
# large as leaves 15 points around it. Numbers in the file have four decimals.
hangs_in_middle() {
  mutool show -b "$1" "pages/$2/Contents" | awk '
    function is(a, b) { return (a - b) ^ 2 < 1e-6 }
    / re$/ { left = $1; bottom = $2; width = $3; height = $4 }
    / cm$/ { w = $1; h = $4; x = $5 - left; y = $6 - bottom }
    /^\/I[0-9]+ Do$/ {
      ++pictures
      if (!is(2 * x + w, width) || !is(2 * y + h, height) || !is(x < y ? x : y, 15)) {
        print $1 " is " x " and " y " off the corner"
        bad = 1
      }
    }
    END { exit bad || !pictures }'
}

# has_thumbnail <pdf> <page> <number of the picture, a JPEG file>
has_thumbnail() {
  same "$(mutool show "$1" "pages/$2/Thumb/Subtype")" /Image &&
    mutool show -b -e "$1" "pages/$2/Thumb" | cmp - "$pictures/$(picture "$3")"
}

# count_of <line> <pdf>: of an object's dictionary.
count_of() { grep -acxF -e "$1" "$2"; }

# writes_pages <count> <csv bytes>: the catalogue of these captions.
writes_pages() {
  printf '%b' "$2" >good.csv
  rm -f good.pdf
  says "" "$catalogue" "$pictures" good.csv good.pdf && is_sound good.pdf &&
    same "$(page_count good.pdf)" "$1"
}

# refuses <what> <line> <csv bytes>: one line on standard error, no PDF, and an older PDF is kept.
refuses() {
  printf '%b' "$3" >bad.csv
  rm -f none.pdf
  echo "an older file" >stale
  check "$1: one line, exit code 1" fails_with "$2" "$catalogue" odd bad.csv none.pdf
  check "$1: no PDF" test ! -e none.pdf
  check "$1: again over an older PDF" fails_with "$2" "$catalogue" odd bad.csv stale
  check "$1: the older PDF is kept" same "$(cat stale)" "an older file"
}

### The catalogue that the README shows

use_fonts_of "$liberation"
rows "$captions" >rows.tsv
count=$(wc -l <rows.tsv)
pages=$((1 + (count + 3) / 4))
check "captions: for each picture" diff <(cut -f 1 rows.tsv | LC_ALL=C sort) \
  <(cd "$pictures" && printf '%s\n' * | LC_ALL=C sort)

rm -f all.pdf again.pdf
check "runs without a warning" \
  says "" "$catalogue" --font "Liberation Serif" "$pictures" "$captions" all.pdf
check "sound" is_sound all.pdf
check "a cover and four pictures to a page" same "$(page_count all.pdf)" "$pages"
check "size of the pages" same \
  "$(pdfinfo -f 1 -l 99 all.pdf | awk '/^Page .*size:/ { print $4 "x" $6 }' | sort -u)" \
  595.276x841.89
check "both styles are embedded" embeds all.pdf LiberationSerif LiberationSerif,Italic
check "viewer preferences: thumbnails" same "$(mutool show all.pdf trailer/Root/PageMode)" \
  /UseThumbs
check "viewer preferences: spreads behind the cover" same \
  "$(mutool show all.pdf trailer/Root/PageLayout)" /TwoColumnRight
check "cover: its text" same "$(page_text all.pdf 1 | words | xargs)" \
  "HARBOUR LANE PRINT ROOM Table and Tide A catalogue of twelve pictures"
for ((page = 2; page <= pages; ++page)); do
  check "page $page: header, titles, captions, number" shows_words all.pdf "$page"
  check "page $page: text keeps to its column" keeps_columns all.pdf "$page"
done

check "template: in the file once" same "$(count_of '/Subtype /Form' all.pdf)" 1
check "pictures: each in the file once" same "$(count_of '/Subtype /Image' all.pdf)" "$count"
check "cover: template, then the first picture" same "$(drawn all.pdf 1)" "/T1 /I1"
for ((page = 2; page <= pages; ++page)); do
  first=$((4 * (page - 2) + 1))
  check "page $page: template, then four pictures" same "$(drawn all.pdf "$page")" \
    "/T1 /I$first /I$((first + 1)) /I$((first + 2)) /I$((first + 3))"
  check "page $page: pictures in the middle of their frames" hangs_in_middle all.pdf "$page"
  check "page $page: its first picture is its thumbnail" has_thumbnail all.pdf "$page" "$first"
done
check "cover: its picture is its thumbnail" has_thumbnail all.pdf 1 1

rm -f image-*
pdfimages -j -png -f 2 all.pdf image
check "pictures: all of them on the pages" same "$(printf '%s\n' image-* | wc -l)" "$count"
for ((i = 1; i <= count; ++i)); do
  printf -v image 'image-%03d' $((i - 1))
  check "picture $i: unchanged, $(picture "$i")" is_picture "$i" "$image".*
done
check "pictures: not stretched" keeps_shapes all.pdf

check "again: runs" "$catalogue" --font "Liberation Serif" "$pictures/" "$captions" again.pdf
check "again, the folder named with a slash: the same bytes" cmp all.pdf again.pdf
rm -f again.pdf
check "font folder: runs" says "" "$catalogue" --font "Liberation Serif" \
  --font-folder "$liberation" "$pictures" "$captions" again.pdf
check "font folder: the same bytes" cmp all.pdf again.pdf

### Without a font

notice='catalogue: there are characters beyond ASCII, which Times shows wrongly or not at all;'
notice+=' --font NAME embeds a TrueType font that has them'
rm -f standard.pdf
check "no font: a notice" says "$notice" "$catalogue" "$pictures" "$captions" standard.pdf
check "no font: sound" is_sound standard.pdf
check "no font: nothing is embedded" embeds standard.pdf ""

### Other captions, all in ASCII

header='picture,title,caption\n'
row='lemons.jpg,Lemons,Of one colour\n'
check "one picture: two pages" writes_pages 2 "$header$row"
check "no font for the title: a notice" \
  says "$notice" "$catalogue" --title 'Café' "$pictures" good.csv standard.pdf
check "one picture: the cover's text" same "$(page_text good.pdf 1 | words | xargs)" \
  "HARBOUR LANE PRINT ROOM Table and Tide A catalogue of one picture"
check "four pictures: two pages" writes_pages 2 "$header$row$row$row$row"
check "five pictures: three pages" writes_pages 3 "$header$row$row$row$row$row"
check "five pictures: the last page" same "$(page_text good.pdf 3 | words | xargs)" \
  "HARBOUR LANE PRINT ROOM 5 Lemons Of one colour 3"
check "columns in another order, others, blanks" writes_pages 2 \
  '\xEF\xBB\xBFCaption,Year,Title,Picture\r\n,2026,Peel,  lemons.jpg \r\n'
check "columns in another order: title without a caption" same \
  "$(page_text good.pdf 2 | words | xargs)" "HARBOUR LANE PRINT ROOM 1 Peel 2"

long=$(printf 'every %.0s' {1..60})
word=$(printf 'x%.0s' {1..200})
check "long texts: accepted" writes_pages 2 "$header""fern.bmp,$long,$long\nfern.bmp,$word,$word\n"
check "long texts: keep to their columns" keeps_columns good.pdf 2
check "long texts: titles and captions are cut, captions in the third line" same \
  "$(page_text good.pdf 2 | awk '/[a-z]/ { print (/\.\.\.$/ ? "cut" : "whole") }' | xargs)" \
  "cut whole whole cut cut cut"
rm -f named.pdf
check "names: accepted" says "" "$catalogue" --title "$long" --house "THE SHED" "$pictures" good.csv \
  named.pdf
check "names: on the cover" same "$(page_text named.pdf 1 | words | xargs)" \
  "THE SHED ${long}A catalogue of two pictures"
check "names: a long title keeps to the page" same "$(pdftotext -bbox -l 1 named.pdf - |
  sed -nE 's|.*<word xMin="([0-9.]+)".* xMax="([0-9.]+)".*>every</word>|\1 \2|p' |
  awk '{ ++words; if ($1 < 65.99 || $2 > 529.29) bad = 1 } END { print words, bad + 0 }')" "60 0"

### What is refused

mkdir -p odd/folder.jpg
cp "$pictures/lemons.jpg" odd/good.jpg
cp "$pictures/lemons.jpg" odd/lemons.gif
cp "$pictures/lemons.jpg" odd/lemons.bmp
printf 'no picture' >odd/text.jpg
printf '\xFF\xD8\xFF\xC0\0\x11\x08\0\0\0\x10\x03' >odd/flat.jpg
readable='(JPEG and uncompressed BMP files can be read: convert it to one of them)'
refuses "missing picture" "bad.csv:3: PDFImage.FileName: file 'odd/pears.jpg': does not exist" \
  "$header"'good.jpg,a,b\npears.jpg,Pears,None left\n'
refuses "folder as a picture" "bad.csv:2: PDFImage.FileName: file 'odd/folder.jpg': cannot be read: Is a directory" \
  "$header"'folder.jpg,a,b\n'
refuses "unknown type" "bad.csv:2: Error: Image type unknown for odd/lemons.gif. $readable" \
  "$header"'lemons.gif,a,b\n'
refuses "no extension" "bad.csv:2: Error: Image type unknown for odd/lemons. $readable" \
  "$header"'lemons,a,b\n'
refuses "no JPEG file" "bad.csv:2: Error: Image type unknown for odd/text.jpg. $readable" \
  "$header"'text.jpg,a,b\n'
refuses "JPEG file without lines" "bad.csv:2: Image file 'odd/flat.jpg' has no pixels" \
  "$header"'flat.jpg,a,b\n'
refuses "no picture named" "bad.csv:2: no picture is named" "$header"' ,a,b\n'
refuses "no picture listed" "bad.csv:2: no picture is listed" "$header"
refuses "empty file" \
  "bad.csv:1: the file is empty where a header with picture, title and caption is expected" ""
refuses "column missing" "bad.csv:1: the header has no column 'caption'" 'picture,title\n'
refuses "too few fields" "bad.csv:2: 2 fields where the header has 3" "$header"'good.jpg,a\n'
refuses "not UTF-8" "bad.csv:2: the text is not UTF-8" "$header"'good.jpg,caf\xE9,b\n'
refuses "line break in a name" "bad.csv:2: PDFImage.FileName: file 'odd/a?.jpg': does not exist" \
  "$header"'"a\n.jpg",a,b\n'

printf '%b' "$header"'lemons.bmp,a,b\n' >bad.csv
rm -f none.pdf
"$catalogue" odd bad.csv none.pdf 2>bitmap.log
check "no bitmap: exit code 1" same "exit code $?" "exit code 1"
check "no bitmap: one line that names it" grep -qx \
  "bad.csv:2: Unknown BMP format (.*'odd/lemons\.bmp'; .*)" bitmap.log
check "no bitmap: no other line" same "$(wc -l <bitmap.log)" 1
check "no bitmap: no PDF" test ! -e none.pdf

rm -f missing.csv
check "no captions: an error" fails_with "missing.csv: cannot be opened: No such file or directory" \
  env LC_ALL=C "$catalogue" "$pictures" missing.csv none.pdf
check "no folder: an error" fails_with \
  "$captions:2: PDFImage.FileName: file 'nowhere/lighthouse.jpg': does not exist" \
  "$catalogue" nowhere "$captions" none.pdf
check "neither: no PDF" test ! -e none.pdf
"$catalogue" "$pictures" "$captions" 2>usage.log
check "no output file: refused" same "exit code $?" "exit code 2"
check "no output file: the reason" same "$(head -n 1 usage.log)" \
  "catalogue: a folder of pictures, a file of captions and an output file are needed"
"$catalogue" --font-folder "$liberation" "$pictures" "$captions" none.pdf 2>usage.log
check "font folder without a font: refused" same "exit code $?" "exit code 2"
check "font folder without a font: the reason" \
  same "$(head -n 1 usage.log)" "catalogue: --font-folder is of no use without --font"

finish
