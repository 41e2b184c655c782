// The names nets go by: each named net of a netlist under its own name,
// and each name an assign merged into a net, which stands for that net.
// What get_nets matches patterns against.
#pragma once

#include <functional>
#include <string_view>

namespace cdm {

class Design;
class Net;
class Netlist;

// Calls `visit` with every net of the design's own netlist, the path of
// its netlist ("" at the top, "u1/u2/" below) and its local name, then with
// every merged-away name and its net; with `deep` the same for each netlist
// below, in the order a depth-first walk reaches them. The tie nets of bare
// constants are left out.
using NetNameVisitor = std::function<void(Net* net, std::string_view path, std::string_view name)>;
void ForEachNetName(const Design* design, bool deep, const NetNameVisitor& visit);
// The same for one netlist: its named nets, then its merged-away names.
void ForEachNetName(const Netlist& netlist, const NetNameVisitor& visit);

}  // namespace cdm
