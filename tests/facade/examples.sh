# shellcheck shell=bash
# Sourced by the tests that run an example in several forms.

# example_arguments <name>: what it is run with, into `arguments`. What it writes goes into the
# folder where it runs.
# shellcheck disable=SC2034
example_arguments() {
  local root data
  root=$(realpath "$(dirname "${BASH_SOURCE[0]}")/../..")
  data=$root/examples/data
  case $1 in
    hello) arguments=(hello.pdf) ;;
    statement) arguments=("$data/statement.csv" statement.pdf) ;;
    catalogue) arguments=("$data/catalogue" "$data/catalogue.csv" catalogue.pdf) ;;
    letter) arguments=("$data/letter.txt" "$data/recipients.csv" letters) ;;
    manual) arguments=("$root/docs/guide.txt" manual.pdf) ;;
    specimen) arguments=(specimen.pdf) ;;
    report) arguments=("$data/catalogue/lighthouse.jpg" report.pdf) ;;
  esac
}

# make_folders_of <folder>: those below it, here too.
make_folders_of() {
  find "$1" -mindepth 1 -type d -printf '%P\n' | xargs -r mkdir -p
}
