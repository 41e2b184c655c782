#include "verilog/NetlistBuilder.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

#include "cmdlib/ReadFiles.h"
#include "db/Netlist.h"
#include "db/NetlistEditor.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/Root.h"
#include "verilog/VerilogParser.h"

namespace verilog {
namespace {

// Attribute names that mean something to the database.
cdm::AttrId KnownAttribute(std::string_view name) {
  if (name == "dont_touch") return cdm::AttrId::kDontTouch;
  if (name == "size_only") return cdm::AttrId::kSizeOnly;
  if (name == "keep") return cdm::AttrId::kKeep;
  if (name == "arithmetic_operator" || name == "operator" || name == "synthetic_operator")
    return cdm::AttrId::kArithmeticOperator;
  if (name == "black_box" || name == "blackbox") return cdm::AttrId::kBlackBox;
  return cdm::AttrId::kUser;
}

cdm::Attribute MakeAttribute(const AttrAst& attr) {
  cdm::Attribute record;
  record.id = KnownAttribute(attr.name);
  record.name = std::string(attr.name);
  record.text = attr.value;
  if (attr.is_number) {
    record.kind = cdm::AttrKind::kInt;
    record.int_value = std::strtoll(attr.value.c_str(), nullptr, 10);
  } else {
    record.kind = attr.value.empty() ? cdm::AttrKind::kBool : cdm::AttrKind::kString;
    record.int_value = attr.value.empty() ? 1 : 0;
  }
  return record;
}

void SetAttributes(cdm::Object& object, const std::vector<AttrAst>& attrs) {
  for (const AttrAst& attr : attrs) object.SetAttribute(MakeAttribute(attr));
}

const char* DirectionWord(int direction) {
  return direction == 0 ? "input" : direction == 1 ? "output" : "inout";
}

std::string BaseName(const std::string& path) {
  size_t slash = path.rfind('/');
  return slash == std::string::npos ? path : path.substr(slash + 1);
}

}  // namespace

NetlistBuilder::NetlistBuilder(cdm::Root* root, std::string file_name)
    : root_(root), names_(root), file_name_(std::move(file_name)) {
  owner_ = std::make_shared<cdm::Object>(root_->Intern(BaseName(file_name_)));
}

NetlistBuilder::~NetlistBuilder() = default;

bool NetlistBuilder::Fail(std::string message, uint32_t line) {
  error_ = std::move(message);
  error_line_ = line;
  return false;
}

bool NetlistBuilder::AddName(std::string_view name, uint32_t& offset) {
  if (draft_.names.Add(name, offset)) return true;
  return Fail("module '" + design_->Name() + "' has more names than fit in 1 GiB");
}

NetlistBuilder::Symbol* NetlistBuilder::FindSymbol(uint32_t number) {
  return number < symbols_.size() ? &symbols_[number] : nullptr;
}

uint32_t NetlistBuilder::Width(const Symbol& symbol) const {
  if (!symbol.ranged) return 1;
  return static_cast<uint32_t>(std::abs(static_cast<int64_t>(symbol.msb) - symbol.lsb)) + 1;
}

NetlistBuilder::Symbol* NetlistBuilder::AddSymbol(std::string_view name, uint32_t number,
                                                  const Range& range) {
  // The parser numbers names in the order they are met here.
  if (number != symbols_.size()) {
    Fail("internal error: '" + std::string(name) + "' is numbered " + std::to_string(number) +
         ", expected " + std::to_string(symbols_.size()));
    return nullptr;
  }
  Symbol symbol;
  if (!AddName(name, symbol.name)) return nullptr;
  symbol.ranged = range.present;
  symbol.msb = range.msb;
  symbol.lsb = range.lsb;
  symbol.length = static_cast<uint32_t>(name.size());
  symbol.first_bit = static_cast<uint32_t>(bit_symbol_.size());
  uint32_t index = static_cast<uint32_t>(symbols_.size());
  uint32_t width = Width(symbol);
  for (uint32_t i = 0; i < width; ++i) {
    bit_symbol_.push_back(index);
    parent_.push_back(static_cast<int32_t>(bit_symbol_.size() - 1));
    tie_.push_back(-1);
  }
  symbols_.push_back(symbol);
  return &symbols_.back();
}

bool NetlistBuilder::BeginModule(ModuleHeaderAst& header) {
  std::string name(header.name);
  if (root_->FindDesign(name)) return Fail("module '" + name + "' is already loaded");
  if (done_names_.count(name)) return Fail("module '" + name + "' is defined twice");
  design_ = std::make_unique<cdm::Design>(root_->Intern(name), owner_);
  cdm::Attribute line;
  line.id = cdm::AttrId::kSourceLine;
  line.kind = cdm::AttrKind::kInt;
  line.int_value = header.line;
  design_->SetAttribute(line);
  SetAttributes(*design_, header.attrs);
  draft_ = cdm::ModuleDraft();
  draft_.source.file = file_name_;
  draft_.source.line = header.line;
  symbols_.clear();
  instance_hashes_.clear();
  instance_lines_.clear();
  bit_symbol_.clear();
  parent_.clear();
  tie_.clear();
  header_ports_.clear();
  cdm::NameIndex listed([&](uint32_t i) { return header.ports[i]; });
  for (size_t i = 0; i < header.ports.size(); ++i) {
    if (listed.Find(header.ports[i]) != cdm::NameIndex::kNone)
      return Fail("port '" + std::string(header.ports[i]) + "' is listed twice");
    listed.Insert(header.ports[i], static_cast<uint32_t>(i));
    uint32_t offset = 0;
    if (!AddName(header.ports[i], offset)) return false;
    header_ports_.push_back(offset);
  }
  for (DeclAst& decl : header.ansi_decls)
    if (!Declare(decl, {})) return false;
  return true;
}

bool NetlistBuilder::Declare(DeclAst& decl, const std::vector<AttrAst>&) {
  int direction = decl.kind == DeclKind::kInput    ? 0
                  : decl.kind == DeclKind::kOutput ? 1
                  : decl.kind == DeclKind::kInout  ? 2
                                                   : -1;
  for (size_t i = 0; i < decl.names.size(); ++i) {
    const std::string_view name = decl.names[i];
    Symbol* symbol = FindSymbol(decl.symbols[i]);
    if (!symbol) {
      symbol = AddSymbol(name, decl.symbols[i], decl.range);
      if (!symbol) return false;
    } else if (!symbol->declared) {
      if (decl.range.present)
        return Fail("'" + std::string(name) +
                    "' is declared as a vector after its use as a scalar");
    } else {
      // A port may be declared once with its direction and once as a net.
      bool same_range =
          symbol->ranged == decl.range.present &&
          (!decl.range.present || (symbol->msb == decl.range.msb && symbol->lsb == decl.range.lsb));
      bool pair = (direction >= 0) != (symbol->direction >= 0) && (direction >= 0 || !symbol->wire);
      if (!pair) return Fail("'" + std::string(name) + "' is declared twice");
      if (!same_range)
        return Fail("'" + std::string(name) + "' is declared with two different ranges");
    }
    symbol->declared = true;
    if (direction >= 0)
      symbol->direction = static_cast<int8_t>(direction);
    else
      symbol->wire = true;
  }
  return true;
}

bool NetlistBuilder::SymbolBit(const Symbol& symbol, int index, int32_t& bit) {
  if (!symbol.ranged)
    return Fail("'" + std::string(NameOf(symbol)) + "' is a scalar and has no bit " +
                std::to_string(index));
  int low = std::min(symbol.msb, symbol.lsb), high = std::max(symbol.msb, symbol.lsb);
  if (index < low || index > high)
    return Fail("bit " + std::to_string(index) + " is outside '" + std::string(NameOf(symbol)) +
                "[" + std::to_string(symbol.msb) + ":" + std::to_string(symbol.lsb) + "]'");
  int64_t offset =
      symbol.msb >= symbol.lsb ? int64_t{symbol.msb} - index : int64_t{index} - symbol.msb;
  bit = static_cast<int32_t>(symbol.first_bit + offset);
  return true;
}

bool NetlistBuilder::RoomFor(const std::vector<int32_t>& bits, size_t more) {
  if (bits.size() + more <= VerilogParser::kMaxExprBits) return true;
  return Fail("a connection of more than " + std::to_string(VerilogParser::kMaxExprBits) + " bits");
}

bool NetlistBuilder::ExprBits(const Expr& expr, std::vector<int32_t>& bits) {
  switch (expr.kind) {
    case Expr::kConstant:
      for (char c : expr.bits)
        bits.push_back(c == '0' ? cdm::kBitConst0 : c == '1' ? cdm::kBitConst1 : cdm::kBitOpen);
      return true;
    case Expr::kConcat: {
      const size_t first = bits.size();
      for (const Expr& item : expr.items)
        if (!ExprBits(item, bits)) return false;
      const size_t once = bits.size() - first;
      if (expr.repeat > 1) {
        if (!RoomFor(bits, once * (expr.repeat - 1))) return false;
        bits.reserve(bits.size() + once * (expr.repeat - 1));
        for (uint32_t r = 1; r < expr.repeat; ++r)
          for (size_t i = 0; i < once; ++i) bits.push_back(bits[first + i]);
      }
      return true;
    }
    case Expr::kName: {
      Symbol* symbol = FindSymbol(expr.symbol);
      if (!symbol) symbol = AddSymbol(expr.name, expr.symbol, Range());  // implicit net
      if (!symbol) return false;
      uint32_t width = Width(*symbol);
      if (!RoomFor(bits, width)) return false;
      for (uint32_t i = 0; i < width; ++i)
        bits.push_back(static_cast<int32_t>(symbol->first_bit + i));
      return true;
    }
    case Expr::kBitSelect:
    case Expr::kPartSelect: {
      const Symbol* symbol = FindSymbol(expr.symbol);
      if (!symbol) return Fail("unknown net '" + std::string(expr.name) + "'");
      int from = expr.kind == Expr::kBitSelect ? expr.index : expr.msb;
      int to = expr.kind == Expr::kBitSelect ? expr.index : expr.lsb;
      int step = from <= to ? 1 : -1;
      if (!RoomFor(bits, static_cast<size_t>(std::abs(int64_t{from} - to)) + 1)) return false;
      for (int index = from;; index += step) {
        int32_t bit = 0;
        if (!SymbolBit(*symbol, index, bit)) return false;
        bits.push_back(bit);
        if (index == to) break;
      }
      return true;
    }
    case Expr::kNone:
      break;
  }
  return Fail("empty expression");
}

bool NetlistBuilder::Instance(InstanceAst& inst) {
  uint32_t index = static_cast<uint32_t>(draft_.cell_names.size());
  uint32_t name = 0;
  if (!AddName(inst.name, name)) return false;
  draft_.cell_names.push_back(name);
  instance_hashes_.push_back(inst.name_hash);
  instance_lines_.push_back(inst.line);
  draft_.cell_refs.push_back(names_.Intern(inst.ref));
  for (const AttrAst& attr : inst.attrs)
    draft_.cell_attributes.emplace_back(index, MakeAttribute(attr));
  draft_.source.BeginInstance(inst.line, static_cast<uint32_t>(inst.conns.size()));
  scratch_ports_.clear();
  for (uint32_t i = 0; i < inst.conns.size(); ++i) {
    const ConnAst& conn = inst.conns[i];
    const std::string* port = nullptr;
    if (!conn.port.empty()) {
      port = names_.Intern(conn.port);
      for (const std::string* seen : scratch_ports_)
        if (seen == port)
          return Fail("port '" + *port + "' of instance '" + std::string(inst.name) +
                      "' is connected twice");
      scratch_ports_.push_back(port);
    }
    scratch_lhs_.clear();
    if (!conn.empty && !ExprBits(conn.expr, scratch_lhs_)) return false;
    draft_.source.AddConnection(port, scratch_lhs_.data(),
                                static_cast<uint32_t>(scratch_lhs_.size()));
  }
  return true;
}

int32_t NetlistBuilder::FindRoot(int32_t bit) {
  while (parent_[bit] != bit) {
    parent_[bit] = parent_[parent_[bit]];
    bit = parent_[bit];
  }
  return bit;
}

bool NetlistBuilder::Assign(AssignAst& assign) {
  scratch_lhs_.clear();
  scratch_rhs_.clear();
  if (!ExprBits(assign.lhs, scratch_lhs_) || !ExprBits(assign.rhs, scratch_rhs_)) return false;
  // Widths meet at the least significant bit; a short right side is
  // extended with zeros.
  size_t lhs_size = scratch_lhs_.size(), rhs_size = scratch_rhs_.size();
  for (size_t k = 0; k < lhs_size; ++k) {
    int32_t lhs = scratch_lhs_[lhs_size - 1 - k];
    int32_t rhs = k < rhs_size ? scratch_rhs_[rhs_size - 1 - k] : cdm::kBitConst0;
    if (lhs < 0) return Fail("cannot assign to a constant");
    if (rhs == cdm::kBitOpen) continue;
    if (rhs < 0) {
      int8_t value = rhs == cdm::kBitConst1 ? 1 : 0;
      if (tie_[lhs] >= 0 && tie_[lhs] != value)
        return Fail("net '" + BitName(lhs) + "' is tied to both 0 and 1");
      tie_[lhs] = value;
      continue;
    }
    int32_t a = FindRoot(lhs), b = FindRoot(rhs);
    if (a != b) parent_[std::max(a, b)] = std::min(a, b);
  }
  return true;
}

std::string NetlistBuilder::BitName(uint32_t bit) const {
  const Symbol& symbol = symbols_[bit_symbol_[bit]];
  if (!symbol.ranged) return std::string(NameOf(symbol));
  int64_t offset = bit - symbol.first_bit;
  int64_t index = symbol.msb >= symbol.lsb ? symbol.msb - offset : symbol.msb + offset;
  return std::string(NameOf(symbol)) + "[" + std::to_string(index) + "]";
}

bool NetlistBuilder::FinishPorts() {
  cdm::NameIndex listed([&](uint32_t i) { return draft_.names.View(header_ports_[i]); });
  for (size_t i = 0; i < header_ports_.size(); ++i)
    listed.Insert(draft_.names.View(header_ports_[i]), static_cast<uint32_t>(i));
  // The names declared with a direction, to find the header's ports in.
  cdm::NameIndex declared([&](uint32_t i) { return NameOf(symbols_[i]); });
  for (uint32_t i = 0; i < symbols_.size(); ++i) {
    const Symbol& symbol = symbols_[i];
    if (symbol.direction < 0) continue;
    if (listed.Find(NameOf(symbol)) == cdm::NameIndex::kNone)
      return Fail("'" + std::string(NameOf(symbol)) + "' is declared " +
                  DirectionWord(symbol.direction) + " but is not in the port list of module '" +
                  design_->Name() + "'");
    declared.Insert(NameOf(symbol), i);
  }
  for (uint32_t offset : header_ports_) {
    std::string_view name = draft_.names.View(offset);
    Symbol* symbol = FindSymbol(declared.Find(name));
    if (!symbol || symbol->direction < 0)
      return Fail("port '" + std::string(name) + "' of module '" + design_->Name() +
                  "' has no direction");
    uint8_t direction = static_cast<uint8_t>(symbol->direction);
    cdm::DesignPortBus* bus = nullptr;
    if (symbol->ranged)
      bus = cdm::NetlistEditor::AddPortBus(
          design_.get(), std::make_unique<cdm::DesignPortBus>(root_->Intern(name), direction,
                                                              symbol->msb, symbol->lsb));
    for (uint32_t i = 0; i < Width(*symbol); ++i) {
      uint32_t bit = symbol->first_bit + i;
      cdm::NetlistEditor::AddPort(
          design_.get(), std::make_unique<cdm::Port>(root_->Intern(BitName(bit)), direction), bus);
      draft_.source.port_nets.push_back(static_cast<int32_t>(bit));
    }
  }
  return true;
}

bool NetlistBuilder::FinishNets() {
  size_t count = bit_symbol_.size();
  // Per class of bits joined by assigns (kept at its root bit): the bit
  // that names it (a port's first), its tie, its net.
  struct Class {
    int32_t preferred = -1;
    int32_t tie = -1;
    int32_t net = -1;
  };
  cdm::PodArray<Class> classes;
  classes.resize(count);
  for (uint32_t bit = 0; bit < count; ++bit) {
    Class& group = classes[FindRoot(static_cast<int32_t>(bit))];
    bool is_port = symbols_[bit_symbol_[bit]].direction >= 0;
    if (group.preferred < 0 || (is_port && symbols_[bit_symbol_[group.preferred]].direction < 0))
      group.preferred = static_cast<int32_t>(bit);
    if (tie_[bit] >= 0) {
      if (group.tie >= 0 && group.tie != tie_[bit])
        return Fail("net '" + BitName(bit) + "' is tied to both 0 and 1");
      group.tie = tie_[bit];
    }
  }
  // A scalar's name is in the pool already; a bus bit gets "name[i]".
  auto bit_name = [&](uint32_t bit, uint32_t& offset) {
    const Symbol& symbol = symbols_[bit_symbol_[bit]];
    if (!symbol.ranged) {
      offset = symbol.name;
      return true;
    }
    return AddName(BitName(bit), offset);
  };
  cdm::PodArray<int32_t> bit_net;
  bit_net.assign(count, -1);
  int32_t next_net = 0;
  for (uint32_t bit = 0; bit < count; ++bit) {
    Class& group = classes[FindRoot(static_cast<int32_t>(bit))];
    if (group.net < 0) {
      uint32_t name = 0;
      if (!bit_name(static_cast<uint32_t>(group.preferred), name)) return false;
      draft_.net_names.push_back(name);
      draft_.net_ties.push_back(static_cast<int8_t>(group.tie));
      group.net = next_net++;
    }
    bit_net[bit] = group.net;
    if (static_cast<int32_t>(bit) != group.preferred) {
      uint32_t alias = 0;
      if (!bit_name(bit, alias)) return false;
      draft_.aliases.emplace_back(alias, static_cast<uint32_t>(group.net));
    }
  }
  draft_.source.SetBitMap(std::move(bit_net));
  for (const Symbol& symbol : symbols_)
    if (symbol.ranged && symbol.direction < 0)
      cdm::NetlistEditor::AddNetBus(
          design_.get(), std::make_unique<cdm::DesignNetBus>(root_->Intern(NameOf(symbol)),
                                                             symbol.msb, symbol.lsb));
  return true;
}

bool NetlistBuilder::CheckInstanceNames() {
  // A table of a million names misses the cache on every insert. Instead
  // the names are split by the top bits of their hashes into parts of a
  // few thousand, each checked in a small table that stays in the cache.
  // The duplicate reported is the one a reader going through the file
  // meets first: the earliest instance whose name came before.
  const uint32_t count = static_cast<uint32_t>(instance_hashes_.size());
  int part_bits = 0;
  while (part_bits < 16 && (count >> part_bits) > 2048) ++part_bits;
  const uint32_t parts = 1u << part_bits;
  const auto part_of = [&](uint32_t hash) { return part_bits ? hash >> (32 - part_bits) : 0; };
  std::vector<uint32_t> starts(parts + 1, 0);
  for (uint32_t hash : instance_hashes_) ++starts[part_of(hash) + 1];
  for (uint32_t p = 0; p < parts; ++p) starts[p + 1] += starts[p];
  cdm::PodArray<uint32_t> order;
  order.resize(count);
  std::vector<uint32_t> next(starts.begin(), starts.end() - 1);
  for (uint32_t i = 0; i < count; ++i) order[next[part_of(instance_hashes_[i])]++] = i;
  uint32_t first_duplicate = UINT32_MAX;
  cdm::PodArray<uint32_t> table;
  for (uint32_t p = 0; p < parts; ++p) {
    const uint32_t size = starts[p + 1] - starts[p];
    uint32_t slots = 16;
    while (slots < size * 2) slots *= 2;
    table.assign(slots, UINT32_MAX);
    for (uint32_t k = starts[p]; k < starts[p + 1]; ++k) {
      const uint32_t index = order[k];  // ascending within a part
      const uint32_t hash = instance_hashes_[index];
      for (uint32_t s = hash & (slots - 1);; s = (s + 1) & (slots - 1)) {
        const uint32_t seen = table[s];
        if (seen == UINT32_MAX) {
          table[s] = index;
          break;
        }
        if (instance_hashes_[seen] == hash && draft_.names.View(draft_.cell_names[seen]) ==
                                                  draft_.names.View(draft_.cell_names[index])) {
          first_duplicate = std::min(first_duplicate, index);
          break;
        }
      }
    }
  }
  if (first_duplicate == UINT32_MAX) return true;
  return Fail("instance '" + std::string(draft_.names.View(draft_.cell_names[first_duplicate])) +
                  "' is defined twice in module '" + design_->Name() + "'",
              instance_lines_[first_duplicate]);
}

void NetlistBuilder::Checkpoint(size_t offset, size_t total) {
  cmdlib::ReadCheckpoint(offset, total);
}

bool NetlistBuilder::EndModule(uint32_t) {
  if (!CheckInstanceNames() || !FinishPorts() || !FinishNets()) return false;
  done_names_.insert(design_->Name());
  done_.push_back(Finished{std::move(design_), std::move(draft_)});
  draft_ = cdm::ModuleDraft();
  return true;
}

bool NetlistBuilder::Commit(std::vector<std::string>& names, std::string& error) {
  // The reading state goes first: the definitions take its place.
  symbols_.clear();
  instance_hashes_.clear();
  instance_lines_.clear();
  bit_symbol_.clear();
  parent_.clear();
  tie_.clear();
  for (Finished& done : done_)
    if (!cdm::NetlistEditor::Fill(root_, done.design->GetNetlist(), std::move(done.draft), error)) {
      done_.clear();
      done_names_.clear();
      return false;
    }
  names.clear();
  for (Finished& done : done_) {
    names.push_back(done.design->Name());
    root_->AddDesign(std::move(done.design));
  }
  done_.clear();
  done_names_.clear();
  return true;
}

}  // namespace verilog
