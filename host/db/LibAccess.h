// The few questions the linker and the design objects ask of the
// technology libraries, kept in one place.
#pragma once

#include <string>
#include <vector>

namespace cdm {

class LibCell;
class Port;
class Reference;
class Root;

// The library cell `name` from the libraries in the order they were read,
// then from the generic library; null if none has it. `ref` receives the
// cell as a Reference.
LibCell* FindLibCellForLink(Root* root, const std::string& name, Reference** ref);

// The ports of a library cell that become pins of its instances, in the
// library's order, as design-side ports.
void LibCellPinPorts(LibCell* cell, std::vector<Port*>& ports);

}  // namespace cdm
