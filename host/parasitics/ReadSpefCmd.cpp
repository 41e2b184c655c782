// read_spef FILES: annotates the nets of the linked current design with the
// total capacitance and resistance of their SPEF descriptions. A file is
// read whole before anything is annotated: a syntax error (with its file
// and line) leaves the annotations as they were. A net or pin the design
// lacks is one warning each and is left out; so is a pin of the design that
// the net's connections leave out.
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "cmdlib/HostCommands.h"
#include "cmdlib/ReadFiles.h"
#include "db/FlatNet.h"
#include "db/PathLookup.h"
#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/Net.h"
#include "hostapi/cdm/Pin.h"
#include "hostapi/cdm/Root.h"
#include "hostapi/cmd/CommonCmd.h"
#include "msg/HostMsg.h"
#include "parasitics/NetAnnotations.h"
#include "parasitics/SpefReader.h"

namespace parasitics {
namespace {

// The flat nets of `spef`'s nets in `design`, with warnings for what the
// design lacks.
std::unordered_map<uint32_t, NetFigures> Resolve(const cdm::Design* design, const SpefFile& spef,
                                                 const std::string& path) {
  std::unordered_map<uint32_t, NetFigures> figures;
  for (const SpefNet& net : spef.nets) {
    const cdm::Net* found = cdm::FindNetByPath(design, net.name);
    if (!found || !found->FlatNetId()) {
      msg::HostMsg(STA_002, {net.name, design->Name()}, {path, net.line});
      continue;
    }
    std::unordered_set<const cdm::Pin*> connected;
    for (const SpefNet::Conn& conn : net.conns) {
      const cdm::Pin* pin = cdm::FindPinByPath(design, conn.name);
      if (pin)
        connected.insert(pin);
      else
        msg::HostMsg(STA_003, {conn.port ? "port" : "pin", conn.name, net.name, design->Name()},
                     {path, conn.line});
    }
    // A file written for another version of the netlist leaves pins out;
    // the netlist decides what loads the net, so each is only told.
    if (!net.conns.empty()) {
      cdm::WalkFlatNet(found, false, [&](cdm::Pin* pin) {
        if (!connected.count(pin))
          msg::HostMsg(STA_004, {pin->GetFullName(), net.name}, {path, net.line});
      });
    }
    figures[found->FlatNetId()] = {static_cast<float>(net.capacitance),
                                   static_cast<float>(net.resistance)};
  }
  return figures;
}

class ReadSpefCmd : public CommonCmd {
 public:
  ReadSpefCmd()
      : CommonCmd("read_spef", "Read net parasitics from SPEF files (plain or gzipped)", nullptr) {
    addOptions("help", "Display help info", false, ValueType::kFlag, std::any());
    cmdlib::AddFileListOption(*this, "SPEF files to read");
  }

  // The result is the number of nets annotated by the files.
  int exec() override {
    const cdm::Design* design = cdm::DbManager::GetCurrentDesign();
    if (!design || !cdm::DbManager::GetRoot()->GetElaboration()) {
      SetTclError("read_spef: no linked current design to annotate");
      return 1;
    }
    size_t annotated = 0;
    std::string error;
    const bool read = cmdlib::ReadFiles(
        cmdlib::GivenFiles(*this),
        [&](const std::string& path, std::string& why) {
          SpefFile spef;
          if (!ReadSpefFile(path, spef, why)) return false;
          const std::unordered_map<uint32_t, NetFigures> figures = Resolve(design, spef, path);
          NetAnnotations::Get().Annotate(figures);
          annotated += figures.size();
          return true;
        },
        error);
    if (!read) {
      SetTclError("read_spef: " + error);
      return 1;
    }
    SetTclResult(std::to_string(annotated));
    return 0;
  }
};

cmdlib::HostCommandRegistrar registrar([] { new ReadSpefCmd(); });

}  // namespace
}  // namespace parasitics
