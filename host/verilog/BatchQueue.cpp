#include "verilog/BatchQueue.h"

namespace verilog {

BatchQueue::BatchQueue(size_t batches) {
  for (size_t i = 0; i < batches; ++i) empty_.push_back(std::make_unique<StatementBatch>());
}

std::unique_ptr<StatementBatch> BatchQueue::TakeEmpty() {
  std::unique_lock<std::mutex> lock(mutex_);
  empty_ready_.wait(lock, [this] { return stopped_ || !empty_.empty(); });
  if (stopped_) return nullptr;
  std::unique_ptr<StatementBatch> batch = std::move(empty_.front());
  empty_.pop_front();
  return batch;
}

void BatchQueue::PutFull(std::unique_ptr<StatementBatch> batch) {
  {
    std::lock_guard<std::mutex> lock(mutex_);
    if (stopped_) return;
    full_.push_back(std::move(batch));
  }
  full_ready_.notify_one();
}

void BatchQueue::Close() {
  {
    std::lock_guard<std::mutex> lock(mutex_);
    closed_ = true;
  }
  full_ready_.notify_one();
}

std::unique_ptr<StatementBatch> BatchQueue::TakeFull() {
  std::unique_lock<std::mutex> lock(mutex_);
  full_ready_.wait(lock, [this] { return closed_ || !full_.empty(); });
  if (full_.empty()) return nullptr;
  std::unique_ptr<StatementBatch> batch = std::move(full_.front());
  full_.pop_front();
  return batch;
}

void BatchQueue::PutEmpty(std::unique_ptr<StatementBatch> batch) {
  batch->Clear();
  {
    std::lock_guard<std::mutex> lock(mutex_);
    empty_.push_back(std::move(batch));
  }
  empty_ready_.notify_one();
}

void BatchQueue::Stop() {
  {
    std::lock_guard<std::mutex> lock(mutex_);
    stopped_ = true;
  }
  empty_ready_.notify_all();
}

}  // namespace verilog
