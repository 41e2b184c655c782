// report_switching_activity: how many nets of the current design got their
// activity from each origin, and the figures of the nets named.
#include <array>

#include "cmdlib/HostCommands.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/Net.h"
#include "hostapi/msg/Msg.h"
#include "power/ActivityStore.h"
#include "sdc/SdcCommand.h"

namespace power {
namespace {

using K = query::ObjectKind;

class ReportSwitchingActivityCmd : public sta::sdc::SdcCommand {
 public:
  ReportSwitchingActivityCmd()
      : SdcCommand("report_switching_activity",
                   "Report where the nets' switching activity came from") {
    Objects("net_list", "Nets whose toggle rate and probability to list", true);
  }

 protected:
  bool Run(sta::sdc::SdcStore& store) override {
    std::vector<query::ObjectRef> objects;
    if (Has("net_list") && !ObjectsOf("net_list", {K::kNet}, objects)) return false;
    ActivityStore& activity = ActivityStore::Current();
    if (!activity.Update()) return Fail("no timed design");
    std::array<uint32_t, kActivityOriginCount> counts{};
    for (uint32_t id = 1; id <= activity.FlatNetCount(); ++id)
      ++counts[static_cast<size_t>(activity.OfFlatNet(id).origin)];

    msg::Print_Result("Switching activity of design '%s': %u nets", store.DesignName().c_str(),
                      activity.FlatNetCount());
    msg::InsertEmptyLine();
    msg::Print_Result("Origin            Nets");
    msg::Print_Result("----------------------");
    for (int origin = 0; origin < kActivityOriginCount; ++origin)
      msg::Print_Result("%-12s %9u", cdm::OriginToString(static_cast<ActivityOrigin>(origin)),
                        counts[origin]);
    if (objects.empty()) return true;

    msg::InsertEmptyLine();
    msg::Print_Result("Net                            Toggle rate   Static prob.  Origin");
    msg::Print_Result("                               (1/ns)");
    msg::Print_Result("------------------------------------------------------------------");
    for (const query::ObjectRef& ref : objects) {
      const cdm::Net* net = static_cast<const cdm::Net*>(ref.object);
      const NetActivity& figures = activity.OfNet(net);
      msg::Print_Result("%-30s %11.5f %14.4f  %s", net->GetFullName().c_str(), figures.rate * 1e-9,
                        figures.probability, cdm::OriginToString(figures.origin));
    }
    return true;
  }
};

cmdlib::HostCommandRegistrar registrar([] { new ReportSwitchingActivityCmd(); });

}  // namespace
}  // namespace power
