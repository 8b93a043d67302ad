#pragma once

#include "Quorix/Export.hpp"
#include "Quorix/ExpressionValue.hpp"
#include "TW/HashTable.hpp"
#include "TW/UniString.hpp"

#include <functional>

namespace QX {

/// What is known of a named constant.
struct IdentifierData {
  ExpressionValue value;
  short uiNameIndex;  ///< the place of its name in the list of names of constants
};

/// The named constants of the language. Names are found in any case. Never changes.
class QX_EXPORT IdentitiferNodeRegistry {
 public:
  IdentitiferNodeRegistry();

  bool IsExistingIdentifier(const TW::UniString& name) const;
  /// The value; the integer 0 for a name that is no constant.
  ExpressionValue GetIdentifierValue(const TW::UniString& name) const;
  /// Throws `TW::IllegalReferenceException` for a name that is no constant.
  const IdentifierData& GetIdentifierData(const TW::UniString& name) const;
  /// The name for lists, in the user's language; empty for a name that is no constant.
  TW::UniString GetIdentifierUIName(const TW::UniString& name) const;
  /// Calls `visit` for every constant, in upper case, always in the same order.
  void EnumerateIdentifiers(const std::function<void(const TW::UniString&)>& visit) const;

  /// What is known of the constant, for as long as the library is loaded, or null for a name that is no constant.
  const IdentifierData* FindIdentifierData(const TW::UniString& name) const;

 private:
  TW::HashTable<TW::UniString, IdentifierData> identifiers_;
};

/// The one registry of constants.
QX_EXPORT const IdentitiferNodeRegistry& GetIdentitiferNodeRegistry();

}  // namespace QX
