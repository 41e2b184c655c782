#include "verilog/StatementBatch.h"

namespace verilog {

template <typename T>
T& StatementBatch::Slot(std::vector<T>& list, size_t& used) {
  if (used == list.size()) list.emplace_back();
  return list[used++];
}

void StatementBatch::Clear() {
  order_.clear();
  instances_.clear();
  end_lines_.clear();
  headers_used_ = declarations_used_ = conns_used_ = attrs_used_ = assigns_used_ = 0;
  offset_ = total_ = 0;
}

void StatementBatch::AddBeginModule(const ModuleHeaderAst& header) {
  order_.push_back({Kind::kBeginModule, static_cast<uint32_t>(headers_used_)});
  Slot(headers_, headers_used_) = header;
}

void StatementBatch::AddDeclare(const DeclAst& decl, const std::vector<AttrAst>& attrs) {
  order_.push_back({Kind::kDeclare, static_cast<uint32_t>(declarations_used_)});
  Declaration& slot = Slot(declarations_, declarations_used_);
  slot.decl = decl;
  slot.attrs = attrs;
}

void StatementBatch::AddInstance(const InstanceAst& instance) {
  order_.push_back({Kind::kInstance, static_cast<uint32_t>(instances_.size())});
  InstanceEntry entry;
  entry.ref = instance.ref;
  entry.name = instance.name;
  entry.line = instance.line;
  entry.first_conn = static_cast<uint32_t>(conns_used_);
  entry.conn_count = static_cast<uint32_t>(instance.conns.size());
  for (const ConnAst& conn : instance.conns) Slot(conns_, conns_used_) = conn;
  entry.first_attr = static_cast<uint32_t>(attrs_used_);
  entry.attr_count = static_cast<uint32_t>(instance.attrs.size());
  for (const AttrAst& attr : instance.attrs) Slot(attrs_, attrs_used_) = attr;
  instances_.push_back(entry);
}

void StatementBatch::AddAssign(const AssignAst& assign) {
  order_.push_back({Kind::kAssign, static_cast<uint32_t>(assigns_used_)});
  Slot(assigns_, assigns_used_) = assign;
}

void StatementBatch::AddEndModule(uint32_t line) {
  order_.push_back({Kind::kEndModule, static_cast<uint32_t>(end_lines_.size())});
  end_lines_.push_back(line);
}

bool StatementBatch::ReplayInstance(const InstanceEntry& entry, StatementSink& sink) {
  instance_.ref = entry.ref;
  instance_.name = entry.name;
  instance_.line = entry.line;
  auto conns = conns_.begin() + entry.first_conn;
  instance_.conns.assign(conns, conns + entry.conn_count);
  auto attrs = attrs_.begin() + entry.first_attr;
  instance_.attrs.assign(attrs, attrs + entry.attr_count);
  return sink.Instance(instance_);
}

void StatementBatch::LookAhead(const Entry& entry, StatementSink& sink) const {
  if (entry.kind == Kind::kDeclare) {
    sink.LookAhead(declarations_[entry.index].decl);
  } else if (entry.kind == Kind::kInstance) {
    const InstanceEntry& instance = instances_[entry.index];
    sink.LookAhead(conns_.data() + instance.first_conn, instance.conn_count);
  }
}

bool StatementBatch::Replay(StatementSink& sink, uint32_t& line) {
  if (total_ > 0) sink.Checkpoint(offset_, total_);  // none before the first module item
  // Far enough ahead for the sink's fetches to arrive, near enough for
  // them to stay in cache.
  constexpr size_t kAhead = 8;
  for (size_t i = 0; i < order_.size(); ++i) {
    if (i + kAhead < order_.size()) LookAhead(order_[i + kAhead], sink);
    const Entry& entry = order_[i];
    switch (entry.kind) {
      case Kind::kBeginModule:
        line = headers_[entry.index].line;
        if (!sink.BeginModule(headers_[entry.index])) return false;
        break;
      case Kind::kDeclare: {
        Declaration& declaration = declarations_[entry.index];
        line = declaration.decl.line;
        if (!sink.Declare(declaration.decl, declaration.attrs)) return false;
        break;
      }
      case Kind::kInstance:
        line = instances_[entry.index].line;
        if (!ReplayInstance(instances_[entry.index], sink)) return false;
        break;
      case Kind::kAssign:
        line = assigns_[entry.index].line;
        if (!sink.Assign(assigns_[entry.index])) return false;
        break;
      case Kind::kEndModule:
        line = end_lines_[entry.index];
        if (!sink.EndModule(line)) return false;
        break;
    }
  }
  return true;
}

}  // namespace verilog
