#pragma once

#include "Quorix/Export.hpp"
#include "Quorix/FunctionNodeRegistry.hpp"
#include "TW/HashTable.hpp"
#include "TW/UniString.hpp"

#include <functional>

namespace QX {

/// The operators between two operands, by their sign, which is matched exactly. Never changes.
class QX_EXPORT OperatorNodeRegistry {
 public:
  OperatorNodeRegistry();

  bool IsExistingOperator(const TW::UniString& op) const;
  /// The name for lists, in the user's language; empty for what is no operator.
  TW::UniString GetOperatorUIName(const TW::UniString& op) const;
  /// The description, the arguments or an example, in the user's language; empty for any other help text and for what
  /// is no operator.
  TW::UniString GetOperatorHelpString(const TW::UniString& op, HelpType type) const;
  /// Calls `visit` for every sign, always in the same order.
  void EnumerateOperators(const std::function<void(const TW::UniString&)>& visit) const;

 private:
  TW::HashTable<TW::UniString, short> operators_;
};

/// The one registry of operators.
QX_EXPORT const OperatorNodeRegistry& GetOperatorNodeRegistry();

}  // namespace QX
