// The sink of the reader's parsing thread: records the statements into
// batches and passes each full batch on through the queue.
#pragma once

#include <memory>
#include <string>

#include "verilog/BatchQueue.h"
#include "verilog/VerilogAst.h"

namespace verilog {

class StatementRecorder : public StatementSink {
 public:
  explicit StatementRecorder(BatchQueue& queue) : queue_(queue) {}

  bool BeginModule(ModuleHeaderAst& header) override;
  bool Declare(DeclAst& decl, const std::vector<AttrAst>& attrs) override;
  bool Instance(InstanceAst& instance) override;
  bool Assign(AssignAst& assign) override;
  bool EndModule(uint32_t line) override;
  void Checkpoint(size_t offset, size_t total) override;
  // Refused only once the builder has stopped; the builder's own complaint
  // is the one reported then.
  const std::string& Error() const override { return error_; }

  // Passes on what is recorded and not yet passed.
  void Flush();

 private:
  // A batch to record into, or false once the builder has stopped.
  bool Ready();
  void PassOnWhenFull();

  // Statements a batch holds: large enough that the hand-over costs
  // nothing, small enough that a few in flight take little memory.
  static constexpr size_t kBatchStatements = 512;

  BatchQueue& queue_;
  std::unique_ptr<StatementBatch> batch_;
  std::string error_;
};

}  // namespace verilog
