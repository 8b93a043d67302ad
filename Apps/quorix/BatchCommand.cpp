#include "Answer.hpp"
#include "CommandEntry.hpp"
#include "CommonOptions.hpp"
#include "Host/Json/JsonDocument.hpp"
#include "LineReader.hpp"
#include "Request.hpp"

#include <cstring>
#include <new>
#include <unistd.h>

namespace Command {
namespace {

Status Run(const Call& call);

const CommandEntry entry("batch", "", "Answers requests in JSON, one a line, from standard input", Run);

constexpr std::u16string_view NoMemoryForRequest =
    u"There is not enough memory for this request. Make it shorter, or allow more memory.";

/// Answers one line after the other, with memory that it uses again.
class Batch {
 public:
  Batch(const Settings& defaults, Output& results) : defaults_(defaults), results_(results), environment_(defaults) {}

  void AnswerLine(std::string_view line) {
    id_ = {};
    readable_ = false;
    const std::size_t before = results_.GetBuffer().size();
    try {
      WriteLine(line);
    } catch (const Host::JsonError& error) {
      Refuse("InvalidJson", TW::UniString::FromUtf8(std::string("This line is no JSON: ") + error.what()));
    } catch (const RequestError& error) {
      Refuse(error.GetName(), TW::UniString::FromUtf8(error.what()));
    } catch (...) {
      RefuseAfter(before);
    }
    results_.GetBuffer() += '\n';
    results_.FlushWhenLarge();
  }

  void RefuseLongLine() {
    id_ = {};
    Refuse("LineTooLong", TW::UniString::Printf(u"This line is longer than %T bytes.",
                                                TW::UniString::FromInteger(LineReader::DefaultLongestLine)));
    results_.GetBuffer() += '\n';
    results_.FlushWhenLarge();
  }

  Status GetStatus() const { return status_; }

 private:
  void WriteLine(std::string_view line) {
    const Host::JsonValue request = document_.Read(line);
    id_ = ReadId(request);
    ReadRequest(request, defaults_, formula_, environment_);
    readable_ = true;
    evaluation_ = Evaluate(formula_, environment_);
    if (evaluation_.failure) status_ = Status::FormulaFailed;
    WriteEvaluation();
    evaluation_ = {};
  }

  void Refuse(std::string_view name, std::u16string_view message) {
    status_ = Status::FormulaFailed;
    Host::JsonWriter writer(results_.GetBuffer());
    WriteRefusal(writer, id_, name, message);
  }

  // To be called while an exception is caught that came while an answer was made, mostly for want of memory. What was
  // written of the answer goes.
  void RefuseAfter(std::size_t before) {
    Failure failure = DescribeCaughtException();
    CutTo(before);
    if (!readable_) return Refuse("OutOfMemory", NoMemoryForRequest);
    status_ = Status::FormulaFailed;
    evaluation_.value = QX::ExpressionValue();
    evaluation_.failure = std::move(failure);
    try {
      WriteEvaluation();
    } catch (const std::bad_alloc&) {
      CutTo(before);
      evaluation_.expression = QX::Expression();
      WriteEvaluation();
    }
  }

  void CutTo(std::size_t size) {
    results_.GetBuffer().resize(size);
    results_.GetBuffer().shrink_to_fit();
  }

  void WriteEvaluation() {
    Host::JsonWriter writer(results_.GetBuffer());
    WriteAnswer(writer, id_, evaluation_, environment_);
  }

  const Settings& defaults_;
  Output& results_;
  Host::JsonDocument document_;
  TW::UniString formula_;
  Environment environment_;
  Evaluation evaluation_;
  std::string_view id_;    ///< of the line that is being answered
  bool readable_ = false;  ///< whether that line is a request
  Status status_ = Status::Success;
};

Status ReadLines(const Settings& defaults, const Call& call) {
  Batch batch(defaults, call.results);
  LineReader reader(STDIN_FILENO, [&call] { call.results.Flush(); });
  std::string_view line;
  LineReader::Outcome outcome = reader.Next(line);
  for (; outcome == LineReader::Outcome::Line || outcome == LineReader::Outcome::TooLong; outcome = reader.Next(line)) {
    if (outcome == LineReader::Outcome::Line) {
      batch.AnswerLine(line);
    } else {
      batch.RefuseLongLine();
    }
    if (call.results.GetError() != 0) break;
  }
  if (outcome != LineReader::Outcome::Failed) return batch.GetStatus();
  std::string& complaint = call.diagnostics.GetBuffer();
  complaint.append("quorix: Standard input could not be read: ").append(std::strerror(reader.GetError())).append(".\n");
  return Status::Unusable;
}

Status Run(const Call& call) {
  CommonOptions common;
  OptionTable options;
  common.AddTo(options);
  const auto operands = entry.Take(call, options);
  if (!operands) return Status::Success;
  if (!operands->empty()) throw UsageError("The command 'batch' reads standard input and takes no formulas.");
  if (common.HasProperties()) throw UsageError("The command 'batch' takes properties from its requests, not by --set.");
  common.LimitMemory();
  return ReadLines(common.GetSettings({}), call);
}

}  // namespace
}  // namespace Command
