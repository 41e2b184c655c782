// Three levels for the pattern tests of the collection commands: leaf3 is
// used at the top and twice inside mid3.
module leaf3 (a, y);
  input a;
  output y;
  INV u_inv (.A(a), .Z(y));
endmodule

module mid3 (a, y);
  input a;
  output y;
  wire n;
  leaf3 l1 (.a(a), .y(n));
  leaf3 l2 (.a(n), .y(y));
endmodule

module deep_top (a, y);
  input a;
  output y;
  wire n;
  mid3 m1 (.a(a), .y(n));
  leaf3 l1 (.a(n), .y(y));
endmodule
