#include "db/Linker.h"

#include <algorithm>
#include <map>
#include <memory>
#include <set>
#include <unordered_map>

#include "db/Elaboration.h"
#include "db/LibAccess.h"
#include "db/Netlist.h"
#include "db/NetlistEditor.h"
#include "db/PinGroups.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/Root.h"
#include "msg/Progress.h"

namespace cdm {
namespace {

enum RefKind { kUnresolvedRef = 0, kLibRef = 1, kDesignRef = 2 };

// What a reference name resolves to, found once per name.
struct Resolution {
  Reference* ref = nullptr;
  int kind = kUnresolvedRef;
  std::vector<Port*> ports;
  std::unique_ptr<PinGroups> groups;
};

class Linker {
 public:
  Linker(Root* root, std::vector<LinkWarning>& warnings) : root_(root), warnings_(warnings) {}

  bool CheckRecursion(Design* top, std::string& error) {
    // Depth first without recursion: a module may nest deeply.
    std::vector<std::pair<Design*, uint32_t>> path{{top, 0}};
    std::set<Design*> on_path{top}, done;
    while (!path.empty()) {
      Design* design = path.back().first;
      Netlist* netlist = design->GetNetlist();
      uint32_t index = path.back().second++;
      if (index == netlist->CellCount()) {
        on_path.erase(design);
        done.insert(design);
        path.pop_back();
        continue;
      }
      Design* child = root_->FindDesign(netlist->Cells()[index].GetRefName());
      if (!child || done.count(child)) continue;
      if (on_path.count(child)) {
        error = "module '" + child->Name() + "' instantiates itself";
        bool first = true;
        for (const auto& step : path) {
          if (first && step.first != child) continue;
          error += (first ? " (through " : ", ") + step.first->Name();
          first = false;
        }
        error += ")";
        return false;
      }
      on_path.insert(child);
      path.emplace_back(child, 0);
    }
    return true;
  }

  void LinkAll(Design* top) {
    std::vector<Design*> order{top};
    std::set<Design*> seen{top};
    for (size_t i = 0; i < order.size(); ++i)
      for (const Cell& cell : order[i]->GetNetlist()->Cells())
        if (Design* child = root_->FindDesign(cell.GetRefName()))
          if (seen.insert(child).second) order.push_back(child);
    // A progress line for the designs of more than a million instances.
    uint64_t total = 0;
    for (Design* design : order) total += design->GetNetlist()->CellCount();
    std::unique_ptr<msg::Progress> progress;
    if (total > 1000000)
      progress = std::make_unique<msg::Progress>("Linking " + top->Name(), total);
    progress_ = progress.get();
    for (Design* design : order) Bind(design);
    progress_ = nullptr;
    for (const auto& entry : unresolved_)
      warnings_.push_back(LinkWarning{"", 0,
                                      "Unable to resolve reference '" + entry.first + "' (" +
                                          std::to_string(entry.second) +
                                          (entry.second == 1 ? " cell" : " cells") +
                                          "); it stays without library cell or design."});
  }

 private:
  // By the address of the name first: every cell of one reference shares
  // it (an interned name, or the bound library cell's or design's own).
  const Resolution& Resolve(const std::string& name) {
    auto known = by_address_.find(&name);
    if (known != by_address_.end()) return *known->second;
    auto found = resolutions_.find(name);
    if (found != resolutions_.end()) {
      by_address_.emplace(&name, &found->second);
      return found->second;
    }
    Resolution& resolution = resolutions_[name];
    by_address_.emplace(&name, &resolution);
    if (Design* design = root_->FindDesign(name)) {
      resolution.ref = design;
      resolution.kind = kDesignRef;
      resolution.ports = design->Ports();
    } else if (LibCell* lib_cell = FindLibCellForLink(root_, name, &resolution.ref)) {
      resolution.kind = kLibRef;
      LibCellPinPorts(lib_cell, resolution.ports);
    }
    if (resolution.kind != kUnresolvedRef)
      resolution.groups = std::make_unique<PinGroups>(resolution.ports);
    return resolution;
  }

  void Warn(const Netlist* netlist, const Cell& cell, uint32_t line, const std::string& what) {
    warnings_.push_back(LinkWarning{netlist->Source().file, line,
                                    "instance '" +
                                        std::string(netlist->CellName(netlist->IndexOf(&cell))) +
                                        "' of '" + cell.GetRefName() + "' " + what});
  }

