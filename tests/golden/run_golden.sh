#!/usr/bin/env bash
# Runs one golden case: the shell executes SCRIPT, and its standard output,
# with the text behind every "Date ... :" label masked (also "*Date ... :" of
# the reports whose banner lines begin with "*"), must equal EXPECTED.
# The shell's exit status is appended as a last line "exit: N" so that a case
# also proves whether the script ran to its end. Standard error may hold the
# script's own error messages, but a report of a sanitizer (a build with
# -DKELVO_SANITIZE=ON) fails the case whatever the output.
set -u
kelvo=$1 script=$2 expected=$3
mask() { sed -E 's/^(\*?Date *:).*$/\1 <date>/'; }
# The script is named relative to the data folder, so that the file names
# that messages quote are the same in every clone.
script=$(realpath --relative-to=. "$script")
errors=$(mktemp)
trap 'rm -f "$errors"' EXIT
actual=$("$kelvo" "$script" 2>"$errors"; echo "exit: $?")
status=0
if ! diff -u <(mask <"$expected") <(printf '%s\n' "$actual" | mask); then
  echo "golden mismatch: $script (expected ${expected})" >&2
  status=1
fi
if grep -qE 'ERROR: (Address|Leak|UndefinedBehavior|Memory|Thread)Sanitizer|SUMMARY: [A-Za-z]+Sanitizer|runtime error: ' "$errors"; then
  echo "sanitizer report: $script" >&2
  cat "$errors" >&2
  status=1
fi
exit $status
