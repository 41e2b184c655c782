// The hand-over between the reader's parsing thread and its building one:
// a fixed set of statement batches going round, full ones to the builder,
// empty ones back to the parser, so that the parser runs at most a few
// batches ahead and memory stays bounded.
#pragma once

#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>

#include "verilog/StatementBatch.h"

namespace verilog {

class BatchQueue {
 public:
  explicit BatchQueue(size_t batches);

  // The parser's side. An empty batch to fill: waits for one; null once
  // the builder has stopped.
  std::unique_ptr<StatementBatch> TakeEmpty();
  // A filled batch for the builder; dropped once the builder has stopped.
  void PutFull(std::unique_ptr<StatementBatch> batch);
  // No batch follows.
  void Close();

  // The builder's side. The next filled batch in order: waits for one; null
  // when the parser has closed the queue and every batch was taken.
  std::unique_ptr<StatementBatch> TakeFull();
  // A batch done with, emptied for the parser.
  void PutEmpty(std::unique_ptr<StatementBatch> batch);
  // The builder takes no more: the parser's waits end.
  void Stop();

 private:
  std::mutex mutex_;
  std::condition_variable empty_ready_, full_ready_;
  std::deque<std::unique_ptr<StatementBatch>> empty_, full_;
  bool closed_ = false;
  bool stopped_ = false;
};

}  // namespace verilog
