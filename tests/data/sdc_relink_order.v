// For the re-link order case of the constraint tests: `blk` is read only
// later, so that the first link leaves z1, a1 and m1 unresolved with
// ordered pins $0 and $1.
module relink_order (clk, a, b, c, y);
  input clk, a, b, c;
  output y;
  wire n1, n2, n3;
  blk z1 (a, n1);
  blk a1 (b, n2);
  blk m1 (c, n3);
  XOR2 x0 (.A(n1), .B(n2), .Z(y));
endmodule
