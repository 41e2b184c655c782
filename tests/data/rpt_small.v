// Small design for the design report tests: `sub` is used at two levels
// (twice through `mid`), an operator module, a black box, tie cells, a
// tied and an unconnected input, a net with two drivers, an unresolved
// reference, and buses that run up, down, [10:9] and [9:10].
module sub (a, b, y);
  input a, b;
  output y;
  wire n1;
  NAND2X1 g1 (.A(a), .B(b), .Y(n1));
  INVX1 g2 (.A(n1), .Y(y));
endmodule

(* arithmetic_operator *)
module add_op (a, b, s);
  input a, b;
  output s;
  NAND2X1 x1 (.A(a), .B(b), .Y(s));
endmodule

(* black_box *)
module bbox (i, o);
  input i;
  output o;
endmodule

module mid (clk, d, q);
  input clk, d;
  output q;
  wire t;
  sub s0 (.a(d), .b(clk), .y(t));
  DFFX1 r0 (.D(t), .CK(clk), .Q(q));
endmodule

module top (clk, up, down, odd, en, io, q, z);
  input clk;
  input [0:3] up;
  input [3:0] down;
  input [10:9] odd;
  input en;
  inout [1:0] io;
  output [1:0] q;
  output z;
  wire [7:0] bus_w;
  wire [0:1] bus_u;
  wire [3:3] single;
  wire [9:10] rising;
  wire multi, hi, lo;
  mid m0 (.clk(clk), .d(up[0]), .q(q[0]));
  mid m1 (.clk(clk), .d(down[3]), .q(q[1]));
  sub s_top (.a(odd[10]), .b(odd[9]), .y(bus_w[0]));
  add_op op0 (.a(bus_w[0]), .b(up[1]), .s(bus_w[1]));
  bbox bb0 (.i(bus_w[1]), .o(bus_w[2]));
  TIEHI th (.Y(hi));
  TIELO tl (.Y(lo));
  NAND2X1 n_tied (.A(hi), .B(1'b0), .Y(bus_w[3]));
  INVX1 n_open (.Y(bus_w[4]));
  BUFX2 d1 (.A(bus_w[3]), .Y(multi));
  BUFX2 d2 (.A(bus_w[4]), .Y(multi));
  INVX1 ld (.A(multi), .Y(z));
  RAM8 ram (.CK(clk), .D(en), .Q(bus_u[0]));
  CKGATE cg (.CK(clk), .EN(en), .GCK(bus_u[1]));
  DFFX1 r_top (.D(bus_u[0]), .CK(bus_u[1]), .Q(single[3]));
  BUFX2 io_drv (.A(single[3]), .Y(io[0]));
  FOO_UNKNOWN u_unres (.A(lo));
endmodule
