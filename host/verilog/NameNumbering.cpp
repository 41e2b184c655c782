#include "verilog/NameNumbering.h"

#include <cstring>

namespace verilog {

namespace {

// Calls `visit` on each name of `expr` (a plain, bit or part select), left
// to right: the builder's order. As deep as the parser lets concatenations
// nest.
template <typename E, typename Visit>
void ForEachName(E& expr, const Visit& visit) {
  if (expr.kind == Expr::kConcat) {
    for (E& item : expr.items) ForEachName(item, visit);
  } else if (expr.kind == Expr::kName || expr.kind == Expr::kBitSelect ||
             expr.kind == Expr::kPartSelect) {
    visit(expr);
  }
}

}  // namespace

NameNumbering::NameNumbering() {
  BeginModule();
}

void NameNumbering::BeginModule() {
  constexpr size_t kFirstSlots = 1024;
  // A large table of the module before goes back to the system.
  if (mask_ + 1 > kFirstSlots) table_.clear();
  table_.resize(kFirstSlots * sizeof(Slot));
  std::memset(table_.data(), 0, kFirstSlots * sizeof(Slot));  // a free slot is all zeros
  slots_ = reinterpret_cast<Slot*>(table_.data());
  mask_ = kFirstSlots - 1;
  count_ = 0;
}

NameNumbering::Slot& NameNumbering::SlotOf(std::string_view name, uint32_t hash) {
  for (size_t i = hash & mask_;; i = (i + 1) & mask_) {
    Slot& slot = slots_[i];
    if (slot.Free() || (slot.hash == hash && slot.Holds(name))) return slot;
  }
}

uint32_t NameNumbering::Find(std::string_view name, uint32_t hash) {
  const Slot& slot = SlotOf(name, hash);
  return slot.Free() ? kNoSymbol : slot.number;
}

uint32_t NameNumbering::FindOrAdd(std::string_view name, uint32_t hash) {
  Slot* slot = &SlotOf(name, hash);
  if (!slot->Free()) return slot->number;
  // Grown past three quarters full: linear probing stays short, and a
  // table of a million names takes half the memory that a table kept half
  // empty would (fresh pages are costly, and so is each rehash).
  if ((size_t{count_} + 1) * 4 > (mask_ + 1) * 3) {
    Grow();
    slot = &SlotOf(name, hash);
  }
  if (name.size() > kInlineBytes)
    slot->text = name.data();
  else if (!name.empty())
    std::memcpy(slot->bytes, name.data(), name.size());
  slot->length = static_cast<uint32_t>(name.size());
  slot->hash = hash;
  slot->number = count_;
  return count_++;
}

void NameNumbering::Grow() {
  const size_t old_count = mask_ + 1;
  io::TextBuffer grown;
  // Fresh pages are zero already; only reused ones would need clearing.
  grown.resize(old_count * 2 * sizeof(Slot));
  Slot* const old = slots_;
  slots_ = reinterpret_cast<Slot*>(grown.data());
  mask_ = old_count * 2 - 1;
  for (size_t k = 0; k < old_count; ++k) {
    const Slot& slot = old[k];
    if (slot.Free()) continue;
    size_t i = slot.hash & mask_;
    while (!slots_[i].Free()) i = (i + 1) & mask_;
    slots_[i] = slot;
  }
  table_ = std::move(grown);
}

void NameNumbering::Prefetch(const DeclAst& decl) const {
  for (std::string_view name : decl.names) __builtin_prefetch(&slots_[HashOf(name) & mask_]);
}

void NameNumbering::Prefetch(const ConnAst* conns, size_t count) const {
  for (size_t i = 0; i < count; ++i) {
    if (conns[i].empty) continue;
    ForEachName(conns[i].expr,
                [this](const Expr& name) { __builtin_prefetch(&slots_[HashOf(name) & mask_]); });
  }
}

void NameNumbering::Number(DeclAst& decl) {
  decl.symbols.resize(decl.names.size());
  for (size_t i = 0; i < decl.names.size(); ++i)
    decl.symbols[i] = FindOrAdd(decl.names[i], HashOf(decl.names[i]));
}

void NameNumbering::Number(Expr& expr) {
  ForEachName(expr, [this](Expr& name) {
    name.symbol = name.kind == Expr::kName ? FindOrAdd(name.name, HashOf(name))
                                           : Find(name.name, HashOf(name));
  });
}

void NameNumbering::Number(InstanceAst& instance) {
  instance.name_hash = cdm::NameIndex::Hash(instance.name);
  for (ConnAst& conn : instance.conns)
    if (!conn.empty) Number(conn.expr);
}

void NameNumbering::Hash(Expr& expr) {
  ForEachName(expr, [](Expr& name) { name.name_hash = HashOf(name.name); });
}

void NameNumbering::Hash(InstanceAst& instance) {
  for (ConnAst& conn : instance.conns)
    if (!conn.empty) Hash(conn.expr);
}

}  // namespace verilog
