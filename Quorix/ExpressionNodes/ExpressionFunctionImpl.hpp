#pragma once

#include "Quorix/ExpressionNodes/ExpressionFunctionNode.hpp"

#include <limits>
#include <string_view>

/// What the classes of all functions have in common, so that each says only what sets it apart.

namespace QX {

/// What a function is known by: its class and GUID in stored formulas, its keyword, in upper case, in texts.
struct FunctionIdentity {
  std::string_view className;
  std::string_view guid;
  std::u16string_view keyword;
};

/// Completes the class `Derived` of a function of the family `Family`. `Derived` has the static members `Identity`,
/// which is a constant expression, `classInfo` and `functionName`, which are made of it.
template <class Derived, class Family = ExpressionFunctionNode>
class QX_EXPORT ExpressionFunctionImpl : public Family {
 public:
  static TW::Ref<TW::Object> ConstructorFunction() { return TW::MakeRef<Derived>(); }
  const TW::ClassInfo* GetClassInfo() const final { return &Derived::classInfo; }
  TW::UniString GetFunctionName() const final { return Derived::functionName; }

 protected:
  static TW::ClassInfo MakeClassInfo() {
    return {Derived::Identity.className, Derived::Identity.guid, 1, &Family::classInfo, &ConstructorFunction};
  }
};

inline constexpr unsigned int AnyNumberOfArguments = std::numeric_limits<unsigned int>::max();

/// The same for a function that belongs to no family and takes from `least` to `most` arguments.
template <class Derived, unsigned int least, unsigned int most = least>
class QX_EXPORT ExpressionCountedFunctionImpl : public ExpressionFunctionImpl<Derived> {
 public:
  bool IsValidParameterCount(unsigned int count) const final { return count >= least && count <= most; }
};

}  // namespace QX
