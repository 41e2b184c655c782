// A module marked as a black box that holds cells of its own (NAND2X1 2.5
// and INVX1 1), instantiated twice, beside one plain inverter.
(* black_box *)
module hard (i, o);
  input i;
  output o;
  wire n;
  NAND2X1 g (.A(i), .B(i), .Y(n));
  INVX1 v (.A(n), .Y(o));
endmodule

module bbtop (a, y1, y2);
  input a;
  output y1, y2;
  wire m;
  hard h0 (.i(a), .o(m));
  hard h1 (.i(m), .o(y1));
  INVX1 i0 (.A(m), .Y(y2));
endmodule
