#include "Host/Json/ValueJson.hpp"

namespace Host {
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

}  // namespace

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

}  // namespace Host
