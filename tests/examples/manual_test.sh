#!/usr/bin/env bash
#
# manual_test.sh <manual> <scratch folder>
#
# Runs the example program on the user guide, and on a manual of 500 pages, and looks at what it
# writes with qpdf, pdfinfo, pdffonts, pdftotext and mutool. Prints a line for each check and fails
# if one of them failed.
set -u -o pipefail

if (($# != 2)); then
  echo "usage: manual_test.sh <manual> <scratch folder>" >&2
  exit 2
fi
manual=$(realpath "$1") || exit 2
guide=$(realpath "$(dirname "${BASH_SOURCE[0]}")/../../docs/guide.txt") || exit 2
# shellcheck source=tests/examples/checks.sh
source "$(dirname "${BASH_SOURCE[0]}")/checks.sh" || exit 2
mkdir -p "$2" && cd "$2" || exit 2
rm -f ./*.pdf

page_count() { pdfinfo "$1" | awk '/^Pages:/ { print $2 }'; }

# text_in <pdf> <first page> <last page> <x> <y> <width> <height>, in points from the upper left.
text_in() {
  pdftotext -raw -enc UTF-8 -f "$2" -l "$3" -x "$4" -y "$5" -W "$6" -H "$7" "$1" - | tr -d '\f'
}

# What is between the running head and the number at the foot.
body_text() { text_in "$1" "$2" "$3" 0 48 482 586; }

words() { tr -s ' \n\t' '\n' | sed '/^$/d'; }

# The standard faces show an apostrophe and a backtick as curly quotes.
curl_quotes() { sed "s/'/’/g; s/\`/‘/g"; }

# parts <manual>: its text behind the title page, without marks, in lines that begin with what they
# are: "h" and the level of a heading, "t" for text, "c" for code.
parts() {
  awk '
    function unmarked(line,   i, c, out) {
      for (i = 1; i <= length(line); ++i) {
        c = substr(line, i, 1)
        if (c == "`") isCode = !isCode
        else if (isCode) out = out c
        else if (c == "\\") out = out substr(line, ++i, 1)
        else if (c !~ /[][*]/) out = out c
      }
      return out
    }
    /^```/ { isBlock = !isBlock; next }
    isBlock { print "c " $0; next }
    /^#+ / {
      level = length($1)
      number = level == 1 ? ++chapter : level == 2 ? chapter "." ++section \
                                                   : chapter "." section "." ++subsection
      if (level == 1) section = 0
      if (level < 3) subsection = 0
      sub(/^#+ +/, "")
      print "h" level " " number " " $0
      next
    }
    chapter { sub(/^- /, ""); print "t " unmarked($0) }' "$1"
}

# headings <manual>: level, number and title with tabs between them.
headings() { parts "$1" | sed -nE 's/^h([123]) ([0-9.]+) (.*)$/\1\t\2\t\3/p' | curl_quotes; }

# contents <pdf> <first page> <last page>: number, title and page with tabs between them.
contents() {
  text_in "$1" "$2" "$3" 0 48 482 586 | grep -vx Contents |
    sed -E 's/( \.)* ([0-9]+)$/\t\2/; s/^([0-9.]+) /\1\t/'
}

# outline <pdf>: level, number, title and page with tabs between them.
outline() {
  mutool show "$1" outline |
    awk -F '\t' '{
      level = NF - 2
      title = $(NF - 1)
      gsub(/^"|"$/, "", title)
      gsub(/\\\\/, "\\", title)
      number = title
      sub(/ .*/, "", number)
      sub(/^[^ ]* +/, "", title)
      page = $NF
      sub(/^#page=/, "", page)
      sub(/&.*/, "", page)
      print level "\t" number "\t" title "\t" page
    }' | curl_quotes
}

