#include "verilog/NumberingSink.h"

namespace verilog {

bool NumberingSink::BeginModule(ModuleHeaderAst& header) {
  numbering_.BeginModule();
  for (DeclAst& decl : header.ansi_decls) numbering_.Number(decl);
  return next_.BeginModule(header);
}

bool NumberingSink::Declare(DeclAst& decl, const std::vector<AttrAst>& attrs) {
  numbering_.Number(decl);
  return next_.Declare(decl, attrs);
}

bool NumberingSink::Instance(InstanceAst& instance) {
  numbering_.Number(instance);
  return next_.Instance(instance);
}

bool NumberingSink::Assign(AssignAst& assign) {
  numbering_.Number(assign.lhs);
  numbering_.Number(assign.rhs);
  return next_.Assign(assign);
}

}  // namespace verilog
