#include "power/ActivityFileResult.h"

#include "msg/HostMsg.h"

namespace power {

void AnnotateFromFile(const std::string& command, const std::string& file,
                      const std::string& design, const ActivityFileResult& result,
                      ActivityAnnotations& annotations) {
  for (const auto& [net, setting] : result.nets) annotations.SetNet(net, setting);
  if (result.missing)
    msg::HostMsg(POWER_005,
                 {command, std::to_string(result.missing), file, design, result.first_missing});
  msg::HostMsg(POWER_006, {command, std::to_string(result.flat_nets), design, file});
}

}  // namespace power