# links <pdf>: for each link, in the order of the pages and of the links on them, its page, the page
# that it leads to, the height there, and its rectangle.
links() {
  {
    mutool show "$1" pages
    mutool show -g "$1" grep | grep -E '/Type/(Page|Annot)>'
  } | awk '
    /^page / { number[$4] = $2; order[++pages] = $4; next }
    /\/Type\/Page>/ && match($0, /\/Annots\[[0-9 R]*\]/) {
      annots[$1] = substr($0, RSTART + 8, RLENGTH - 9)
    }
    /\/Subtype\/Link/ {
      match($0, /\/Dest\[[^]]*\]/)
      split(substr($0, RSTART + 6, RLENGTH - 7), dest, " ")
      match($0, /\/Rect\[[^]]*\]/)
      target[$1] = dest[1]
      rest[$1] = dest[5] " " substr($0, RSTART + 6, RLENGTH - 7)
    }
    END {
      for (i = 1; i <= pages; ++i) {
        count = split(annots[order[i]], link, " ")
        for (j = 1; j <= count; j += 3) print i, number[target[link[j]]], rest[link[j]]
      }
    }'
}

# numbered_lines <pdf> <y> <height>: what stands there, with the page before each line.
numbered_lines() {
  pdftotext -raw -enc UTF-8 -x 0 -y "$2" -W 482 -H "$3" "$1" - |
    awk 'BEGIN { page = 1 } { page += gsub(/\f/, ""); if ($0 != "") print page "\t" $0 }'
}

# has_headings <lines> <contents>: each stands on the page that the contents name, a chapter at its
# beginning with its number above its title.
has_headings() {
  awk -F '\t' '
    NR == FNR { if (++count[$1] < 3) start[$1] = start[$1] $2 "\n"; lines[$1, $2]; next }
    { isThere = $1 ~ /\./ ? ($3, $1 " " $2) in lines : start[$3] == $1 "\n" $2 "\n" }
    !isThere { print "not on page " $3 ": " $1 " " $2; bad = 1 }
    END { exit bad || NR == FNR }' "$1" "$2"
}

# ends_no_page <lines> <contents>: no heading is the last line of its page.
ends_no_page() {
  awk -F '\t' '
    NR == FNR { last[$1] = $2; next }
    last[$3] == $1 " " $2 { print "at the foot of page " $3 ": " last[$3]; bad = 1 }
    END { exit bad || NR == FNR }' "$1" "$2"
}

# heads_due <contents> <title> <pages>: the pages on which the contents or a chapter go on have its
# number and title at the left and the book's title at the right, the others nothing.
heads_due() {
  awk -F '\t' -v title="$2" -v pages="$3" '
    $1 !~ /\./ { chapter[$3] = $1 " " $2 }
    END {
      head = "Contents"
      for (page = 3; page <= pages; ++page) {
        if (page in chapter) head = chapter[page]
        else print page "\t" head " " title
      }
    }' "$1"
}

# link_texts <pdf> <links>: of each link, the page that it leads to and the text beneath it.
link_texts() {
  local on to top left bottom right above
  while read -r on to top left bottom right above; do
    read -r x y w h < <(awk -v l="$left" -v b="$bottom" -v r="$right" -v t="$above" \
      'BEGIN { printf "%d %d %d %d\n", l, 681.315 - t, r - l, t - b - 2 }')
    printf '%s\t%s\n' "$to" "$(text_in "$1" "$on" "$on" "$x" "$y" "$w" "$h" | xargs -0 echo -n)"
  done <"$2"
}

# lead_to_headings <link texts> <contents>: a link of the contents names its heading and page, one
# in the text its heading or, at the end of a line, a part of it.
lead_to_headings() {
  awk -F '\t' '
    NR == FNR { titles[$3] = titles[$3] "\t" $1 " " $2; next }
    {
      text = $2
      sub(/( \.)* [0-9]+$/, "", text)
      if (text == "" || !index(titles[$1], text)) { print "to page " $1 ": " $2; bad = 1 }
    }
    END { exit bad || NR == FNR }' "$2" "$1"
}

