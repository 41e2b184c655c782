#!/usr/bin/env bash
# A read that runs out of memory (under `ulimit -v`) ends in a message that
# names the command and the file, the script goes on, and the libraries and
# designs read before are still there. The sanitizers reserve more address
# space than such a limit leaves, so a sanitizer build skips this check.
set -u
kelvo=$(readlink -f "$1")
data=$(readlink -f "$(dirname "$0")/../data")
if [ "${2:-0}" = 1 ]; then
  echo "skipped: a sanitizer build cannot run under ulimit -v"
  exit 77
fi
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
# 600 MB of blanks in 60 gzip members of 10 MB: 600 kB on disk.
head -c 10000000 /dev/zero | tr '\0' ' ' | gzip >"$tmp/member.gz"
for _ in $(seq 60); do cat "$tmp/member.gz"; done >"$tmp/bomb.v.gz"
cd "$data" || exit 1
actual=$(
  ulimit -v 400000
  "$kelvo" -c "
    puts [read_liberty nangate45_typ.lib.gz]
    puts [read_verilog example1.v]
    catch {read_liberty $tmp/bomb.v.gz} m; puts \$m
    catch {read_verilog $tmp/bomb.v.gz} m; puts \$m
    puts [get_libs]
    puts [link_design top]" 2>&1
  echo "exit: $?"
)
expected="NangateOpenCellLibrary
top
Error: read_liberty: out of memory while reading '$tmp/bomb.v.gz'; no library was added
Error: read_verilog: out of memory while reading '$tmp/bomb.v.gz'; no module was added
NangateOpenCellLibrary
top
exit: 0"
if [ "$actual" != "$expected" ]; then
  diff <(echo "$expected") <(echo "$actual")
  exit 1
fi
