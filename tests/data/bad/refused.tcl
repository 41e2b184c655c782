# Helpers of the bad-input cases: `refused SCRIPT` runs a script that must
# fail, prints its message, and says so when the script passed or when the
# database is not what it was before.

# What a script sees of the database: the libraries, the current design,
# its cells and its area report (date left out).
proc snapshot {} {
  set design [current_design]
  if {$design eq ""} { return [list [get_libs]] }
  redirect -variable area { report_area -hierarchy }
  regsub -line -all {^Date.*$} $area {} area
  return [list [get_libs] $design [get_cells -hierarchical *] $area]
}

proc refused {script} {
  set before [snapshot]
  if {![catch {uplevel 1 $script} message]} {
    puts "NOT REFUSED: $script"
    return
  }
  puts $message
  if {[snapshot] ne $before} { puts "DATABASE CHANGED BY: $script" }
}
