#!/usr/bin/env bash
# The shell's ways of starting: -version, -help, -c, a script with
# arguments, commands on standard input, and a module that cannot be found.
set -u
kelvo=$(readlink -f "$1")
failures=0
check() {  # name expected actual
  if [ "$2" != "$3" ]; then
    echo "FAIL $1: expected [$2] got [$3]"
    failures=$((failures + 1))
  fi
}
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT

check version "kelvo 0.1.0" "$("$kelvo" -version)"
"$kelvo" -help | grep -q "^Usage: kelvo" || { echo "FAIL help"; failures=$((failures + 1)); }

check dash_c "3" "$("$kelvo" -c 'puts [expr {1 + 2}]')"
"$kelvo" -c 'error boom' >/dev/null 2>"$tmp/err"
check dash_c_error_status 1 $?
grep -q boom "$tmp/err" || { echo "FAIL dash_c_error_message"; failures=$((failures + 1)); }

"$kelvo" -c 'puts a
report_bus -zz' >/dev/null 2>"$tmp/err"
check dash_c_bad_option_status 1 $?
grep -q "report_bus: unknown option '-zz'" "$tmp/err" || { echo "FAIL dash_c_bad_option_message"; failures=$((failures + 1)); }
grep -q "command string line 2" "$tmp/err" || { echo "FAIL dash_c_error_line"; failures=$((failures + 1)); }
"$kelvo" -bogus >"$tmp/out" 2>"$tmp/err"
check unknown_shell_option_status 1 $?
grep -q -- "-bogus" "$tmp/err" || { echo "FAIL unknown_shell_option_message"; failures=$((failures + 1)); }

printf 'puts "args: $argc [lindex $argv 1]"\n' >"$tmp/s.tcl"
check script_args "args: 2 two" "$("$kelvo" "$tmp/s.tcl" one two)"
"$kelvo" "$tmp/missing.tcl" >/dev/null 2>&1
check missing_script_status 1 $?
printf 'puts one\nexit 3\nputs two\n' >"$tmp/x.tcl"
check script_exit_output "one" "$("$kelvo" "$tmp/x.tcl")"
"$kelvo" "$tmp/x.tcl" >/dev/null
check script_exit_status 3 $?

# Commands on standard input: no prompt, results not echoed, status of the last failure.
check stdin "hi" "$(printf 'puts hi\nset x 5\n' | "$kelvo")"
printf 'error oops\nputs after\n' | "$kelvo" >"$tmp/out" 2>/dev/null
check stdin_error_status 1 $?
check stdin_goes_on "after" "$(cat "$tmp/out")"
check stdin_multiline "6" "$(printf 'puts [expr {\n 1 + 5}]\n' | "$kelvo")"

# Nothing but the script's text on standard output.
check quiet "" "$("$kelvo" -c 'set x 1')"

KELVO_MODULE_PATH="$tmp/nowhere.so" "$kelvo" -c 'puts hi' >"$tmp/out" 2>"$tmp/err"
check missing_module_status 2 $?
check missing_module_stdout "" "$(cat "$tmp/out")"
grep -q "report module" "$tmp/err" || { echo "FAIL missing_module_message"; failures=$((failures + 1)); }

# redirect: file, append, tee, and the channel restored after a failure.
cd "$tmp"
"$kelvo" -c 'redirect out.txt {report_buffer_tree -from a -net b}; redirect -append out.txt {report_buffer_tree -from a -net b}' >"$tmp/screen"
check redirect_lines 2 "$(wc -l <out.txt)"
check redirect_quiet "" "$(cat "$tmp/screen")"
check redirect_tee 1 "$("$kelvo" -c 'redirect -tee t.txt {report_buffer_tree -from a -net b}' | wc -l)"
"$kelvo" -c 'catch {redirect r.txt {error inside}}; report_buffer_tree -from a -net b' >"$tmp/screen"
check redirect_restored 1 "$(wc -l <"$tmp/screen")"
"$kelvo" -c 'redirect /nonexistent/dir/r.txt {puts ran}' >"$tmp/screen" 2>/dev/null
check redirect_bad_target_status 1 $?
check redirect_bad_target_runs_nothing "" "$(cat "$tmp/screen")"

if [ "$failures" -ne 0 ]; then
  echo "$failures shell checks failed"
  exit 1
fi
echo "all shell checks passed"
