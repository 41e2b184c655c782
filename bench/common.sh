# Shared by the bench/run_*.sh scripts (sourced): where generated netlists
# are kept, the library they are read with, and how a netlist is made once.
#   bench_netlist KIND INSTANCES [WIDTH]   prints the path of the netlist,
#                                          generating it on first use
#   bench_plain_library                    prints the path of the library as
#                                          plain text (for tools that do
#                                          not read gzip), unpacking it once
bench_here=$(cd "$(dirname "$0")" && pwd)
bench_work=${TMPDIR:-/tmp}/kelvo_bench_netlists
bench_lib=$bench_here/../tests/data/sky130hd_tt.lib.gz
mkdir -p "$bench_work"

bench_netlist() {
  local kind=$1 n=$2 width=${3:-}
  local file="$bench_work/${kind}_$n${width:+_w$width}.v"
  # The generator's build directory is the caller's $build.
  [ -f "$file" ] || "$build/kelvo_gen_netlist" "$kind" "$n" "$file" $width >&2
  echo "$file"
}

bench_plain_library() {
  local plain=$bench_work/sky130hd_tt.lib
  [ -f "$plain" ] || gunzip -c "$bench_lib" >"$plain"
  echo "$plain"
}
