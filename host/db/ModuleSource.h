// The instances of a module as the netlist writes them: what link turns
// into pins and connections. Flat arrays keep it small.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace cdm {

// One bit of a connection: a net index of the netlist, or a constant.
enum : int32_t { kBitConst0 = -1, kBitConst1 = -2, kBitOpen = -3 };

struct ConnSource {
  const std::string* port = nullptr;  // null: connection by position
  uint32_t position = 0;
  uint32_t first_bit = 0;
  uint32_t bit_count = 0;  // 0 for an empty connection ".A()"
};

struct InstanceSource {
  uint32_t first_conn = 0;
  uint32_t conn_count = 0;
  uint32_t line = 0;
};

struct ModuleSource {
  std::string file;
  uint32_t line = 0;
  std::vector<InstanceSource> instances;  // parallel to the netlist's cells
  std::vector<ConnSource> conns;
  std::vector<int32_t> bits;       // MSB first within a connection
  std::vector<int32_t> port_nets;  // per port bit: net index, or kBitOpen
};

}  // namespace cdm
