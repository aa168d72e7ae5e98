# shellcheck shell=bash
# Sourced by the tests of the examples: checks that are counted, and what they look with.

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

# shows <text> <line>: the text has this line.
shows() { grep -qxF -e "$2" "$1" || { echo "no line: $2" && false; }; }

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

# The folder of Debian's package fonts-liberation.
# shellcheck disable=SC2034
liberation=/usr/share/fonts/truetype/liberation

# use_fonts_of <folder>: the programs run from here on find this folder's fonts installed, and no
# others, whatever the machine has.
use_fonts_of() {
  cat >fonts.conf <<EOF
<?xml version="1.0"?>
<!DOCTYPE fontconfig SYSTEM "fonts.dtd">
<fontconfig><dir>$1</dir><cachedir>$PWD/fonts.cache</cachedir></fontconfig>
EOF
  export FONTCONFIG_FILE=$PWD/fonts.conf
}

# embeds <pdf> <font>...: these fonts and no others are embedded.
embeds() {
  local pdf=$1
  shift
  same "$(pdffonts "$pdf" | awk 'NR > 2 && $(NF - 4) == "yes" { print $1 }' | LC_ALL=C sort)" \
    "$(printf '%s\n' "$@")"
}

# says <line> <command>...: the command succeeds with exactly this line on standard error, or with
# nothing there for an empty line.
says() {
  local expected=$1
  shift
  "$@" 2>stderr.log && same "$(cat stderr.log)" "$expected"
}

# finish: the test's exit code.
finish() {
  if ((failures > 0)); then
    echo "$failures failed"
    exit 1
  fi
}
