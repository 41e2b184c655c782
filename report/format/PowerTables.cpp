// The power tables the host prints through: PowerReport behind the host's
// interface, offered to the host when the module is loaded.
#include "hostapi/cdm/PowerTables.h"

#include "format/PowerReport.h"

namespace {

class ModulePowerTables : public cdm::PowerTables {
 public:
  ModulePowerTables() { cdm::SetPowerTables(this); }
  ~ModulePowerTables() override {
    if (cdm::GetPowerTables() == this) cdm::SetPowerTables(nullptr);
  }
  void PrintPowerInfo(int digits, cdm::PowerResult total, cdm::PowerResult sequential,
                      cdm::PowerResult combinational, cdm::PowerResult macro,
                      cdm::PowerResult pad) override {
    PowerReport(digits).PrintPowerInfo(total, sequential, combinational, macro, pad);
  }
  void PrintInstsPowerInfo(int digits,
                           const std::map<const cdm::Cell*, cdm::PowerResult>& cells) override {
    PowerReport(digits).PrintInstsPowerInfo(cells);
  }
  void PrintNetsPowerInfo(int digits,
                          const std::map<const cdm::Net*, cdm::SwitchPowerRecord>& nets) override {
    PowerReport(digits).PrintNetsPowerInfo(nets);
  }
};

ModulePowerTables module_power_tables;

}  // namespace
