#!/usr/bin/env bash
# Runs one golden case: the shell executes SCRIPT, and its standard output,
# with the text behind every "Date ... :" label masked, must equal EXPECTED.
# The shell's exit status is appended as a last line "exit: N" so that a case
# also proves whether the script ran to its end.
set -u
kelvo=$1 script=$2 expected=$3
mask() { sed -E 's/^(Date *:).*$/\1 <date>/'; }
# The script is named relative to the data folder, so that the file names
# that messages quote are the same in every clone.
script=$(realpath --relative-to=. "$script")
actual=$("$kelvo" "$script" 2>/dev/null; echo "exit: $?")
if diff -u <(mask <"$expected") <(printf '%s\n' "$actual" | mask); then
  exit 0
fi
echo "golden mismatch: $script (expected ${expected})" >&2
exit 1
