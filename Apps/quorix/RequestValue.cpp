#include "RequestValue.hpp"

#include "CommandText.hpp"
#include "Request.hpp"
#include "TW/UniString.hpp"

#include <limits>

namespace Command {
namespace {

using QX::ExpressionValue;
using Undefined = ExpressionValue::UndefinedSelector;

// The members of a value, before its kind says what they must be.
struct Members {
  TW::Optional<Host::JsonValue> kind;
  TW::Optional<Host::JsonValue> value;
  bool undefined = false;
  int length = 0;
  int angle = 0;
};

[[noreturn]] void Refuse(CommandText reason) { throw RequestError("WrongType", MakeText(reason)); }

int ReadExponent(const Host::JsonValue& value) {
  using Limits = std::numeric_limits<int>;
  long long exponent = 0;
  if (!value.GetWholeNumber(Limits::min(), Limits::max(), exponent)) Refuse(CommandText::ExponentsExpected);
  return static_cast<int>(exponent);
}

Members ReadMembers(const Host::JsonValue& value) {
  if (!value.IsObject()) Refuse(CommandText::KindMissing);
  Members members;
  value.ForEachMember([&members](std::u16string_view key, const Host::JsonValue& member) {
    if (key == u"kind") members.kind = member;
    if (key == u"value") members.value = member;
    if (key == u"undefined" && !member.GetBool(members.undefined)) Refuse(CommandText::UndefinedExpected);
    if (key == u"length") members.length = ReadExponent(member);
    if (key == u"angle") members.angle = ReadExponent(member);
  });
  if (!members.kind || !members.kind->IsText()) Refuse(CommandText::KindMissing);
  return members;
}

ExpressionValue ReadLogical(const Members& members) {
  if (members.undefined) return ExpressionValue::FromBool(Undefined());
  bool content = false;
  if (!members.value || !members.value->GetBool(content)) Refuse(CommandText::LogicalExpected);
  return ExpressionValue::FromBool(content);
}

ExpressionValue ReadText(const Members& members) {
  if (members.undefined) return ExpressionValue::FromString(Undefined());
  if (!members.value || !members.value->IsText()) Refuse(CommandText::TextValueExpected);
  return ExpressionValue::FromString(TW::UniString(members.value->GetText()));
}

ExpressionValue ReadInteger(const Members& members) {
  if (members.undefined) return ExpressionValue::FromInteger(Undefined());
  using Limits = std::numeric_limits<int>;
  long long content = 0;
  if (!members.value || !members.value->GetWholeNumber(Limits::min(), Limits::max(), content)) {
    Refuse(CommandText::IntegerExpected);
  }
  return ExpressionValue::FromInteger(static_cast<int>(content));
}

ExpressionValue ReadNumber(const Members& members) {
  const QX::UnitExponents exponents(members.length, members.angle);
  if (members.undefined) return ExpressionValue::FromQuantity(Undefined(), exponents);
  double content = 0;
  if (!members.value || !members.value->GetNumber(content)) Refuse(CommandText::FiniteNumberExpected);
  return ExpressionValue::FromQuantity(content, exponents);
}

}  // namespace

TW::Optional<ExpressionValue> ReadPropertyValue(const Host::JsonValue& value) {
  const Members members = ReadMembers(value);
  const std::u16string_view kind = members.kind->GetText();
  if (kind == u"failing") return {};
  if (kind == u"invalid") return ExpressionValue::CreateInvalid();
  if (kind == u"logical") return ReadLogical(members);
  if (kind == u"text") return ReadText(members);
  if (kind == u"integer") return ReadInteger(members);
  if (kind == u"number") return ReadNumber(members);
  Refuse(CommandText::UnknownKind);
}

}  // namespace Command
