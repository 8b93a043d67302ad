#include "Quorix/IdentitiferNodeRegistry.hpp"

#include "EP/TextConstants.hpp"
#include "Quorix/FunctionNodeRegistry.hpp"
#include "Quorix/QuorixResources.hpp"

#include <numbers>

namespace QX {
namespace {

constexpr int IdentifierNameList = 108;

TW::UniString KeyOf(std::u16string_view constant) { return NormalizeName(TW::UniString(constant)); }

}  // namespace

const IdentitiferNodeRegistry& GetIdentitiferNodeRegistry() {
  static const IdentitiferNodeRegistry registry;
  return registry;
}

IdentitiferNodeRegistry::IdentitiferNodeRegistry() {
  identifiers_.Add(KeyOf(EP::TrueConstant), {ExpressionValue::FromBool(true), 1});
  identifiers_.Add(KeyOf(EP::FalseConstant), {ExpressionValue::FromBool(false), 2});
  identifiers_.Add(KeyOf(EP::PiConstant), {ExpressionValue::FromNumber(std::numbers::pi), 3});
}

const IdentifierData* IdentitiferNodeRegistry::FindIdentifierData(const TW::UniString& name) const {
  return identifiers_.Find(NormalizeName(name));
}

bool IdentitiferNodeRegistry::IsExistingIdentifier(const TW::UniString& name) const {
  return FindIdentifierData(name) != nullptr;
}

ExpressionValue IdentitiferNodeRegistry::GetIdentifierValue(const TW::UniString& name) const {
  const IdentifierData* data = FindIdentifierData(name);
  return data != nullptr ? data->value : ExpressionValue::FromInteger(0);
}

const IdentifierData& IdentitiferNodeRegistry::GetIdentifierData(const TW::UniString& name) const {
  return identifiers_.Get(NormalizeName(name));
}

TW::UniString IdentitiferNodeRegistry::GetIdentifierUIName(const TW::UniString& name) const {
  const IdentifierData* data = FindIdentifierData(name);
  if (data == nullptr) return {};
  return TW::UniString::Printf(GetResourceString(IdentifierNameList, data->uiNameIndex), name);
}

void IdentitiferNodeRegistry::EnumerateIdentifiers(const std::function<void(const TW::UniString&)>& visit) const {
  for (const auto& entry : identifiers_) visit(entry.key);
}

}  // namespace QX
