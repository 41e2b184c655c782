// Generic cells left from before mapping (a constant among them), cell
// names that end at and just before column 60, and sub-designs whose names
// sort upper case first.
module alpha (a, y);
  input a;
  output y;
  AND2 g0 (.A(a), .B(a), .Z(y));
endmodule

module Zeta (a, y);
  input a;
  output y;
  INVX1 i0 (.A(a), .Y(y));
endmodule

module gtop (a, b, clk, y, q, w0, w1);
  input a, b, clk;
  output y, q, w0, w1;
  wire n0, n1, one;
  LOGIC1 c1 (.Z(one));
  AND2 g1 (.A(a), .B(one), .Z(n0));
  DFF r1 (.D(n0), .CK(clk), .Q(q));
  alpha u_a (.a(n0), .y(n1));
  Zeta u_z (.a(n1), .y(y));
  BUFFER_WITH_A_NAME_THAT_REACHES_THE_LIBRARY_COLUMN_AT_X1 l0 (.A(b), .Y(w0));
  BUFFER_WITH_A_NAME_ONE_SHORT_OF_THE_LIBRARY_COLUMN_X1X l1 (.A(b), .Y(w1));
endmodule
