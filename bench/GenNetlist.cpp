// Writes synthetic gate-level netlists over sky130hd cells for the read
// and link benchmark. Shapes:
//   flat     one module of INSTANCES gates;
//   hier     a leaf block of 100 gates, a middle block of 10 leaves, a top
//            of as many middles as needed;
//   modules  INSTANCES/1000 distinct modules of 1000 gates, each used once;
//   reused   one module of 1000 gates used INSTANCES/1000 times;
//   bignet   one inverter driving a net of INSTANCES-1 inverters;
//   ports    a top with INSTANCES scalar input ports, each declared on a
//            line of its own and driving an inverter;
//   tiny     INSTANCES distinct modules of one inverter, each used once
//            (with modules: more modules at the same gate count);
//   tree     a binary hierarchy: each level two instances of the level
//            below, one inverter at the bottom, INSTANCES rounded up to a
//            power of two leaves (with flat: the cost of the hierarchy).
//
//   kelvo_gen_netlist flat|hier|modules|reused|bignet|ports|tiny|tree INSTANCES FILE [WIDTH]
//
// WIDTH (16 unless given) is the width of the in and out buses, so that a
// netlist can have thousands of ports.
#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

const char* const kNand = "sky130_fd_sc_hd__nand2_1";
const char* const kInv = "sky130_fd_sc_hd__inv_1";
const char* const kFlop = "sky130_fd_sc_hd__dfxtp_1";

// A block of `gates` gates between `in` and `out` buses of width `width`:
// every tenth gate a flop, the rest inverters and nand gates fed from the
// previous nets (a pseudo-random but fixed pattern).
void WriteGates(FILE* out, long gates, int width, const char* prefix) {
  for (long g = 0; g < gates; ++g) std::fprintf(out, "  wire n%ld;\n", g);
  unsigned state = 12345u;
  for (long g = 0; g < gates; ++g) {
    state = state * 1103515245u + 12345u;
    auto source = [&](unsigned salt) -> std::string {
      long back = 1 + static_cast<long>((state >> (salt % 16)) % 50);
      if (g - back < 0) return "in[" + std::to_string((g + salt) % width) + "]";
      return "n" + std::to_string(g - back);
    };
    if (g % 10 == 9)
      std::fprintf(out, "  %s %s%ld (.CLK(clk), .D(%s), .Q(n%ld));\n", kFlop, prefix, g,
                   source(3).c_str(), g);
    else if (g % 3 == 0)
      std::fprintf(out, "  %s %s%ld (.A(%s), .Y(n%ld));\n", kInv, prefix, g, source(5).c_str(), g);
    else
      std::fprintf(out, "  %s %s%ld (.A(%s), .B(%s), .Y(n%ld));\n", kNand, prefix, g,
                   source(7).c_str(), source(11).c_str(), g);
  }
  for (int i = 0; i < width; ++i)
    std::fprintf(out, "  assign out[%d] = n%ld;\n", i, gates - 1 - i % gates);
}

void WriteModuleHead(FILE* out, const char* name, int width) {
  std::fprintf(
      out, "module %s (clk, in, out);\n  input clk;\n  input [%d:0] in;\n  output [%d:0] out;\n",
      name, width - 1, width - 1);
}

// A top whose `count` blocks are chained bus to bus; `block(i)` names the
// module of block i.
template <typename BlockName>
void WriteChainTop(FILE* out, long count, int width, BlockName block) {
  WriteModuleHead(out, "top", width);
  for (long i = 0; i < count; ++i) {
    std::fprintf(out, "  wire [%d:0] t%ld;\n", width - 1, i);
    std::fprintf(out, "  %s b%ld (.clk(clk), .in(%s), .out(t%ld));\n", block(i).c_str(), i,
                 i ? ("t" + std::to_string(i - 1)).c_str() : "in", i);
  }
  std::fprintf(out, "  assign out = t%ld;\nendmodule\n", count - 1);
}

void WriteBigNet(FILE* out, long instances) {
  std::fprintf(out, "module top (a, y);\n  input a;\n  output y;\n  wire big;\n");
  std::fprintf(out, "  %s drv (.A(a), .Y(big));\n", kInv);
  for (long i = 1; i < instances; ++i) std::fprintf(out, "  wire y%ld;\n", i);
  for (long i = 1; i < instances; ++i)
    std::fprintf(out, "  %s u%ld (.A(big), .Y(y%ld));\n", kInv, i, i);
  std::fprintf(out, "  assign y = y1;\nendmodule\n");
}

