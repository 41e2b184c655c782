#include "db/Linker.h"

#include <algorithm>
#include <map>
#include <set>
#include <unordered_map>

#include "db/LibAccess.h"
#include "db/Netlist.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/Root.h"

namespace cdm {
namespace {

uint8_t DirectionFlags(uint8_t direction, bool inside) {
  // A port drives the net inside the design when it is an input, and the
  // net outside (through the cell's pin) when it is an output.
  bool drives = inside ? direction == kDirInput : direction == kDirOutput;
  if (direction == kDirInout) return Pin::kDriver | Pin::kLoad;
  // Pins of unresolved cells have no known direction: show them as loads.
  if (direction == kDirInternal) return Pin::kLoad;
  return drives ? Pin::kDriver : Pin::kLoad;
}

// Index from a connection's port name to the pins it covers, most
// significant first: a scalar port, or the bits "name[i]" of a bus.
class PinGroups {
 public:
  explicit PinGroups(const std::vector<Port*>& ports) {
    for (uint32_t i = 0; i < ports.size(); ++i) {
      const std::string& name = ports[i]->Name();
      size_t bracket = name.rfind('[');
      std::string group = name;
      int bit = 0;
      bool is_bit = bracket != std::string::npos && bracket > 0 && name.back() == ']';
      if (is_bit) {
        group = name.substr(0, bracket);
        bit = std::atoi(name.c_str() + bracket + 1);
      }
      auto found = index_.find(group);
      if (found == index_.end()) {
        order_.push_back(group);
        found = index_.emplace(group, Group()).first;
      }
      found->second.members.emplace_back(bit, i);
      if (!is_bit) index_[name].scalar = true;
    }
    for (auto& entry : index_) {
      Group& group = entry.second;
      // Library buses list their bits in any order: most significant first.
      if (!group.scalar && group.members.size() > 1 && !ports[group.members[0].second]->GetDesign())
        std::stable_sort(group.members.begin(), group.members.end(),
                         [](const auto& a, const auto& b) { return a.first > b.first; });
    }
  }

  // Pins of the named port; empty if the reference has no such port.
  std::vector<uint32_t> ByName(const std::string& name) const {
    std::vector<uint32_t> pins;
    auto found = index_.find(name);
    if (found != index_.end())
      for (const auto& member : found->second.members) pins.push_back(member.second);
    return pins;
  }
  std::vector<uint32_t> ByPosition(uint32_t position) const {
    return position < order_.size() ? ByName(order_[position]) : std::vector<uint32_t>();
  }

 private:
  struct Group {
    std::vector<std::pair<int, uint32_t>> members;
    bool scalar = false;
  };
  std::unordered_map<std::string, Group> index_;
  std::vector<std::string> order_;
};

class Linker {
 public:
  Linker(Root* root, std::vector<std::string>& warnings) : root_(root), warnings_(warnings) {}

  bool CheckRecursion(Design* design, std::vector<Design*>& path, std::string& error) {
    if (std::find(path.begin(), path.end(), design) != path.end()) {
      error = "module '" + design->Name() + "' instantiates itself";
      for (Design* step : path)
        error += (step == path.front() ? " (through " : ", ") + step->Name();
      error += ")";
      return false;
    }
    if (!checked_.insert(design).second) return true;
    path.push_back(design);
    for (const Cell& cell : design->GetNetlist()->Cells())
      if (Design* child = root_->FindDesign(cell.GetRefName()))
        if (!CheckRecursion(child, path, error)) return false;
    path.pop_back();
    return true;
  }

  void LinkAll(Design* top) {
    std::vector<Design*> order;
    Collect(top, order);
    for (Design* design : order) Bind(design);
    for (const auto& entry : unresolved_)
      warnings_.push_back("Warning: Unable to resolve reference '" + entry.first + "' (" +
                          std::to_string(entry.second) + (entry.second == 1 ? " cell" : " cells") +
                          "); it stays without library cell or design.");
  }

 private:
  void Collect(Design* design, std::vector<Design*>& order) {
    if (std::find(order.begin(), order.end(), design) != order.end()) return;
    order.push_back(design);
    for (const Cell& cell : design->GetNetlist()->Cells())
      if (Design* child = root_->FindDesign(cell.GetRefName())) Collect(child, order);
  }

