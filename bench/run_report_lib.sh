#!/bin/sh
# Times report_lib LIB -all (and the default form) on a library; the report
# text goes to a file so that only the figures reach the terminal.
#   bench/run_report_lib.sh BUILD_DIR [LIBERTY_FILE LIBRARY_NAME]
set -e
build=${1:?usage: run_report_lib.sh BUILD_DIR [LIBERTY_FILE LIBRARY_NAME]}
here=$(cd "$(dirname "$0")" && pwd)
file=${2:-$here/../tests/data/sky130hd_tt.lib.gz}
lib=${3:-sky130_fd_sc_hd__tt_025C_1v80}
out=${TMPDIR:-/tmp}/kelvo_bench_report_lib.txt
script=${TMPDIR:-/tmp}/kelvo_bench_report_lib.tcl
cat >"$script" <<TCL
set read_us [lindex [time {read_liberty $file}] 0]
puts [format "read_liberty      %8.3f s" [expr {\$read_us / 1e6}]]
foreach form {{} -timing -power -all} {
  set us [lindex [time {redirect $out {report_lib $lib {*}\$form}}] 0]
  puts [format "report_lib %-7s %8.3f s  %10d bytes" \$form [expr {\$us / 1e6}] [file size $out]]
}
TCL
"$build/kelvo" "$script"
