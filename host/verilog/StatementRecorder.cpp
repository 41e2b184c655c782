#include "verilog/StatementRecorder.h"

#include "verilog/NameNumbering.h"

namespace verilog {

bool StatementRecorder::Ready() {
  if (!batch_) batch_ = queue_.TakeEmpty();
  if (batch_) return true;
  error_ = "the read was stopped";
  return false;
}

void StatementRecorder::PassOnWhenFull() {
  if (batch_->Size() >= kBatchStatements) queue_.PutFull(std::move(batch_));
}

bool StatementRecorder::BeginModule(ModuleHeaderAst& header) {
  if (!Ready()) return false;
  batch_->AddBeginModule(header);
  PassOnWhenFull();
  return true;
}

bool StatementRecorder::Declare(DeclAst& decl, const std::vector<AttrAst>& attrs) {
  if (!Ready()) return false;
  batch_->AddDeclare(decl, attrs);
  PassOnWhenFull();
  return true;
}

bool StatementRecorder::Instance(InstanceAst& instance) {
  if (!Ready()) return false;
  NameNumbering::Hash(instance);
  batch_->AddInstance(instance);
  PassOnWhenFull();
  return true;
}

bool StatementRecorder::Assign(AssignAst& assign) {
  if (!Ready()) return false;
  batch_->AddAssign(assign);
  PassOnWhenFull();
  return true;
}

bool StatementRecorder::EndModule(uint32_t line) {
  if (!Ready()) return false;
  batch_->AddEndModule(line);
  PassOnWhenFull();
  return true;
}

void StatementRecorder::Checkpoint(size_t offset, size_t total) {
  if (Ready()) batch_->SetOffset(offset, total);
}

void StatementRecorder::Flush() {
  if (batch_ && batch_->Size() > 0) queue_.PutFull(std::move(batch_));
}

}  // namespace verilog