# lead_above_headings <links of the contents> <pdf>: each leads to a height just above its heading.
lead_above_headings() {
  local to top number height status=0
  while read -r to top number _; do
    height=$(pdftotext -bbox-layout -f "$to" -l "$to" "$2" - | awk -v number="$number" '
      /<line / { first = 1 }
      /<word / && first {
        first = 0
        match($0, />[^<]*</)
        if (substr($0, RSTART + 1, RLENGTH - 2) != number) next
        match($0, /yMin="[0-9.]+"/)
        print 680.315 - substr($0, RSTART + 6, RLENGTH - 7)
        exit
      }')
    awk -v top="$top" -v height="$height" \
      'BEGIN { exit !(height != "" && top > height && top < height + 70) }' ||
      { echo "$number is at '$height' on page $to, the link leads to $top" && status=1; }
  done < <(paste -d ' ' <(cut -d ' ' -f 2-3 "$1") <(tr '\t' ' ' <contents.tsv))
  return "$status"
}

# check_book <pdf> <manual> <title>: what holds for every book. Leaves headings.tsv, contents.tsv and
# contents-links.txt behind.
check_book() {
  local pdf=$1 text=$2 title=$3 pages first headings
  pages=$(page_count "$pdf")
  first=$(outline "$pdf" | awk -F '\t' 'NR == 1 { print $4 }')
  headings "$text" >headings.tsv
  headings=$(wc -l <headings.tsv)
  contents "$pdf" 2 $((first - 1)) >contents.tsv
  check "$pdf: sound" is_sound "$pdf"
  check "$pdf: the outline is open" same "$(mutool show "$pdf" trailer/Root/PageMode)" /UseOutlines
  check "$pdf: contents: every heading" diff <(cut -f 2-3 headings.tsv) <(cut -f 1-2 contents.tsv)
  numbered_lines "$pdf" 48 586 >lines.tsv
  check "$pdf: contents: headings are where they say" has_headings lines.tsv contents.tsv
  check "$pdf: outline: every heading, level and page" diff <(outline "$pdf") \
    <(paste headings.tsv <(cut -f 3 contents.tsv))
  check "$pdf: every word, in its order" diff \
    <(parts "$text" | cut -d ' ' -f 2- | curl_quotes | words) \
    <(body_text "$pdf" "$first" "$pages" | words)
  check "$pdf: running heads" diff <(numbered_lines "$pdf" 24 16 | tr -s ' ') \
    <(heads_due contents.tsv "$title" "$pages")
  check "$pdf: page numbers" diff <(numbered_lines "$pdf" 636 20) \
    <(seq 2 "$pages" | sed 's/.*/&\t&/')
  check "$pdf: no heading at the foot of a page" ends_no_page lines.tsv contents.tsv
  links "$pdf" >links.txt
  head -n "$headings" links.txt >contents-links.txt
  check "$pdf: links: each line of the contents leads to its page" diff \
    <(cut -d ' ' -f 2 contents-links.txt) <(cut -f 3 contents.tsv)
  check "$pdf: links: none has a visible border" same \
    "$(mutool show -g "$pdf" grep | grep '/Subtype/Link' | grep -cvF '/Border[0 0 1[0 1]]')" 0
}

# fails <what> <message> <bytes>: one line on standard error, and no PDF.
fails() {
  printf '%b' "$3" >bad.txt
  rm -f none.pdf
  check "$1" fails_with "$2" "$manual" bad.txt none.pdf
  check "$1: no PDF" test ! -e none.pdf
}

### The user guide

check "guide: runs without a warning" says "" "$manual" "$guide" guide.pdf
check "guide: at least 20 pages" test "$(page_count guide.pdf)" -ge 20
check "guide: title page" same "$(pdftotext -raw -l 1 guide.pdf - | tr -d '\f' | words | xargs)" \
  "$(sed '/^#/Q' "$guide" | words | xargs)"
check_book guide.pdf "$guide" Folivar
check "guide: three levels" same "$(cut -f 1 headings.tsv | sort -u | xargs)" "1 2 3"
check "guide: links: contents lead to the tops of headings" \
  lead_above_headings contents-links.txt guide.pdf
link_texts guide.pdf links.txt >link-texts.tsv
check "guide: links: every one leads to its heading's page" lead_to_headings link-texts.tsv \
  contents.tsv
check "guide: links: there are some in the text" test "$(wc -l <links.txt)" -gt \
  "$(wc -l <headings.tsv)"
check "guide: faces" same "$(pdffonts guide.pdf | awk 'NR > 2 { print $1 }' | sort | xargs)" \
  "Courier Helvetica Helvetica-Bold Times-Bold Times-Italic Times-Roman"
check "guide: a running head is in the file once" same \
  "$(grep -acxF '/Subtype /Form' guide.pdf)" \
  "$(numbered_lines guide.pdf 24 16 | cut -f 2 | sort -u | wc -l)"
rm -f again.pdf
check "guide: again: runs" "$manual" "$guide" again.pdf
check "guide: again: the same bytes" cmp guide.pdf again.pdf

### 500 pages

awk 'BEGIN {
  print "The long manual\n"
  for (c = 1; c <= 25; ++c) {
    print "# Chapter named " c "\n"
    for (s = 1; s <= 8; ++s) {
      print "## Section " c "-" s "\n"
      for (p = 1; p <= 15; ++p) {
        if (p % 5 == 0) print "### Detail " c "-" s "-" p "\n"
        if (p % 4 == 0) printf "- "
        for (w = 1; w <= 60; ++w) printf "%s%s", ++n, w % 12 == 0 ? "\n" : w % 7 == 0 ? " *x* " : " "
        print ""
        if (p % 6 == 0) print "```\nint a = " n ";\n\n  return a;\n```\n"
        if (p % 9 == 0) print "See [Section " 26 - c "-" s "].\n"
      }
    }
  }
}' >long.txt
check "500 pages: runs" says "" "$manual" long.txt long.pdf
check "500 pages: they are" test "$(page_count long.pdf)" -ge 500
check_book long.pdf long.txt "The long manual"

