// Numbers the net names of each statement (NameNumbering) and passes the
// statement on to the next sink.
#pragma once

#include <string>

#include "verilog/NameNumbering.h"
#include "verilog/VerilogAst.h"

namespace verilog {

class NumberingSink : public StatementSink {
 public:
  explicit NumberingSink(StatementSink& next) : next_(next) {}

  bool BeginModule(ModuleHeaderAst& header) override;
  bool Declare(DeclAst& decl, const std::vector<AttrAst>& attrs) override;
  bool Instance(InstanceAst& instance) override;
  bool Assign(AssignAst& assign) override;
  bool EndModule(uint32_t line) override { return next_.EndModule(line); }
  void Checkpoint(size_t offset, size_t total) override { next_.Checkpoint(offset, total); }
  void LookAhead(const DeclAst& decl) override { numbering_.Prefetch(decl); }
  void LookAhead(const ConnAst* conns, size_t count) override { numbering_.Prefetch(conns, count); }
  const std::string& Error() const override { return next_.Error(); }
  uint32_t ErrorLine() const override { return next_.ErrorLine(); }

 private:
  StatementSink& next_;
  NameNumbering numbering_;
};

}  // namespace verilog