  // The stub ports of an unresolved cell, named after its connections.
  void StubPorts(Netlist* netlist, const ConnSource& conn, std::vector<Port*>& ports) {
    if (!conn.port) {
      ports.push_back(NetlistEditor::StubPort(root_, netlist, "$" + std::to_string(conn.position)));
    } else if (conn.bits.size() <= 1) {
      ports.push_back(NetlistEditor::StubPort(root_, netlist, *conn.port));
    } else {
      for (size_t b = conn.bits.size(); b-- > 0;)
        ports.push_back(
            NetlistEditor::StubPort(root_, netlist, *conn.port + "[" + std::to_string(b) + "]"));
    }
  }

  void Bind(Design* design) {
    Netlist* netlist = design->GetNetlist();
    const ModuleSource& source = netlist->Source();
    const uint32_t cells = netlist->CellCount();
    // First pass: what each cell is and how many pins it has. A cell's
    // resolution is found again by name: a few distinct names serve many
    // cells, so no per-cell record is kept.
    std::vector<std::vector<Port*>> stubs;  // ports of unresolved cells, in cell order
    uint32_t pins = static_cast<uint32_t>(design->Ports().size());
    bool unresolved_cells = false;
    for (uint32_t i = 0; i < cells; ++i) {
      const Resolution& resolution = Resolve(netlist->Cells()[i].GetRefName());
      if (resolution.kind == kUnresolvedRef)
        unresolved_cells = true;
      else
        pins += static_cast<uint32_t>(resolution.ports.size());
    }
    // An unresolved cell's pins are made after its connections, so only
    // then are the connections read twice.
    if (unresolved_cells) {
      ModuleSource::Cursor cursor(source);
      uint32_t line = 0, conns = 0;
      ConnSource conn;
      for (uint32_t i = 0; i < cells && cursor.NextInstance(line, conns); ++i) {
        Cell& cell = netlist->Cells()[i];
        const bool unresolved = Resolve(cell.GetRefName()).kind == kUnresolvedRef;
        std::vector<Port*> ports;
        for (uint32_t c = 0; c < conns; ++c) {
          cursor.NextConnection(conn, c);
          if (unresolved) StubPorts(netlist, conn, ports);
        }
        if (unresolved) {
          ++unresolved_[cell.GetRefName()];
          pins += static_cast<uint32_t>(ports.size());
          stubs.push_back(std::move(ports));
        }
      }
    }
    NetlistEditor::MakePins(netlist, pins);
    // Every cell's place in the pin array first: a cell's pin count is
    // where the next cell's pins start.
    {
      uint32_t first = netlist->PortPinCount(), stub = 0;
      for (uint32_t i = 0; i < cells; ++i) {
        Cell& cell = netlist->Cells()[i];
        const Resolution& resolution = Resolve(cell.GetRefName());
        bool unresolved = resolution.kind == kUnresolvedRef;
        Reference* ref = unresolved
                             ? NetlistEditor::Unresolved(netlist, root_->Intern(cell.GetRefName()))
                             : resolution.ref;
        NetlistEditor::BindCell(netlist, i, ref, resolution.kind, first);
        first += static_cast<uint32_t>(unresolved ? stubs[stub++].size() : resolution.ports.size());
      }
    }
    for (uint32_t i = 0; i < netlist->PortPinCount(); ++i) {
      Pin* pin = netlist->PinAt(i);
      Port* port = design->Ports()[i];
      NetlistEditor::InitPin(pin, port, nullptr, netlist,
                             Pin::kPortPin | NetlistEditor::DirectionFlags(port->direction, true));
      int32_t bit = i < source.port_nets.size() ? source.port_nets[i] : kBitOpen;
      if (bit >= 0) NetlistEditor::Connect(pin, static_cast<uint32_t>(bit));
    }
    // Second pass: pins and connections.
    ModuleSource::Cursor cursor(source);
    uint32_t line = 0, conns = 0, next_pin = netlist->PortPinCount(), next_stub = 0;
    ConnSource conn;
    std::vector<uint32_t> targets;
    for (uint32_t i = 0; i < cells && cursor.NextInstance(line, conns); ++i) {
      if (progress_ && (i & 0xffff) == 0) progress_->Update(bound_ + i);
      Cell& cell = netlist->Cells()[i];
      const Resolution& resolution = Resolve(cell.GetRefName());
      const bool unresolved = resolution.kind == kUnresolvedRef;
      const std::vector<Port*>& ports = unresolved ? stubs[next_stub++] : resolution.ports;
      for (Port* port : ports) {
        uint8_t flags = NetlistEditor::DirectionFlags(port->direction, false);
        if (resolution.kind == kDesignRef) flags |= Pin::kHierarchical;
        NetlistEditor::InitPin(netlist->PinAt(next_pin++), port, &cell, netlist, flags);
      }
      uint32_t stub_at = 0;
      for (uint32_t c = 0; c < conns; ++c) {
        cursor.NextConnection(conn, c);
        if (unresolved) {
          // The stubs follow the connections one to one.
          uint32_t width =
              conn.port && conn.bits.size() > 1 ? static_cast<uint32_t>(conn.bits.size()) : 1;
          targets.clear();
          for (uint32_t k = 0; k < width; ++k) targets.push_back(stub_at + k);
          stub_at += width;
        } else if (conn.port) {
          resolution.groups->ByName(*conn.port, targets);
        } else {
          resolution.groups->ByPosition(c, targets);
        }
        if (targets.empty()) {
          if (conn.port)
            Warn(netlist, cell, line, "has no pin '" + *conn.port + "'; connection ignored.");
          else
            Warn(netlist, cell, line,
                 "has no pin at position " + std::to_string(conn.position + 1) +
                     "; connection ignored.");
          continue;
        }
        if (conn.bits.empty()) continue;
        if (conn.bits.size() != targets.size())
          Warn(netlist, cell, line,
               "connects " + std::to_string(conn.bits.size()) + " bits to the " +
                   std::to_string(targets.size()) + "-bit pin '" + cell.GetPin(targets[0])->Name() +
                   "'; they meet at the least significant bit.");
        // Both lists are most significant first: pair them from the end.
        size_t pairs = std::min(conn.bits.size(), targets.size());
        for (size_t k = 0; k < pairs; ++k) {
          int32_t bit = conn.bits[conn.bits.size() - 1 - k];
          Pin* pin = cell.GetPin(targets[targets.size() - 1 - k]);
          if (bit >= 0)
            NetlistEditor::Connect(pin, static_cast<uint32_t>(bit));
          else if (bit != kBitOpen)
            NetlistEditor::Connect(pin, netlist->IndexOf(netlist->ConstNet(bit == kBitConst1)));
        }
      }
    }
    NetlistEditor::FinishLink(netlist);
    bound_ += cells;
  }