void WritePorts(FILE* out, long count) {
  std::fprintf(out, "module top (");
  for (long i = 0; i < count; ++i) std::fprintf(out, "%sp%ld", i ? ", " : "", i);
  std::fprintf(out, ");\n");
  for (long i = 0; i < count; ++i) std::fprintf(out, "  input p%ld;\n", i);
  for (long i = 0; i < count; ++i)
    std::fprintf(out, "  wire n%ld;\n  %s g%ld (.A(p%ld), .Y(n%ld));\n", i, kInv, i, i, i);
  std::fprintf(out, "endmodule\n");
}

void WriteTinyModules(FILE* out, long count) {
  for (long m = 0; m < count; ++m)
    std::fprintf(
        out, "module m%ld (a, y);\n  input a;\n  output y;\n  %s g (.A(a), .Y(y));\nendmodule\n", m,
        kInv);
  std::fprintf(out, "module top (a, y);\n  input a;\n  output y;\n");
  for (long m = 0; m < count; ++m)
    std::fprintf(out, "  wire t%ld;\n  m%ld u%ld (.a(%s), .y(t%ld));\n", m, m, m,
                 m ? ("t" + std::to_string(m - 1)).c_str() : "a", m);
  std::fprintf(out, "  assign y = t%ld;\nendmodule\n", count - 1);
}

void WriteTree(FILE* out, long leaves) {
  int depth = 0;
  while ((1L << depth) < leaves) ++depth;
  for (int level = 0; level < depth; ++level) {
    const std::string name = level ? "m" + std::to_string(level) : "top";
    std::fprintf(out,
                 "module %s (a, y);\n  input a;\n  output y;\n  wire t;\n"
                 "  m%d u0 (.a(a), .y(t));\n  m%d u1 (.a(t), .y(y));\nendmodule\n",
                 name.c_str(), level + 1, level + 1);
  }
  std::fprintf(out,
               "module m%d (a, y);\n  input a;\n  output y;\n  %s g (.A(a), .Y(y));\nendmodule\n",
               depth, kInv);
}

}  // namespace

int main(int argc, char** argv) {
  const std::string shape = argc == 4 || argc == 5 ? argv[1] : "";
  if (shape != "flat" && shape != "hier" && shape != "modules" && shape != "reused" &&
      shape != "bignet" && shape != "ports" && shape != "tiny" && shape != "tree") {
    std::fprintf(
        stderr,
        "usage: %s flat|hier|modules|reused|bignet|ports|tiny|tree INSTANCES FILE [WIDTH]\n",
        argv[0]);
    return 2;
  }
  long instances = std::atol(argv[2]);
  if (instances < 1000) {
    std::fprintf(stderr, "INSTANCES must be at least 1000\n");
    return 2;
  }
  const int width = argc == 5 ? std::atoi(argv[4]) : 16;
  if (width < 1 || width > 100000) {
    std::fprintf(stderr, "WIDTH must be from 1 to 100000\n");
    return 2;
  }
  FILE* out = std::fopen(argv[3], "w");
  if (!out) {
    std::perror(argv[3]);
    return 1;
  }
  const long blocks = instances / 1000;
  std::fprintf(out, "// generated by kelvo_gen_netlist %s %ld\n", argv[1], instances);
  if (shape == "flat") {
    WriteModuleHead(out, "top", width);
    WriteGates(out, instances, width, "g");
    std::fprintf(out, "endmodule\n");
  } else if (shape == "hier") {
    WriteModuleHead(out, "leaf", width);
    WriteGates(out, 100, width, "g");
    std::fprintf(out, "endmodule\n");
    WriteModuleHead(out, "middle", width);
    for (int i = 0; i < 10; ++i) {
      std::fprintf(out, "  wire [%d:0] m%d;\n", width - 1, i);
      std::fprintf(out, "  leaf u%d (.clk(clk), .in(%s), .out(m%d));\n", i,
                   i ? ("m" + std::to_string(i - 1)).c_str() : "in", i);
    }
    std::fprintf(out, "  assign out = m9;\nendmodule\n");
    WriteChainTop(out, blocks, width, [](long) { return std::string("middle"); });
  } else if (shape == "modules") {
    for (long m = 0; m < blocks; ++m) {
      WriteModuleHead(out, ("block" + std::to_string(m)).c_str(), width);
      WriteGates(out, 1000, width, "g");
      std::fprintf(out, "endmodule\n");
    }
    WriteChainTop(out, blocks, width, [](long i) { return "block" + std::to_string(i); });
  } else if (shape == "reused") {
    WriteModuleHead(out, "block", width);
    WriteGates(out, 1000, width, "g");
    std::fprintf(out, "endmodule\n");
    WriteChainTop(out, blocks, width, [](long) { return std::string("block"); });
  } else if (shape == "ports") {
    WritePorts(out, instances);
  } else if (shape == "tiny") {
    WriteTinyModules(out, instances);
  } else if (shape == "tree") {
    WriteTree(out, instances);
  } else {
    WriteBigNet(out, instances);
  }
  std::fclose(out);
  return 0;
}
