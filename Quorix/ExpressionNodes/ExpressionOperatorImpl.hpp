#pragma once

#include "Quorix/Export.hpp"
#include "TW/ClassInfo.hpp"
#include "TW/Object.hpp"
#include "TW/Ref.hpp"
#include "TW/UniString.hpp"

#include <string_view>

/// What the classes of all operators have in common, so that each says only what sets it apart.

namespace QX {

/// What an operator is known by: its class and GUID in stored formulas, its sign in texts.
struct OperatorIdentity {
  std::string_view className;
  std::string_view guid;
  std::u16string_view sign;
};

/// Completes the class `Derived` of an operator of the family `Family`. `Derived` has the static members `Identity`,
/// which is a constant expression, and `classInfo`, which is made of it.
template <class Derived, class Family>
class QX_EXPORT ExpressionOperatorImpl : public Family {
 public:
  static TW::Ref<TW::Object> ConstructorFunction() { return TW::MakeRef<Derived>(); }
  const TW::ClassInfo* GetClassInfo() const final { return &Derived::classInfo; }
  TW::UniString GetOperatorSign() const final { return TW::UniString(Derived::Identity.sign); }

 protected:
  static TW::ClassInfo MakeClassInfo() {
    return {Derived::Identity.className, Derived::Identity.guid, 1, &Family::classInfo, &ConstructorFunction};
  }
};

}  // namespace QX
