#include "verilog/ParseStatements.h"

#include <exception>
#include <memory>
#include <system_error>
#include <thread>

#include "verilog/BatchQueue.h"
#include "verilog/NumberingSink.h"
#include "verilog/StatementRecorder.h"
#include "verilog/VerilogLexer.h"

namespace verilog {
namespace {

bool ParseOnThisThread(std::string_view text, StatementSink& sink, ParseError& error) {
  VerilogLexer lexer(text);
  VerilogParser parser(lexer, sink);
  return parser.Parse(error);
}

// Batches going round between the two threads.
constexpr size_t kBatchesInFlight = 8;

// The parsing thread: started on construction, stopped and joined on
// destruction, however the building side ends (an error, an exception).
class ParsingThread {
 public:
  ParsingThread(std::string_view text, BatchQueue& queue)
      : queue_(queue), recorder_(queue), thread_([this, text] { Run(text); }) {}
  ~ParsingThread() {
    queue_.Stop();
    thread_.join();
  }
  ParsingThread(const ParsingThread&) = delete;
  ParsingThread& operator=(const ParsingThread&) = delete;

  // Once the queue is closed: the parser's own outcome, or what it threw.
  bool Parsed() const { return parsed_; }
  const ParseError& Error() const { return error_; }
  const std::exception_ptr& Thrown() const { return thrown_; }

 private:
  void Run(std::string_view text) {
    try {
      parsed_ = ParseOnThisThread(text, recorder_, error_);
      recorder_.Flush();
    } catch (...) {
      thrown_ = std::current_exception();
    }
    queue_.Close();
  }

  BatchQueue& queue_;
  StatementRecorder recorder_;
  bool parsed_ = false;
  ParseError error_;
  std::exception_ptr thrown_;
  std::thread thread_;  // last: starts once the members above are made
};

bool ParseInTwoThreads(std::string_view text, StatementSink& sink, ParseError& error) {
  BatchQueue queue(kBatchesInFlight);
  std::unique_ptr<ParsingThread> started;
  try {
    started = std::make_unique<ParsingThread>(text, queue);
  } catch (const std::system_error&) {
    // No thread to be had (a limit of the system): one does the work.
    return ParseOnThisThread(text, sink, error);
  }
  const ParsingThread& parsing = *started;
  uint32_t line = 0;
  while (std::unique_ptr<StatementBatch> batch = queue.TakeFull()) {
    if (!batch->Replay(sink, line)) {
      // Earlier in the file than anything the parser may have found since.
      error.line = sink.ErrorLine() ? sink.ErrorLine() : line;
      error.message = sink.Error();
      return false;
    }
    queue.PutEmpty(std::move(batch));
  }
  // The queue is closed: the parser is done, and what it left was written
  // before it closed the queue.
  if (parsing.Thrown()) std::rethrow_exception(parsing.Thrown());
  if (parsing.Parsed()) return true;
  error = parsing.Error();
  return false;
}

}  // namespace

bool ParseStatements(std::string_view text, StatementSink& sink, bool two_threads,
                     ParseError& error) {
  NumberingSink numbering(sink);
  if (!two_threads) return ParseOnThisThread(text, numbering, error);
  return ParseInTwoThreads(text, numbering, error);
}

}  // namespace verilog
