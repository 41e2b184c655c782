// Numbers the net names of a module in the order the netlist builder meets
// them, so that the builder finds a name's symbol by its number and keeps
// no name table. The names' hashes may be worked out before, elsewhere:
// the parsing thread does it for instances' connections.
#pragma once

#include <cstdint>
#include <cstring>
#include <string_view>
#include <type_traits>

#include "db/NameIndex.h"
#include "io/TextBuffer.h"
#include "verilog/VerilogAst.h"

namespace verilog {

class NameNumbering {
 public:
  NameNumbering();

  // A new module: its names are numbered from 0.
  void BeginModule();
  // A declaration's names: found, or numbered when new.
  void Number(DeclAst& decl);
  // The names of an expression, in the builder's order: a plain name is
  // numbered when new (an implicit net); a selected one only found.
  void Number(Expr& expr);
  // The connections of an instance, and its name's hash.
  void Number(InstanceAst& instance);

  // Fetches into cache the slots of names numbered soon: a table of a
  // million names is far larger than the cache, and a miss waited for at
  // each name was a fifth of a large netlist's read.
  void Prefetch(const DeclAst& decl) const;
  void Prefetch(const ConnAst* conns, size_t count) const;

  // Works out the hashes of the connections' names ahead, where that is
  // cheaper (on the thread that parsed them, with their text in cache).
  static void Hash(InstanceAst& instance);
  // The hash a name is numbered under; never 0.
  static uint32_t HashOf(std::string_view name) {
    const uint32_t hash = cdm::NameIndex::Hash(name);
    return hash ? hash : 1;
  }

 private:
  // A name and its number. A name of up to 8 bytes is kept in the slot, so
  // that finding it costs one cache miss; a longer one is a view into the
  // source text, one miss more. A hash of 0 marks a free slot (HashOf
  // never gives it).
  static constexpr uint32_t kInlineBytes = 8;
  struct Slot {
    union {
      const char* text;          // length > kInlineBytes
      char bytes[kInlineBytes];  // length <= kInlineBytes
    };
    uint32_t length;
    uint32_t hash;
    uint32_t number;
    bool Free() const { return hash == 0; }
    bool Holds(std::string_view name) const {
      const char* held = length > kInlineBytes ? text : bytes;
      return length == name.size() && std::memcmp(held, name.data(), name.size()) == 0;
    }
  };
  static_assert(std::is_trivially_copyable_v<Slot>, "slots live in raw pages; all zeros is free");

  // The slot of `name`: its own, or the free one it would take.
  Slot& SlotOf(std::string_view name, uint32_t hash);
  static void Hash(Expr& expr);
  static uint32_t HashOf(const Expr& expr) {
    return expr.name_hash ? expr.name_hash : HashOf(expr.name);
  }
  uint32_t Find(std::string_view name, uint32_t hash);
  uint32_t FindOrAdd(std::string_view name, uint32_t hash);
  void Grow();

  // Pages of their own, zeroed by the system: a grown table goes back to
  // it whole when replaced, instead of staying in the heap as free memory.
  io::TextBuffer table_;
  Slot* slots_ = nullptr;
  size_t mask_ = 0;
  uint32_t count_ = 0;  // names numbered in the module
};

}  // namespace verilog