  const PinGroups& GroupsOf(const void* key, const std::vector<Port*>& ports) {
    auto found = groups_.find(key);
    if (found == groups_.end()) found = groups_.emplace(key, PinGroups(ports)).first;
    return found->second;
  }

  void Warn(const Netlist* netlist, const Cell& cell, uint32_t line, const std::string& what) {
    warnings_.push_back("Warning: " + netlist->Source().file + ":" + std::to_string(line) +
                        ": instance '" + cell.Name() + "' of '" + cell.GetRefName() + "' " + what);
  }

  void Bind(Design* design) {
    Netlist* netlist = design->GetNetlist();
    for (Net& net : netlist->Nets()) net.ClearPins();
    netlist->MakePortPins();
    const ModuleSource& source = netlist->Source();
    for (uint32_t i = 0; i < netlist->PortPinCount(); ++i) {
      Pin* pin = netlist->PortPin(i);
      pin->SetFlags(Pin::kPortPin | DirectionFlags(pin->GetDirection(), true));
      int32_t bit = i < source.port_nets.size() ? source.port_nets[i] : kBitOpen;
      if (bit >= 0) Connect(pin, &netlist->Nets()[bit]);
    }
    uint32_t index = 0;
    for (Cell& cell : netlist->Cells()) BindCell(netlist, cell, source.instances[index++]);
    netlist->SetLinked(true);
  }

  void BindCell(Netlist* netlist, Cell& cell, const InstanceSource& inst) {
    const ModuleSource& source = netlist->Source();
    std::vector<Port*> ports;
    Reference* ref = nullptr;
    Design* design = root_->FindDesign(cell.GetRefName());
    LibCell* lib_cell = nullptr;
    const void* key = design;
    if (design) {
      ref = design;
      ports = design->Ports();
    } else if ((lib_cell = FindLibCellForLink(root_, cell.GetRefName(), &ref))) {
      LibCellPinPorts(lib_cell, ports);
      key = lib_cell;
    } else {
      ++unresolved_[cell.GetRefName()];
      ref = netlist->Unresolved(&cell.GetRefName());
      // Pins named after the connections, so that they can still be shown.
      for (uint32_t c = 0; c < inst.conn_count; ++c) {
        const ConnSource& conn = source.conns[inst.first_conn + c];
        std::string name = conn.port ? *conn.port : "$" + std::to_string(conn.position);
        if (conn.bit_count <= 1 || !conn.port) {
          ports.push_back(netlist->StubPort(root_->Intern(name)));
        } else {
          for (uint32_t b = conn.bit_count; b-- > 0;)
            ports.push_back(netlist->StubPort(root_->Intern(name + "[" + std::to_string(b) + "]")));
        }
      }
      key = nullptr;
    }
    cell.Bind(ref, design, lib_cell, static_cast<uint32_t>(ports.size()));
    for (uint32_t i = 0; i < ports.size(); ++i) {
      uint8_t flags = DirectionFlags(ports[i]->direction, false);
      if (design) flags |= Pin::kHierarchical;
      cell.GetPin(i)->Init(ports[i], &cell, netlist, flags);
    }
    PinGroups local(key ? std::vector<Port*>() : ports);
    const PinGroups& groups = key ? GroupsOf(key, ports) : local;
    for (uint32_t c = 0; c < inst.conn_count; ++c) {
      const ConnSource& conn = source.conns[inst.first_conn + c];
      std::vector<uint32_t> pins =
          conn.port ? groups.ByName(*conn.port) : groups.ByPosition(conn.position);
      if (!key && !conn.port) pins = {c};
      if (pins.empty()) {
        if (conn.port)
          Warn(netlist, cell, inst.line, "has no pin '" + *conn.port + "'; connection ignored.");
        else
          Warn(netlist, cell, inst.line,
               "has no pin at position " + std::to_string(conn.position + 1) +
                   "; connection ignored.");
        continue;
      }
      if (conn.bit_count == 0) continue;
      if (conn.bit_count != pins.size())
        Warn(netlist, cell, inst.line,
             "connects " + std::to_string(conn.bit_count) + " bits to the " +
                 std::to_string(pins.size()) + "-bit pin '" + cell.GetPin(pins[0])->Name() +
                 "'; they meet at the least significant bit.");
      // Both lists are most significant first: pair them from the end.
      size_t pairs = std::min<size_t>(conn.bit_count, pins.size());
      for (size_t k = 0; k < pairs; ++k) {
        int32_t bit = source.bits[conn.first_bit + conn.bit_count - 1 - k];
        Pin* pin = cell.GetPin(pins[pins.size() - 1 - k]);
        if (bit >= 0)
          Connect(pin, &netlist->Nets()[bit]);
        else if (bit != kBitOpen)
          Connect(pin, netlist->ConstNet(bit == kBitConst1 ? 1 : 0));
      }
    }
  }

