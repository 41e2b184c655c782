#!/usr/bin/env bash
# Runs one golden case: the shell executes SCRIPT, and its standard output,
# with the text behind every "Date ... :" label masked, must equal EXPECTED.
# The shell's exit status is appended as a last line "exit: N" so that a case
# also proves whether the script ran to its end.
set -u
kelvo=$1 script=$2 expected=$3
mask() { sed -E 's/^(Date *:).*$/\1 <date>/'; }
actual=$("$kelvo" "$script" 2>/dev/null; echo "exit: $?")
if diff -u <(mask <"$expected") <(printf '%s\n' "$actual" | mask); then
  exit 0
fi
echo "golden mismatch: $script (expected ${expected})" >&2
exit 1
