#include "Quorix/OperatorNodeRegistry.hpp"

#include "EP/TextConstants.hpp"
#include "Quorix/QuorixResources.hpp"

namespace QX {
namespace {

constexpr int OperatorNameList = 107;
constexpr int FirstOperatorHelpList = 2000;

}  // namespace

const OperatorNodeRegistry& GetOperatorNodeRegistry() {
  static const OperatorNodeRegistry registry;
  return registry;
}

// The numbers are places in the resources, and the order is the one in which operators are listed; neither follows the
// other.
OperatorNodeRegistry::OperatorNodeRegistry() {
  operators_.Add(TW::UniString(EP::LessOrEqual), 9);
  operators_.Add(TW::UniString(EP::GreaterOrEqual), 10);
  operators_.Add(TW::UniString(EP::LessThan), 7);
  operators_.Add(TW::UniString(EP::GreaterThan), 8);
  operators_.Add(TW::UniString(EP::NotEqual), 6);
  operators_.Add(TW::UniString(EP::Equal), 5);
  operators_.Add(TW::UniString(EP::Add), 1);
  operators_.Add(TW::UniString(EP::Subtract), 2);
  operators_.Add(TW::UniString(EP::Multiply), 4);
  operators_.Add(TW::UniString(EP::Divide), 3);
  operators_.Add(TW::UniString(EP::Power), 11);
}

bool OperatorNodeRegistry::IsExistingOperator(const TW::UniString& op) const { return operators_.Contains(op); }

TW::UniString OperatorNodeRegistry::GetOperatorUIName(const TW::UniString& op) const {
  const short* id = operators_.Find(op);
  return id != nullptr ? TW::UniString::Printf(GetResourceString(OperatorNameList, *id), op) : TW::UniString();
}

TW::UniString OperatorNodeRegistry::GetOperatorHelpString(const TW::UniString& op, HelpType type) const {
  const short* id = operators_.Find(op);
  if (id == nullptr) return {};
  const int list = FirstOperatorHelpList + *id;
  switch (type) {
    case HelpType::Description:
      return GetResourceString(list, 1);
    case HelpType::Arguments:
      return GetResourceString(list, 2);
    case HelpType::Example:
      return GetResourceString(list, 3);
    case HelpType::Name:
    case HelpType::Syntax:
      break;
  }
  return {};
}

void OperatorNodeRegistry::EnumerateOperators(const std::function<void(const TW::UniString&)>& visit) const {
  for (const auto& entry : operators_) visit(entry.key);
}

}  // namespace QX
