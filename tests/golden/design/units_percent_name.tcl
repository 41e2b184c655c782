# A "%s" in the design's name is part of the report text, printed as it
# stands: nothing reads an argument that was never passed.
read_liberty rpt_small.lib
read_verilog rpt_percent_name.v
link_design {pct%s}
report_units
