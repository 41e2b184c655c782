// set_units and set_hierarchy_separator.
#include "cmdlib/HostCommands.h"
#include "sdc/SdcCommand.h"

namespace sta::sdc {
namespace {

class SetUnitsCmd : public SdcCommand {
 public:
  SetUnitsCmd()
      : SdcCommand("set_units", "Set the units in which the constraints give their values") {
    for (int q = 0; q < SdcUnits::kQuantityCount; ++q)
      Text(SdcUnits::OptionName(static_cast<SdcUnits::Quantity>(q)),
           "Unit, such as ns, 1ps, pF, fF, kOhm, V, mA, mW");
  }

 protected:
  bool Run(SdcStore& store) override {
    // All are checked before any is taken: a bad unit changes nothing.
    SdcUnits units = store.Units();
    for (int q = 0; q < SdcUnits::kQuantityCount; ++q) {
      const auto quantity = static_cast<SdcUnits::Quantity>(q);
      const char* option = SdcUnits::OptionName(quantity);
      std::string error;
      if (Has(option) && !units.Set(quantity, TextOf(option), error)) return Fail(error);
    }
    store.Units() = units;
    return true;
  }
};

class SetHierarchySeparatorCmd : public SdcCommand {
 public:
  SetHierarchySeparatorCmd()
      : SdcCommand("set_hierarchy_separator",
                   "Set the character that separates levels in the names that follow") {
    Text("separator", "One of / . | ^ # @", true);
  }

 protected:
  bool Run(SdcStore& store) override {
    if (!Need("separator")) return false;
    const std::string separator = TextOf("separator");
    if (separator.size() != 1 || std::string("/.|^#@").find(separator) == std::string::npos)
      return Fail("'" + separator + "' is no hierarchy separator (/ . | ^ # @)");
    store.SetHierarchySeparator(separator[0]);
    return true;
  }
};

cmdlib::HostCommandRegistrar registrar([] {
  new SetUnitsCmd();
  new SetHierarchySeparatorCmd();
});

}  // namespace
}  // namespace sta::sdc
