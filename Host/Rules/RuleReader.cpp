#include "Host/Rules/RuleReader.hpp"

#include "Host/Literal.hpp"
#include "Host/NameGuid.hpp"
#include "Host/Rules/ElementAttribute.hpp"
#include "Host/TableTexts.hpp"
#include "Host/Texts/FileTexts.hpp"
#include "Host/Texts/Suggestion.hpp"

#include <algorithm>
#include <utility>

namespace Host {
namespace {

constexpr std::u16string_view Keys[] = {u"name", u"group", u"id", u"kind", u"from", u"formula", u"value", u"appliesTo"};

TW::UniString ListKinds() {
  std::vector<std::u16string_view> kinds;
  for (auto kind = PropertyKind::Number; kind <= PropertyKind::Logical;
       kind = static_cast<PropertyKind>(static_cast<int>(kind) + 1)) {
    kinds.push_back(GetKindName(kind));
  }
  return ListWords(kinds);
}

// A full stop in between could be one of a name.
TW::UniString MakeIdentity(const PropertyRule& rule) {
  return rule.group.IsEmpty() ? rule.name : rule.group + u"\u001F" + rule.name;
}

}  // namespace

template <class... Arguments>
void RuleReader::Complain(const JsonValue& place, const Arguments&... arguments) const {
  complain_(place, JsonContentFault::WrongValue, MakeText(arguments...));
}

TW::Optional<ReadRule> RuleReader::Read(const JsonValue& value) const {
  if (!value.IsObject()) {
    Complain(value, FileText::PropertyExpected);
    return std::nullopt;
  }
  const Members members = ReadMembers(value);
  PropertyRule rule;
  if (!members[Name]) Complain(value, FileText::NoName);
  if (members[Name]) rule.name = ReadText(*members[Name], Name);
  if (members[Group]) rule.group = ReadText(*members[Group], Group);
  if (members[Kind]) rule.kind = ReadKind(*members[Kind]);
  ReadOrigin(value, members, rule);
  if (members[AppliesTo]) rule.classPatterns = ReadTexts(*members[AppliesTo], AppliesTo);
  const TW::Optional<TW::Guid> id = members[Id] ? ReadId(*members[Id]) : std::nullopt;
  if (rule.name.IsEmpty()) return std::nullopt;
  TW::UniString identity = MakeIdentity(rule);
  rule.id = id ? *id : MakeNameGuid(identity);
  const bool hasFormula = rule.formula.has_value();
  return ReadRule{std::move(rule), std::move(identity), *members[Name], id ? members[Id] : std::nullopt,
                  hasFormula ? members[Formula] : std::nullopt};
}

RuleReader::Members RuleReader::ReadMembers(const JsonValue& value) const {
  Members members;
  JsonMembers(Keys, complain_).ForEach(value, [&members](std::size_t key, const JsonValue& member) {
    members[key] = member;
  });
  return members;
}

TW::UniString RuleReader::ReadText(const JsonValue& value, Key key) const {
  if (value.IsText() && !value.GetText().empty()) return TW::UniString(value.GetText());
  Complain(value, FileText::TextExpected, Keys[key]);
  return {};
}

std::vector<TW::UniString> RuleReader::ReadTexts(const JsonValue& value, Key key) const {
  const FileText expected = key == From ? FileText::TextOrTextsExpected : FileText::TextsExpected;
  std::vector<TW::UniString> texts;
  const auto add = [&](const JsonValue& element) {
    if (!element.IsText() || element.GetText().empty()) return Complain(element, expected, Keys[key]);
    texts.emplace_back(element.GetText());
  };
  std::size_t count = 0;
  if (value.IsArray()) value.ForEachElement([&](const JsonValue& element) { add(element), ++count; });
  if (value.IsArray() ? count == 0 : key != From) Complain(value, expected, Keys[key]);
  if (!value.IsArray() && key == From) add(value);
  return texts;
}

TW::Optional<TW::Guid> RuleReader::ReadId(const JsonValue& value) const {
  TW::Guid id;
  if (value.IsText() && id.ConvertFromString(value.GetText()) == TW::NoErr && !id.IsNull()) return id;
  Complain(value, FileText::InvalidId);
  return std::nullopt;
}

TW::Optional<PropertyKind> RuleReader::ReadKind(const JsonValue& value) const {
  const auto kind = value.IsText() ? FindKind(value.GetText()) : std::nullopt;
  if (!kind) Complain(value, FileText::UnknownKind, ListKinds());
  return kind;
}

void RuleReader::ReadOrigin(const JsonValue& value, const Members& members, PropertyRule& rule) const {
  constexpr Key Origins[] = {From, Formula, Value};
  const JsonValue* last = nullptr;
  std::size_t count = 0;
  for (const Key key : Origins) {
    if (!members[key]) continue;
    ++count;
    if (last == nullptr || last->GetPosition() < members[key]->GetPosition()) last = &*members[key];
  }
  if (count == 0) Complain(value, FileText::NoOrigin);
  if (count > 1) Complain(*last, FileText::SeveralOrigins);
  if (members[Formula]) {
    TW::UniString formula = ReadText(*members[Formula], Formula);
    if (!formula.IsEmpty()) rule.formula = std::move(formula);
  } else if (!members[Kind]) {
    Complain(value, FileText::NoKind, ListKinds());
  }
  if (members[From]) {
    rule.sources = ReadTexts(*members[From], From);
    CheckAttributes(*members[From], rule.sources);
  }
  if (members[Value] && rule.kind) rule.constant = ReadConstant(*members[Value], *rule.kind);
}

void RuleReader::CheckAttributes(const JsonValue& value, const std::vector<TW::UniString>& sources) const {
  for (const TW::UniString& source : sources) {
    if (!source.GetView().starts_with(u'@') || FindElementAttribute(source)) continue;
    Complain(value, FileText::UnknownAttribute, source, ListWords(GetElementAttributeNames()));
  }
}

QX::ExpressionValue RuleReader::ReadConstant(const JsonValue& value, PropertyKind kind) const {
  QX::ExpressionValue constant;
  bool logical = false;
  double number = 0;
  if (value.GetBool(logical)) constant = QX::ExpressionValue::FromBool(logical);
  if (value.GetNumber(number)) constant = QX::ExpressionValue::FromQuantity(number, GetDimension(kind));
  if (value.IsText() && kind == PropertyKind::Text) {
    constant = QX::ExpressionValue::FromString(TW::UniString(value.GetText()));
  } else if (value.IsText()) {
    constant = ReadLiteral(value.GetText(), settings_);
  }
  if (FitToKind(constant, kind)) return constant;
  Complain(value, FileText::WrongConstant, MakeKindText(kind));
  return {};
}

}  // namespace Host
