// Two cells of area 1e25 in a sub-design and one at the top.
module pair (a, y);
  input a;
  output y;
  wire m;
  HUGE h0 (.A(a), .Y(m));
  HUGE h1 (.A(m), .Y(y));
endmodule

module htop (a, y);
  input a;
  output y;
  wire m;
  pair p (.a(a), .y(m));
  HUGE h (.A(m), .Y(y));
endmodule