  Root* root_;
  std::vector<LinkWarning>& warnings_;
  std::map<std::string, int> unresolved_;
  std::unordered_map<std::string, Resolution> resolutions_;  // node-based: addresses stay
  std::unordered_map<const std::string*, const Resolution*> by_address_;
  msg::Progress* progress_ = nullptr;
  uint64_t bound_ = 0;  // cells bound so far, for the progress line
};

}  // namespace

Design* FindTopDesign(Root* root, std::string& error) {
  std::set<std::string_view> instantiated;
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
  std::vector<LinkWarning> found;
  bool linked = LinkDesign(root, top, found, error);
  for (const LinkWarning& warning : found)
    warnings.push_back("Warning: " +
                       (warning.file.empty()
                            ? std::string()
                            : warning.file + ":" + std::to_string(warning.line) + ": ") +
                       warning.text);
  return linked;
}

bool LinkDesign(Root* root, Design* top, std::vector<LinkWarning>& warnings, std::string& error) {
  Linker linker(root, warnings);
  if (!linker.CheckRecursion(top, error)) return false;
  // Copies of the old elaboration point into definitions about to be rebound.
  root->SetElaboration(nullptr);
  linker.LinkAll(top);
  return ElaborateHierarchy(root, top, error);
}

bool ElaborateHierarchy(Root* root, Design* top, std::string& error) {
  root->SetElaboration(nullptr);
  auto elaboration = std::make_unique<Elaboration>(top);
  if (!elaboration->Build(error)) {
    root->SetCurrentDesign(nullptr);
    return false;
  }
  root->SetElaboration(std::move(elaboration));
  root->SetCurrentDesign(top);
  root->GetElaboration()->SetGeneration(root->ChangeGeneration());
  return true;
}

bool IsLinked(const Design* design) {
  return design && design->GetNetlist()->IsLinked();
}

}  // namespace cdm
