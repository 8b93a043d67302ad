#include "Answer.hpp"

#include "Host/Json/FailureJson.hpp"
#include "Host/Json/ValueJson.hpp"
#include "Host/NodeSpan.hpp"
#include "Quorix/PropertyDirectReferenceCollector.hpp"

#include <algorithm>

namespace Command {
namespace {

void WriteId(Host::JsonWriter& writer, std::string_view id) {
  if (id.empty()) return;
  writer.WriteKey("id");
  writer.WriteSource(id);
}

void WriteReferences(Host::JsonWriter& writer, const TW::HashSet<TW::Guid>& references) {
  writer.WriteKey("references");
  writer.BeginArray();
  for (const TW::Guid& propertyId : references) writer.WriteText(propertyId.ToUniString());
  writer.EndArray();
}

// The lowest version that knows every node, and the references, in one walk.
QX::VersionNumber InspectTree(const QX::ExpressionNode& root, QX::IExpressionReferenceCollector& references) {
  QX::VersionNumber version = 1;
  root.EnumerateRecursive([&](const QX::ExpressionNode* node) {
    version = std::max(version, node->GetIntroductionVersion());
    node->CollectReferences(references);
  });
  return version;
}

// What is told of every formula that could be read, whatever became of its value.
void WriteFacts(Host::JsonWriter& writer, const QX::Expression& expression, const Environment& environment) {
  QX::PropertyDirectReferenceCollector references;
  const QX::VersionNumber version = InspectTree(*expression.GetRoot(), references);
  WriteReferences(writer, references.GetReferencedProperties());
  writer.WriteKey("evaluable");
  writer.WriteInteger(static_cast<int>(expression.GetEvaluableStatus(environment)));
  writer.WriteKey("version");
  writer.WriteInteger(version);
}

void WriteOutcome(Host::JsonWriter& writer, const Evaluation& evaluation, const QX::ExpressionString& text,
                  const Environment& environment) {
  if (evaluation.failure) {
    writer.WriteKey("error");
    WriteFailure(writer, *evaluation.failure, text);
  } else {
    writer.WriteKey("value");
    Host::WriteValue(writer, evaluation.value);
    WriteDisplay(writer, evaluation.value, environment);
  }
}

}  // namespace

void WriteDisplay(Host::JsonWriter& writer, const QX::ExpressionValue& value, const Environment& environment) {
  writer.WriteKey("display");
  if (const auto display = environment.GetDisplay().Find(value)) {
    writer.WriteText(*display);
  } else {
    writer.WriteNull();
  }
}

void WriteFailure(Host::JsonWriter& writer, const Failure& failure, const QX::ExpressionString& text) {
  const bool isSyntax = failure.stage == Failure::Stage::Syntax;
  Host::FailureFacts facts{isSyntax ? "syntax" : "evaluation", failure.name, failure.index, failure.message};
  if (isSyntax) facts.place = failure.place;
  if (failure.source != nullptr) {
    facts.place = text.GetNodeRange(failure.source);
    facts.span = Host::GetSpan(text, *failure.source);
  }
  Host::WriteFailure(writer, facts);
}

void WriteAnswer(Host::JsonWriter& writer, std::string_view id, const Evaluation& evaluation,
                 const Environment& environment) {
  writer.BeginObject();
  WriteId(writer, id);
  const bool readable = evaluation.expression.IsValid();
  const QX::ExpressionString text = evaluation.expression.GetExpressionString(environment.GetSettings().renderLocale);
  if (readable) {
    writer.WriteKey("text");
    writer.WriteText(text.GetFullString());
  }
  WriteOutcome(writer, evaluation, text, environment);
  if (readable) WriteFacts(writer, evaluation.expression, environment);
  writer.EndObject();
}

void WriteRefusal(Host::JsonWriter& writer, std::string_view id, std::string_view name, std::u16string_view message) {
  writer.BeginObject();
  WriteId(writer, id);
  writer.WriteKey("error");
  Host::WriteFailure(writer, {"request", TW::UniString::FromUtf8(name), 0, TW::UniString(message)});
  writer.EndObject();
}

}  // namespace Command
