# a combinational cell, a flop and a name the library lacks
read_liberty nangate45_typ.lib.gz
report_lib NangateOpenCellLibrary -timing {INV_X1 DFFR_X1 NO_SUCH_CELL}
