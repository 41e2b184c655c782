// The activity at the output of a Boolean function whose inputs switch
// independently of each other, worked out over the function as the
// library writes it: each operator takes its operands as independent, so
// that an input written twice ("(A&!B) | (!A&B)") counts in each place.
// That is how the established timing engines propagate activity, and
// what our figures are checked against (docs/power.md).
#pragma once

#include <vector>

namespace cdm {
class LibBoolFuncExpr;
}

namespace power {

struct Activity {
  double probability = 0.0;  // that the value is 1
  double density = 0.0;      // transitions per second
};

// The activity of node `node` of `function` (its root when -1), where
// `inputs[i]` is the activity of the function's i-th port (GetFuncPorts
// order). An operator over operands a, b: NOT (1 - pa, da); AND (pa pb,
// da pb + db pa); OR (pa + pb - pa pb, da (1 - pb) + db (1 - pa)); XOR
// (pa (1 - pb) + pb (1 - pa), da pa (1 - pb) + db (1 - pa) pb), the
// engines' figure for it, not the XOR's own density da + db.
Activity FunctionActivity(const cdm::LibBoolFuncExpr& function, const std::vector<Activity>& inputs,
                          int node = -1);

}  // namespace power
