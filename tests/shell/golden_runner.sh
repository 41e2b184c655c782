#!/usr/bin/env bash
# The golden runner itself: a case passes on equal output and a clean
# standard error, and fails on a sanitizer report even when the output is
# equal.
set -u
runner=$(dirname "$0")/../golden/run_golden.sh
failures=0
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
printf 'hello\nexit: 0\n' >"$tmp/case.ok"
: >"$tmp/case.tcl"
fake() {  # name, then what the fake shell writes on standard error
  printf '#!/bin/sh\necho hello\necho "%s" >&2\n' "$2" >"$tmp/$1"
  chmod +x "$tmp/$1"
}
fake clean "an error message of the script"
fake leak "==123==ERROR: LeakSanitizer: detected memory leaks"
fake ubsan "host/x.cpp:1:2: runtime error: signed integer overflow"
"$runner" "$tmp/clean" "$tmp/case.tcl" "$tmp/case.ok" 2>/dev/null ||
  { echo "FAIL clean case"; failures=$((failures + 1)); }
for name in leak ubsan; do
  if "$runner" "$tmp/$name" "$tmp/case.tcl" "$tmp/case.ok" 2>"$tmp/err"; then
    echo "FAIL $name passed"
    failures=$((failures + 1))
  fi
  grep -q "sanitizer report" "$tmp/err" || { echo "FAIL $name not named"; failures=$((failures + 1)); }
done
exit $((failures > 0))
