module m (a);
  input a;
endmodule
\nâ‚
