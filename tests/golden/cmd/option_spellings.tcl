# Different spellings of one call reach a report as the same options: a
# unique prefix, a Tcl list or bare words for a list, the order of options.
read_liberty nangate45_typ.lib.gz
read_verilog gcd_nangate45.v
link_design gcd
set cells [lrange [lsort [get_cells *]] 0 2]
# The date in a header may tick between two runs.
proc same {a b} {
  regsub -all -line {^Date.*$} $a {} a
  regsub -all -line {^Date.*$} $b {} b
  string equal $a $b
}

redirect -variable by_list {set s1 [report_cell -connections $cells]}
redirect -variable by_words {set s2 [report_cell -connections {*}$cells]}
redirect -variable by_prefix {set s3 [report_cell {*}$cells -conn]}
redirect -variable plain {report_cell {*}$cells}
puts "statuses: $s1 $s2 $s3"
puts "report has the cells: [expr {[string first [lindex $cells 2] $by_list] >= 0}]"
puts "list = words: [same $by_list $by_words]"
puts "full name = prefix, options after the list: [same $by_list $by_prefix]"
puts "the option has an effect: [expr {![same $by_list $plain]}]"

redirect -variable full {report_area -hierarchy}
redirect -variable short {report_area -hier}
redirect -variable none {report_area}
puts "area prefix: [same $full $short] effect: [expr {![same $full $none]}]"
