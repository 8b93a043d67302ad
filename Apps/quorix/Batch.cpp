#include "Batch.hpp"

#include "Answer.hpp"
#include "CommandText.hpp"
#include "LineReader.hpp"
#include "Request.hpp"

#include <new>
#include <utility>

namespace Command {
namespace {

constexpr std::u16string_view NoMemoryForRequest =
    u"There is not enough memory for this request. Make it shorter, or allow more memory.";

}  // namespace

void Batch::AnswerLine(std::string_view line) {
  id_ = {};
  readable_ = false;
  const std::size_t before = answers_.size();
  try {
    WriteLine(line);
  } catch (const Host::JsonError& error) {
    Refuse("InvalidJson", TW::UniString::FromUtf8(MakeText(CommandText::NoJson, error.what())));
  } catch (const RequestError& error) {
    Refuse(error.GetName(), TW::UniString::FromUtf8(error.what()));
  } catch (...) {
    RefuseAfter(before);
  }
  answers_ += '\n';
}

void Batch::RefuseLongLine() {
  id_ = {};
  Refuse("LineTooLong", TW::UniString::FromUtf8(MakeText(CommandText::LongerThan, LineReader::DefaultLongestLine)));
  answers_ += '\n';
}

void Batch::WriteLine(std::string_view line) {
  const Host::JsonValue request = document_.Read(line);
  id_ = ReadId(request);
  ReadRequest(request, defaults_, formula_, environment_);
  readable_ = true;
  evaluation_ = Evaluate(formula_, environment_);
  if (evaluation_.failure) status_ = Status::FormulaFailed;
  WriteEvaluation();
  evaluation_ = {};
}

void Batch::Refuse(std::string_view name, std::u16string_view message) {
  status_ = Status::FormulaFailed;
  Host::JsonWriter writer(answers_);
  WriteRefusal(writer, id_, name, message);
}

// To be called while an exception is caught that came while an answer was made, mostly for want of memory. What was
// written of the answer goes.
void Batch::RefuseAfter(std::size_t before) {
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

void Batch::CutTo(std::size_t size) {
  answers_.resize(size);
  answers_.shrink_to_fit();
}

void Batch::WriteEvaluation() {
  Host::JsonWriter writer(answers_);
  WriteAnswer(writer, id_, evaluation_, environment_);
}

}  // namespace Command