### With a font

use_fonts_of "$liberation"
printf '%s\n' 'Café' '' '# Crème (brûlée' '' 'Œufs — “très” *bien* **cuits** ***ici***.' >font.txt
notice='manual: there are characters beyond ASCII, which Times shows wrongly or not at all;'
notice+=' --font NAME embeds a TrueType font that has them'
check "no font: a notice" says "$notice" "$manual" font.txt standard.pdf
check "font: runs without a warning" \
  says "" "$manual" --font "Liberation Serif" font.txt font.pdf
check "font: sound" is_sound font.pdf
check "font: four styles are embedded" embeds font.pdf LiberationSerif LiberationSerif,Bold \
  LiberationSerif,BoldItalic LiberationSerif,Italic
check "font: the text" diff <(body_text font.pdf 3 3 | words) \
  <(parts font.txt | cut -d ' ' -f 2- | words)
check "font folder: runs" says "" "$manual" --font "Liberation Serif" --font-folder \
  "$liberation" font.txt again.pdf
check "font folder: the same bytes" cmp font.pdf again.pdf

### Other manuals

# write <text>: sets it.
write() {
  printf '%b' "$1" >text.txt
  rm -f text.pdf
  says "" "$manual" text.txt text.pdf && is_sound text.pdf
}

check "parentheses and backslashes in headings: set" write 'T\n\n# A) \\ (b\n\n## ((\n\ntext\n'
check "parentheses and backslashes in headings: in the outline" same "$(outline text.pdf)" \
  $'1\t1\tA) \\ (b\t3\n2\t1.1\t((\t3'
