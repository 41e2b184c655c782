#!/usr/bin/env bash
# Times gcd in kelvo and in the sta of Debian's opensta package (lumped
# capacitance, the library's default wire load) and compares, endpoint by
# endpoint, the arrival, required time and slack of setup and hold, then
# the worst slacks and the total negative slack: on sky130hd and Nangate45
# with gcd's own constraints, and on sky130hd again with parasitics from a
# SPEF file when one is given (or found beside the shared design files).
# Prints each case's largest difference and every endpoint that differs by
# more than one unit of the fourth digit.
#   scripts/timer_peer_check.sh BUILD_DIR [SPEF]
set -e
build=${1:?usage: timer_peer_check.sh BUILD_DIR [SPEF]}
here=$(cd "$(dirname "$0")" && pwd)
data=$here/../tests/data
spef=${2:-/work/shared/data/design/gcd_sky130hd.spef}
work=${TMPDIR:-/tmp}/kelvo_timer_peer
mkdir -p "$work"
command -v sta >/dev/null || { echo "no sta on the path (Debian package opensta)" >&2; exit 1; }

# One case: LIB (gzipped, in tests/data), the design's name stem, its
# constraints, the wire load model, and a SPEF file or nothing.
check() {
  lib=$1 stem=$2 sdc=$3 model=$4 parasitics=$5
  plain=$work/${lib%.gz}
  [ -f "$plain" ] || gunzip -c "$data/$lib" >"$plain"
  read_spef=""
  [ -n "$parasitics" ] && read_spef="read_spef $parasitics"
  cat >"$work/kelvo.tcl" <<TCL
read_liberty $data/$lib
read_verilog $data/$stem.v
link_design gcd
read_sdc $sdc
$read_spef
report_timing -path_type end -max_paths 100000 -significant_digits 4
report_timing -path_type end -max_paths 100000 -significant_digits 4 -delay_type min
TCL
  cat >"$work/sta.tcl" <<TCL
read_liberty $plain
read_verilog $data/$stem.v
link_design gcd
read_sdc $sdc
set_wire_load_model -name $model
set_delay_calculator lumped_cap
$read_spef
report_checks -path_delay max -format end -group_count 100000 -endpoint_count 1 -digits 4
report_checks -path_delay min -format end -group_count 100000 -endpoint_count 1 -digits 4
exit
TCL
  # Endpoint lines as "max|min NAME ARRIVAL REQUIRED SLACK".
  "$build/kelvo" "$work/kelvo.tcl" 2>/dev/null | awk '
    /-delay_type max/ { mode = "max" } /-delay_type min/ { mode = "min" }
    mode && NF == 4 && $2 ~ /^-?[0-9]+\.[0-9]+$/ { print mode, $1, $2, $3, $4 }' |
    sort >"$work/kelvo.ends"
  sta -no_init -no_splash "$work/sta.tcl" 2>/dev/null | awk '
    /max_delay\/setup/ { mode = "max" } /min_delay\/hold/ { mode = "min" }
    mode && /\((MET|VIOLATED)\)/ { print mode, $1, $4, $3, $5 }' |
    sort >"$work/sta.ends"
  echo "== gcd on $lib, $(basename "$sdc")${parasitics:+, $(basename "$parasitics")}"
  join -j 1 <(awk '{ print $1 ":" $2, $3, $4, $5 }' "$work/kelvo.ends") \
    <(awk '{ print $1 ":" $2, $3, $4, $5 }' "$work/sta.ends") 2>/dev/null |
    awk -v kelvo_count="$(wc -l <"$work/kelvo.ends")" -v sta_count="$(wc -l <"$work/sta.ends")" '
    function abs(x) { return x < 0 ? -x : x }
    {
      n++; split($1, key, ":"); mode = key[1]
      d = abs($2 - $5); if (abs($3 - $6) > d) d = abs($3 - $6); if (abs($4 - $7) > d) d = abs($4 - $7)
      if (d > worst) worst = d
      if (d > 0.00015) printf "  differs: %s %s kelvo %s %s %s, sta %s %s %s\n", mode, key[2], $2, $3, $4, $5, $6, $7
      if (!(mode in ks) || $4 < ks[mode]) ks[mode] = $4
      if (!(mode in ss) || $7 < ss[mode]) ss[mode] = $7
      if ($4 < 0) kt[mode] += $4; if ($7 < 0) st[mode] += $7
    }
    END {
      printf "  checks (setup and hold): kelvo %d, sta %d, both %d; largest difference %.4f\n", kelvo_count, sta_count, n, worst
      for (m in ks) printf "  %s: worst slack kelvo %.4f sta %.4f, total negative kelvo %.4f sta %.4f\n", m, ks[m], ss[m], kt[m], st[m]
    }'
}

# gcd's clock of 5 ns at 3 ns, so that setup fails and the totals count.
sed 's/^set period 5$/set period 3/' "$data/gcd_sky130hd.sdc" >"$work/gcd_sky130hd_3ns.sdc"

check sky130hd_tt.lib.gz gcd_sky130hd "$data/gcd_sky130hd.sdc" Small ""
check sky130hd_tt.lib.gz gcd_sky130hd "$work/gcd_sky130hd_3ns.sdc" Small ""
check nangate45_typ.lib.gz gcd_nangate45 "$data/gcd_nangate45.sdc" 5K_hvratio_1_1 ""
if [ -f "$spef" ]; then
  check sky130hd_tt.lib.gz gcd_sky130hd "$data/gcd_sky130hd.sdc" Small "$spef"
  check sky130hd_tt.lib.gz gcd_sky130hd "$work/gcd_sky130hd_3ns.sdc" Small "$spef"
else
  echo "== no SPEF file at $spef: the case with parasitics is left out"
fi
