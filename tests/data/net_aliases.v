// Names merged by assign stay names of the surviving net, at the top and
// inside an instance.
module sub (i, o);
  input i;
  output o;
  wire mid;
  assign mid = i;
  BUFX2 g (.A(mid), .Y(o));
endmodule

module top (a, y);
  input a;
  output y;
  wire [1:0] bus;
  wire other;
  assign bus[0] = a;
  assign other = bus[0];
  sub u1 (.i(other), .o(y));
endmodule