check "marks that are escaped: set" write "T\n\n# C\n\n\\\\*no\\\\* \\\\\`x \\\\[C\\\\] \`a*[b]\\\\\`\n"
check "marks that are escaped: shown" same "$(body_text text.pdf 3 3 | tail -n 1)" \
  "$(curl_quotes <<<"*no* \`x [C] a*[b]\\")"
check "styles across lines and within words: set" write 'T\n\n# C\n\nun*bel*ievable **two\nlines**\n'
check "styles across lines and within words: shown" same "$(body_text text.pdf 3 3 | tail -n 1)" \
  "unbelievable two lines"
check "carriage returns, byte order mark: set" write '\xEF\xBB\xBFT\r\n\r\n# C\r\n\r\nx\r\ny\r\n'
check "carriage returns, byte order mark: shown" same "$(body_text text.pdf 3 3 | xargs)" "1 C x y"
check "only a heading: set" write 'T\n\n# C\n'
check "only a heading: pages" same "$(page_count text.pdf)" 3
check "a hundred headings without text: set" \
  write "T\n\n# C\n$(printf '## S %d\\n' {1..100})"
# The title, 3 pages of contents, a page with the chapter and 12 sections, then 15 on each.
check "a hundred headings without text: fill their pages" same "$(page_count text.pdf)" 11
check "an empty code block: set" write "T\n\n# C\n\n\`\`\`\n\`\`\`\n"

word=$(printf 'x%.0s' {1..900})
check "words wider than a line: set" write "$word\n\n# $word\n\n$word\n\n\`\`\`\n$word\n\`\`\`\n"
keeps_to_page() {
  pdftotext -bbox "$1" - | awk '
    match($0, /xMax="[0-9.]+"/) {
      ++words
      right = substr($0, RSTART + 6, RLENGTH - 7) + 0
      if (right > 425.7) { print; bad = 1 }
    }
    END { exit bad || words < 5 }'
}
check "words wider than a line: keep to the page" keeps_to_page text.pdf
check "words wider than a line: all of them in text and code" same \
  "$(body_text text.pdf 3 99 | tail -n +3 | tr -dc x | wc -c)" 1800
lines=$(printf 'line %d\\n' {1..200})
check "code longer than a page: set" write "T\n\n# C\n\n\`\`\`\n$lines\`\`\`\n"
check "code longer than a page: every line" same \
  "$(body_text text.pdf 3 99 | grep -c '^line ')" 200

### What is refused

fails "empty file" "bad.txt: there is no title" ''
fails "no chapter" "bad.txt: there is no chapter" 'T\n'
fails "no title" "bad.txt: there is no title" '# C\n\ntext\n'
fails "section first" "bad.txt:3: a section stands outside of all chapters" 'T\n\n## S\n'
fails "subsection in a chapter" "bad.txt:5: a subsection stands outside of all sections" \
  'T\n\n# C\n\n### S\n'
fails "heading without a title" "bad.txt:3: a heading has no title" 'T\n\n#  \n'
fails "code that is never closed" "bad.txt:5: the code is never closed" 'T\n\n# C\n\n```\nx\n'
fails "code on the title page" "bad.txt:3: code stands before the first chapter" "T\n\n\`\`\`\nx\n\`\`\`\n"
fails "list on the title page" "bad.txt:3: a list stands before the first chapter" 'T\n\n- x\n'
fails "emphasis without an end" "bad.txt:6: a '*' is never closed" 'T\n\n# C\n\na\nb *c\nd\n'
fails "strong without an end" "bad.txt:5: a '**' is never closed" 'T\n\n# C\n\n**a\nb\n'
fails "code in a text without an end" "bad.txt:6: a '\`' is never closed" 'T\n\n# C\n\na\n- `b\n'
fails "link without an end" "bad.txt:5: a '[' is never closed" 'T\n\n# C\n\n[C\n'
fails "link to nowhere" "bad.txt:6: no heading is called 'D'" 'T\n\n# C\n\na\nb [D]\n'
fails "link to two headings" "bad.txt:7: more than one heading is called 'C'" \
  'T\n\n# C\n\n## C\n\n[C]\n'
fails "not UTF-8" "bad.txt:3: the text is not UTF-8" 'T\n\n# caf\xE9\n'
check "no file" fails_with "none.txt: cannot be opened: No such file or directory" \
  env LC_ALL=C "$manual" none.txt none.pdf
"$manual" "$guide" 2>usage.log
check "no output file: refused" same "exit code $?" "exit code 2"
check "no output file: the reason" same "$(head -n 1 usage.log)" \
  "manual: a manual and an output file are needed"

finish
