#include "Quorix/FunctionNodeRegistry.hpp"

#include "Quorix/QuorixResources.hpp"

#include <utility>

namespace QX {
namespace {

// Stands for the list separator in the syntax lines of the resources.
constexpr std::u16string_view ResourceListSeparator = u"|";

}  // namespace

TW::UniString NormalizeName(const TW::UniString& name) { return name.ToUpperCase(); }

FunctionNodeRegistry& GetFunctionNodeRegistry() {
  static FunctionNodeRegistry registry;
  return registry;
}

void FunctionNodeRegistry::RegisterFunctionName(const TW::UniString& name, const TW::ClassInfo* classInfo,
                                                FunctionGroup group, short helpResId) {
  functions_.Add(name, {classInfo, group, helpResId});
  inOrder_.push_back(name);
}

void FunctionNodeRegistry::EnumerateRegisteredFunctions(const std::function<void(const TW::UniString&)>& visit) const {
  for (const TW::UniString& name : inOrder_) visit(name);
}

const FunctionImplementionData* FunctionNodeRegistry::Find(const TW::UniString& name) const {
  return functions_.Find(NormalizeName(name));
}

bool FunctionNodeRegistry::IsExistingFunction(const TW::UniString& name) const { return Find(name) != nullptr; }

const TW::ClassInfo* FunctionNodeRegistry::GetFunctionNodeClassInfo(const TW::UniString& name) const {
  const FunctionImplementionData* data = Find(name);
  return data != nullptr ? data->classInfo : nullptr;
}

const FunctionImplementionData& FunctionNodeRegistry::GetImplementationData(const TW::UniString& name) const {
  return functions_.Get(NormalizeName(name));
}

FunctionGroup FunctionNodeRegistry::GetFunctionGroup(const TW::UniString& name) const {
  const FunctionImplementionData* data = Find(name);
  return data != nullptr ? data->group : FunctionGroup::None;
}

short FunctionNodeRegistry::GetFunctionHelpResId(const TW::UniString& name) const {
  const FunctionImplementionData* data = Find(name);
  return data != nullptr ? data->helpResId : short{0};
}

TW::UniString FunctionNodeRegistry::GetFunctionNormalizedName(const TW::UniString& name) const {
  TW::UniString normalized = NormalizeName(name);
  return functions_.Contains(normalized) ? std::move(normalized) : TW::UniString();
}

TW::UniString FunctionNodeRegistry::GetFunctionHelpString(const TW::UniString& name, HelpType type,
                                                          unsigned short listSeparator) const {
  const FunctionImplementionData* data = Find(name);
  if (data == nullptr) return {};
  switch (type) {
    case HelpType::Name:
      return TW::UniString::Printf(GetResourceString(data->helpResId, 1), name);
    case HelpType::Description:
      return GetResourceString(data->helpResId, 2);
    case HelpType::Syntax:
      return (name + u" " + GetResourceString(data->helpResId, 3))
          .ReplaceAll(ResourceListSeparator, TW::UniString(TW::UniChar(listSeparator)));
    case HelpType::Arguments:
      return GetResourceString(data->helpResId, 4);
    case HelpType::Example:
      return GetResourceString(data->helpResId, 5);
  }
  return {};
}

}  // namespace QX
