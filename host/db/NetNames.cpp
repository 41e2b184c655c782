#include "db/NetNames.h"

#include "db/Elaboration.h"
#include "db/Netlist.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/Net.h"

#include <string>

namespace cdm {

void ForEachNetName(const Netlist& netlist, const NetNameVisitor& visit) {
  const std::string path = netlist.PathPrefix();
  for (uint32_t i = 0; i < netlist.NamedNetCount(); ++i)
    visit(&netlist.Nets()[i], path, netlist.NetName(i));
  const NamePool& names = netlist.Names();
  for (const auto& alias : netlist.Aliases())
    visit(&netlist.Nets()[alias.second], path, names.View(alias.first));
}

void ForEachNetName(const Design* design, bool deep, const NetNameVisitor& visit) {
  if (!design) return;
  const Netlist* top = design->GetNetlist();
  ForEachNetName(*top, visit);
  if (!deep) return;
  const Elaboration* elaboration = top->GetElaboration();
  if (!elaboration || elaboration->Top() != design) return;
  for (const Netlist* instance : elaboration->Instances()) ForEachNetName(*instance, visit);
}

}  // namespace cdm
