# Bad Liberty files, each refused with its file (and line), with the
# libraries and the linked design as they were.
source bad/refused.tcl
read_liberty nangate45_typ.lib.gz
read_verilog example1.v
link_design top
refused {read_liberty bad/no_such.lib}
refused {read_liberty bad}
refused {read_liberty bad/empty.lib}
refused {read_liberty bad/binary.lib}
refused {read_liberty bad/dup_cell.lib}
refused {read_liberty bad/dup_pin.lib}
refused {read_liberty bad/l_bustype_huge.lib}
refused {read_liberty bad/l_bustype_ovf.lib}
refused {read_liberty bad/l_fanout_len.lib}
refused {read_liberty bad/l_ffbank.lib}
refused {read_liberty bad/min_crash_typegroup.lib}
refused {read_liberty /dev/zero}
puts [get_libs]
