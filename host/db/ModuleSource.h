// The instances of a module as the netlist writes them: what link turns
// into pins and connections, kept so that link can run again. A compact
// byte stream (variable-length integers) keeps it a few bytes a connection.
#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include "db/PodArray.h"

namespace cdm {

// One bit of a connection: a net index of the netlist, or a constant.
enum : int32_t { kBitConst0 = -1, kBitConst1 = -2, kBitOpen = -3 };

// One connection of an instance, as read back.
struct ConnSource {
  const std::string* port = nullptr;  // null: connection by position
  uint32_t position = 0;              // place in the instance's list
  std::vector<int32_t> bits;          // most significant first; empty for ".A()"
};

class ModuleSource {
 public:
  std::string file;
  uint32_t line = 0;
  std::vector<int32_t> port_nets;  // per port bit: net index, or kBitOpen

  // Writing, in instance order: an instance, then its connections.
  void BeginInstance(uint32_t line, uint32_t connection_count);
  void AddConnection(const std::string* port, const int32_t* bits, uint32_t bit_count);
  // Net bits were written as the reader's bit numbers: `map` gives the net
  // of each (connections and port bits are read back through it).
  void SetBitMap(PodArray<int32_t> map);
  bool UsesConstant(int32_t constant) const { return uses_[-constant - 1]; }

  uint32_t InstanceCount() const { return instances_; }
  size_t Bytes() const {
    return stream_.size() + (port_nets.size() + bit_map_.size()) * sizeof(int32_t);
  }

  // Reading, in instance order.
  class Cursor {
   public:
    explicit Cursor(const ModuleSource& source) : source_(source) {}
    // The next instance: its line and number of connections.
    bool NextInstance(uint32_t& line, uint32_t& connection_count);
    void NextConnection(ConnSource& conn, uint32_t position);

   private:
    uint64_t Read();
    const ModuleSource& source_;
    size_t at_ = 0;
    uint32_t line_ = 0;
    uint32_t instance_ = 0;
  };

 private:
  void Write(uint64_t value);
  uint32_t PortId(const std::string* port);

  PodArray<uint8_t> stream_;
  std::vector<const std::string*> ports_;  // connection port names by id
  std::unordered_map<const std::string*, uint32_t> port_ids_;
  PodArray<int32_t> bit_map_;
  bool uses_[3] = {false, false, false};  // constant 0, constant 1, open
  uint32_t instances_ = 0;
  uint32_t last_line_ = 0;
};

}  // namespace cdm
