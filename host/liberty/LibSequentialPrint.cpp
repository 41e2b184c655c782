// State patterns and the table text of cells with ff / latch groups.
#include <string>
#include <vector>

#include "hostapi/cdm/LibCell.h"

std::vector<std::string> smartFullPermutation(int count, bool numeric) {
  const char low = numeric ? '0' : 'L';
  const char high = numeric ? '1' : 'H';
  if (count <= 0) return {numeric ? std::string("0") : std::string()};
  // Beyond 24 symbols only the low 24 vary: the whole list would not fit
  // in memory.
  const int width = count > 24 ? 24 : count;
  std::vector<std::string> patterns;
  patterns.reserve(size_t{1} << width);
  for (uint32_t value = 0; value < (uint32_t{1} << width); ++value) {
    std::string pattern(count, low);
    for (int bit = 0; bit < width; ++bit) {
      if (value & (uint32_t{1} << bit)) pattern[count - 1 - bit] = high;
    }
    patterns.push_back(std::move(pattern));
  }
  return patterns;
}

namespace cdm {

namespace {

const std::string& NameOf(const LibPort* port) {
  return port ? port->Name() : Object::EmptyName();
}

void PrintFunction(std::ostream& os, const char* label, const LibBoolFuncExpr& function) {
  if (!function.IsEmpty()) os << "    " << label << ": " << function.GetFuncStr() << "\n";
}

// The next state of the group's first state port over the ports of its data
// function, as L/H per input pattern (most significant port first).
std::string NextStateColumn(const LibBoolFuncExpr& data, bool full, const std::string& pad,
                            bool inverted) {
  const auto& ports = data.GetFuncPorts();
  const int count = static_cast<int>(ports.size());
  std::string text;
  if (count > 16) return text;
  for (const std::string& pattern : smartFullPermutation(count, true)) {
    bool value = data.Evaluate([&](const LibPort* port) {
      for (int i = 0; i < count; ++i) {
        if (ports[i] == port) return pattern[i] == '1' ? 1 : 0;
      }
      return 0;
    });
    if (inverted) value = !value;
    if (full) {
      text += pad + pattern + "    " + (value ? "H" : "L") + "\n";
    } else {
      text += value ? "H" : "L";
    }
  }
  return text;
}

}  // namespace

void LibCell::PrintStateTable(std::vector<LibPort*> outputs,
                              const std::vector<LibPort*>& second_outputs, std::ostream& os,
                              bool full, bool swapped) const {
  if (outputs.empty()) return;
  const LibBoolFuncExpr* function = outputs.front()->GetStateFunction();
  if (!function) function = outputs.front()->GetFunction();
  const LibSequential* group = nullptr;
  if (function) {
    for (const LibPort* port : function->GetFuncPorts()) {
      if ((group = GetSequentialFromOutputPort(port))) break;
    }
  }
  if (!group) return;
  os << "  " << (group->IsLatch() ? "LATCH" : "FF") << "(" << NameOf(group->first) << ", "
     << NameOf(group->second) << "):\n";
  PrintFunction(os, group->IsLatch() ? "ENABLE" : "CLOCKED_ON", group->clock);
  PrintFunction(os, "CLOCKED_ON_ALSO", group->clock_also);
  PrintFunction(os, group->IsLatch() ? "DATA_IN" : "NEXT_STATE", group->data);
  PrintFunction(os, "CLEAR", group->clear);
  PrintFunction(os, "PRESET", group->preset);
  if (!group->clear_preset_var1.empty())
    os << "    CLEAR_PRESET_VAR1: " << group->clear_preset_var1 << "\n";
  if (!group->clear_preset_var2.empty())
    os << "    CLEAR_PRESET_VAR2: " << group->clear_preset_var2 << "\n";
  auto print_outputs = [&](const std::vector<LibPort*>& ports, const LibPort* state,
                           bool inverted) {
    for (const LibPort* port : ports) {
      os << "  PIN(" << port->Name() << "): " << NameOf(state) << "\n";
      std::vector<std::string> names;
      for (const LibPort* input : group->data.GetFuncPorts()) names.push_back(input->Name());
      os << "    TABLE(";
      for (size_t i = 0; i < names.size(); ++i) os << (i ? ", " : "") << names[i];
      os << "): ";
      if (full) os << "\n";
      os << NextStateColumn(group->data, full, "    ", inverted);
      if (!full) os << "\n";
      os << "  END_PIN " << port->Name() << ";\n";
    }
  };
  // Ports that came in through the second state port read its inverse.
  print_outputs(outputs, swapped ? group->second : group->first, swapped);
  print_outputs(second_outputs, group->second, true);
}

}  // namespace cdm
