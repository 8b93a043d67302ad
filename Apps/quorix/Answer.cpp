#include "Answer.hpp"

#include "DisplayText.hpp"
#include "Quorix/PropertyDirectReferenceCollector.hpp"

#include <algorithm>

namespace Command {
namespace {

void WriteKind(JsonWriter& writer, std::string_view kind) {
  writer.WriteKey("kind");
  writer.WriteName(kind);
}

// Writes that the value is undefined, or gives false.
bool WriteUndefined(JsonWriter& writer, const QX::ExpressionValue& value) {
  if (!value.IsUserUndefined()) return false;
  writer.WriteKey("undefined");
  writer.WriteBool(true);
  return true;
}

void WriteTextValue(JsonWriter& writer, const QX::ExpressionValue& value) {
  WriteKind(writer, "text");
  if (WriteUndefined(writer, value)) return;
  writer.WriteKey("value");
  writer.WriteText(value.GetAsString());
}

void WriteLogicalValue(JsonWriter& writer, const QX::ExpressionValue& value) {
  WriteKind(writer, "logical");
  if (WriteUndefined(writer, value)) return;
  writer.WriteKey("value");
  writer.WriteBool(value.GetAsBool());
}

void WriteIntegerValue(JsonWriter& writer, const QX::ExpressionValue& value) {
  WriteKind(writer, "integer");
  if (WriteUndefined(writer, value)) return;
  writer.WriteKey("value");
  writer.WriteInteger(static_cast<long long>(value.GetIntOrNumVariantValue()));
}

void WriteNumberValue(JsonWriter& writer, const QX::ExpressionValue& value) {
  WriteKind(writer, "number");
  if (!WriteUndefined(writer, value)) {
    writer.WriteKey("value");
    writer.WriteNumber(value.GetIntOrNumVariantValue());
  }
  writer.WriteKey("length");
  writer.WriteInteger(value.GetUnitExponents().GetLengthExponent());
  writer.WriteKey("angle");
  writer.WriteInteger(value.GetUnitExponents().GetAngleExponent());
}

bool IsInteger(const QX::ExpressionValue& value) {
  return value.IsNonUnitNumericValue() && value.CloneContainedVariant()->GetKind() == TW::DynamicValue::Kind::Integer;
}

void WriteRange(JsonWriter& writer, TW::Range<unsigned int> range) {
  writer.WriteKey("begin");
  writer.WriteInteger(range.begin);
  writer.WriteKey("end");
  writer.WriteInteger(range.end);
}

void WriteSource(JsonWriter& writer, const QX::ExpressionNode& source, const QX::ExpressionString& text) {
  WriteRange(writer, text.GetNodeRange(&source));
  const TW::Range<unsigned int> span = GetSpan(text, source);
  writer.WriteKey("span");
  writer.BeginArray();
  writer.WriteInteger(span.begin);
  writer.WriteInteger(span.end);
  writer.EndArray();
}

void WriteStage(JsonWriter& writer, std::string_view stage) {
  writer.WriteKey("stage");
  writer.WriteName(stage);
}

void WriteId(JsonWriter& writer, std::string_view id) {
  if (id.empty()) return;
  writer.WriteKey("id");
  writer.WriteSource(id);
}

void WriteReferences(JsonWriter& writer, const TW::HashSet<TW::Guid>& references) {
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
void WriteFacts(JsonWriter& writer, const QX::Expression& expression, const Environment& environment) {
  QX::PropertyDirectReferenceCollector references;
  const QX::VersionNumber version = InspectTree(*expression.GetRoot(), references);
  WriteReferences(writer, references.GetReferencedProperties());
  writer.WriteKey("evaluable");
  writer.WriteInteger(static_cast<int>(expression.GetEvaluableStatus(environment)));
  writer.WriteKey("version");
  writer.WriteInteger(version);
}

void WriteOutcome(JsonWriter& writer, const Evaluation& evaluation, const QX::ExpressionString& text,
                  const Environment& environment) {
  if (evaluation.failure) {
    writer.WriteKey("error");
    WriteFailure(writer, *evaluation.failure, text);
  } else {
    writer.WriteKey("value");
    WriteValue(writer, evaluation.value);
    WriteDisplay(writer, evaluation.value, environment);
  }
}

}  // namespace

TW::Range<unsigned int> GetSpan(const QX::ExpressionString& text, const QX::ExpressionNode& node) {
  TW::Range<unsigned int> span = text.GetNodeRange(&node);
  node.EnumerateRecursive([&](const QX::ExpressionNode* below) {
    if (!text.HasNodeRange(below)) return;
    const TW::Range<unsigned int> range = text.GetNodeRange(below);
    span = {std::min(span.begin, range.begin), std::max(span.end, range.end)};
  });
  return span;
}

void WriteValue(JsonWriter& writer, const QX::ExpressionValue& value) {
  writer.BeginObject();
  if (!value.IsValid()) {
    WriteKind(writer, "invalid");
  } else if (value.IsBool()) {
    WriteLogicalValue(writer, value);
  } else if (value.IsString()) {
    WriteTextValue(writer, value);
  } else if (IsInteger(value)) {
    WriteIntegerValue(writer, value);
  } else {
    WriteNumberValue(writer, value);
  }
  writer.EndObject();
}

void WriteDisplay(JsonWriter& writer, const QX::ExpressionValue& value, const Environment& environment) {
  writer.WriteKey("display");
  if (const auto display = GetDisplayText(value, environment)) {
    writer.WriteText(*display);
  } else {
    writer.WriteNull();
  }
}

void WriteFailure(JsonWriter& writer, const Failure& failure, const QX::ExpressionString& text) {
  writer.BeginObject();
  const bool isSyntax = failure.stage == Failure::Stage::Syntax;
  WriteStage(writer, isSyntax ? "syntax" : "evaluation");
  writer.WriteKey("name");
  writer.WriteText(failure.name);
  if (failure.index != 0) {
    writer.WriteKey("index");
    writer.WriteInteger(failure.index);
  }
  writer.WriteKey("message");
  writer.WriteText(failure.message);
  if (isSyntax) WriteRange(writer, failure.place);
  if (failure.source != nullptr) WriteSource(writer, *failure.source, text);
  writer.EndObject();
}

void WriteAnswer(JsonWriter& writer, std::string_view id, const Evaluation& evaluation,
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

void WriteRefusal(JsonWriter& writer, std::string_view id, std::string_view name, std::u16string_view message) {
  writer.BeginObject();
  WriteId(writer, id);
  writer.WriteKey("error");
  writer.BeginObject();
  WriteStage(writer, "request");
  writer.WriteKey("name");
  writer.WriteName(name);
  writer.WriteKey("message");
  writer.WriteText(message);
  writer.EndObject();
  writer.EndObject();
}

}  // namespace Command
