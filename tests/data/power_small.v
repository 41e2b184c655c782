// Design of the power golden cases over power_small.lib: a hierarchical
// core of an inverter and an AND gate, buffers in front, a flop, a macro
// and a pad cell.
module pw_core (na, nb, n1, y);
  input na, nb;
  output n1, y;
  INV u1 (.A(na), .Y(n1));
  AND2 u2 (.A(na), .B(nb), .Y(y));
endmodule

module pw (a, b, clk, y, q);
  input a, b, clk;
  output y, q;
  wire na, nb, n1;
  BUF b0 (.A(a), .Y(na));
  BUFV b1 (.A(b), .Y(nb));
  pw_core c (.na(na), .nb(nb), .n1(n1), .y(y));
  DFF f1 (.D(n1), .CK(clk), .Q(q));
  MEM m1 ();
  PADC p1 (.A(n1));
endmodule
