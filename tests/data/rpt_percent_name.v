// A design whose escaped name holds a printf conversion: reports must print
// it as it stands.
module \pct%s (a, y);
  input a;
  output y;
  INVX1 u1 (.A(a), .Y(y));
endmodule
