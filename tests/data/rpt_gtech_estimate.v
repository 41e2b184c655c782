// Generic gates whose areas are estimated from the default library: an
// inverter, a NAND with its inputs in either order, and an OR that the
// library cannot build.
module gest (a, b, y1, y2, y3, y4);
  input a, b;
  output y1, y2, y3, y4;
  INV u1 (.A(a), .Z(y1));
  NAND2 u2 (.A(a), .B(b), .Z(y2));
  NAND2 u3 (.A(b), .B(a), .Z(y3));
  OR2 u4 (.A(a), .B(b), .Z(y4));
endmodule
