module a (x);
  input x;
  b u (.x(x));
endmodule
module b (x);
  input x;
  a u (.x(x));
endmodule
