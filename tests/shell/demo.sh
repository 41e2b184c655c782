#!/bin/sh
# The demo runs to its end: exit status 0, no error, and each report it
# asks for printed its banner (a report that fails prints none).
set -u
kelvo=$1
examples=$2
out=$(cd "$examples" && "$kelvo" demo.tcl 2>&1)
status=$?
fail() { echo "demo: $1"; echo "$out" | tail -20; exit 1; }
[ $status -eq 0 ] || fail "exit status $status"
echo "$out" | grep -q "^Error" && fail "an error was printed"
for banner in "Report  : area" "Report : net" "Report : port" "Report : timing" \
  "Report : constraint" "Report: power"; do
  echo "$out" | grep -q "$banner" || fail "no '$banner'"
done
exit 0
