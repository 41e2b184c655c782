# Bad netlists, each refused with its file (and line), with the libraries
# and the linked design as they were; then a link that cannot be made.
source bad/refused.tcl
read_liberty nangate45_typ.lib.gz
read_verilog example1.v
link_design top
refused {read_verilog bad/no_such.v}
refused {read_verilog bad}
refused {read_verilog bad/empty.v}
refused {read_verilog bad/binary.v}
refused {read_verilog bad/v_nul.v}
refused {read_verilog bad/v_gz_no_trailer.v.gz}
refused {read_verilog bad/v_gz_truncated_partial.v.gz}
refused {read_verilog bad/dup_module.v}
refused {read_verilog bad/dup_port.v}
refused {read_verilog bad/v_neg_range.v}
refused {read_verilog bad/v_huge_range.v}
refused {read_verilog bad/v_nested_repl.v}
refused {read_verilog /dev/zero}
# None of their modules came in, not even the whole ones before the cut.
refused {link_design sub}
refused {link_design m}
puts [read_verilog bad/cycle.v]
refused {link_design a}
refused {link_design b}
refused {link_design no_such_top}
refused {current_design no_such_top}
puts [current_design]