  static void Connect(Pin* pin, Net* net) {
    if (pin->GetNet()) return;
    pin->SetNet(net);
    net->AddPin(pin);
  }

  Root* root_;
  std::vector<std::string>& warnings_;
  std::set<Design*> checked_;
  std::map<std::string, int> unresolved_;
  std::unordered_map<const void*, PinGroups> groups_;
};

void ElaborateNetlist(Netlist* top, Netlist* netlist, std::set<const Netlist*>& used,
                      uint32_t& vertex) {
  for (uint32_t i = 0; i < netlist->PortPinCount(); ++i) netlist->PortPin(i)->SetVertexId(vertex++);
  for (Cell& cell : netlist->Cells()) {
    for (uint32_t i = 0; i < cell.PinCount(); ++i) cell.GetPin(i)->SetVertexId(vertex++);
    Design* design = cell.GetRefDesign();
    if (!design) continue;
    Netlist* child = design->GetNetlist();
    if (used.insert(child).second) {
      child->SetInstance(&cell);
    } else {
      child = top->AddClone(child->CloneFor(&cell));
    }
    for (uint32_t i = 0; i < child->PortPinCount(); ++i) {
      Pin* pin = child->PortPin(i);
      pin->SetFlags(Pin::kPortPin | Pin::kHierarchical | DirectionFlags(pin->GetDirection(), true));
    }
    cell.SetChildNetlist(child);
    ElaborateNetlist(top, child, used, vertex);
  }
}

}  // namespace

Design* FindTopDesign(Root* root, std::string& error) {
  std::set<std::string> instantiated;
  for (Design* design : root->Designs())
    for (const Cell& cell : design->GetNetlist()->Cells()) instantiated.insert(cell.GetRefName());
  std::vector<Design*> tops;
  for (Design* design : root->Designs())
    if (!instantiated.count(design->Name())) tops.push_back(design);
  if (root->Designs().empty()) {
    error = "no design is loaded; read a netlist with read_verilog first";
    return nullptr;
  }
  if (tops.size() == 1) return tops[0];
  if (tops.empty()) {
    error = "every module is instantiated by another; name the top module";
    return nullptr;
  }
  error = "several modules could be the top (";
  for (size_t i = 0; i < tops.size(); ++i) error += (i ? ", " : "") + tops[i]->Name();
  error += "); name one";
  return nullptr;
}

bool LinkDesign(Root* root, Design* top, std::vector<std::string>& warnings, std::string& error) {
  Linker linker(root, warnings);
  std::vector<Design*> path;
  if (!linker.CheckRecursion(top, path, error)) return false;
  // Lower netlists of the old hierarchy point into cells about to be rebound.
  for (Design* design : root->Designs()) {
    design->GetNetlist()->ClearClones();
    design->GetNetlist()->SetInstance(nullptr);
  }
  linker.LinkAll(top);
  ElaborateHierarchy(root, top);
  root->SetCurrentDesign(top);
  return true;
}

void ElaborateHierarchy(Root* root, Design* top) {
  for (Design* design : root->Designs()) {
    Netlist* netlist = design->GetNetlist();
    netlist->ClearClones();
    netlist->SetInstance(nullptr);
    for (Cell& cell : netlist->Cells()) cell.SetChildNetlist(nullptr);
  }
  Netlist* netlist = top->GetNetlist();
  for (uint32_t i = 0; i < netlist->PortPinCount(); ++i) {
    Pin* pin = netlist->PortPin(i);
    pin->SetFlags(Pin::kPortPin | Pin::kTopPort | DirectionFlags(pin->GetDirection(), true));
  }
  std::set<const Netlist*> used{netlist};
  uint32_t vertex = 1;
  ElaborateNetlist(netlist, netlist, used, vertex);
}

bool IsLinked(const Design* design) {
  return design && design->GetNetlist()->IsLinked();
}

}  // namespace cdm
