// For the re-link case of the constraint tests: `sub` is read only later,
// so that the first link leaves u1 unresolved with ordered pins $0 and $1.
module relink_top (clk, a, y);
  input clk, a;
  output y;
  wire n1;
  BUF u0 (.A(a), .Z(n1));
  sub u1 (n1, y);
endmodule
