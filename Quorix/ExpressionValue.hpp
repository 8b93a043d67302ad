#pragma once

#include "Quorix/Export.hpp"
#include "Quorix/ExpressionMathFunctions.hpp"
#include "Quorix/Quantity.hpp"
#include "Quorix/UnitExponents.hpp"
#include "TW/DynamicValue.hpp"
#include "TW/UniString.hpp"

#include <bit>
#include <cstdint>
#include <memory>
#include <new>
#include <utility>

namespace QX {

/// The result of evaluating a node or a whole formula: an integer, a number with its dimension, a text or a logical
/// value, each possibly user undefined; or nothing, which makes it invalid. A number that is not finite is invalid too,
/// unless it is user undefined.
///
/// A value is copied freely; it holds its content in place and needs no heap but for texts of more than seven units.
/// There are no conversions between kinds: a text is never read as a number.
class QX_EXPORT ExpressionValue {
 public:
  /// Selects the user-undefined value of a kind.
  struct UndefinedSelector {};

  /// An invalid value.
  ExpressionValue() noexcept : bits_(0) {}
  /// Takes over the content of `variant` and deletes it; null makes an invalid value.
  explicit ExpressionValue(TW::DynamicValue* variant);
  ExpressionValue(const ExpressionValue& other) { CopyFrom(other); }
  /// Leaves `other` invalid, with its dimension.
  ExpressionValue(ExpressionValue&& other) noexcept { MoveFrom(other); }
  ~ExpressionValue() { DestroyText(); }

  ExpressionValue& operator=(const ExpressionValue& other) {
    if (this != &other) *this = ExpressionValue(other);
    return *this;
  }
  /// Leaves `other` invalid, with its dimension.
  ExpressionValue& operator=(ExpressionValue&& other) noexcept {
    if (this != &other) {
      DestroyText();
      MoveFrom(other);
    }
    return *this;
  }

  static ExpressionValue CreateInvalid() noexcept { return {}; }
  static ExpressionValue FromBool(bool value) noexcept;
  static ExpressionValue FromBool(UndefinedSelector) noexcept;
  static ExpressionValue FromString(const TW::UniString& text);
  static ExpressionValue FromString(TW::UniString&& text) noexcept;
  static ExpressionValue FromString(UndefinedSelector) noexcept;
  static ExpressionValue FromInteger(int value) noexcept;
  static ExpressionValue FromInteger(UndefinedSelector) noexcept;
  static ExpressionValue FromNumber(double value) noexcept;
  static ExpressionValue FromNumber(UndefinedSelector) noexcept;
  static ExpressionValue FromQuantity(const Quantity& quantity) noexcept;
  /// `value` is in base units.
  static ExpressionValue FromQuantity(double value, UnitExponents exponents) noexcept;
  static ExpressionValue FromQuantity(UndefinedSelector, UnitExponents exponents) noexcept;
  /// A number as it is written with a unit: `2` and `cm` make a length of 0.02. An empty marker makes a plain number,
  /// an unknown one an invalid value; markers are matched exactly.
  static ExpressionValue FromNumericValueAndUnitMarker(double value, const TW::UniString& marker);
  /// The value of a length written as whole inches and a fraction, which counts as a number of feet.
  static ExpressionValue FromNumericValueInInches(double value);

  bool IsValid() const noexcept {
    return kind_ != Kind::Invalid && (kind_ != Kind::Number || undefined_ || IsValidNumber(GetNumber()));
  }
  bool IsBool() const noexcept { return kind_ == Kind::Logical; }
  bool IsString() const noexcept { return kind_ == Kind::Text; }
  /// Whether the value is valid and an integer or a number.
  bool ContainsIntOrNumVariant() const noexcept {
    return kind_ == Kind::Integer || (kind_ == Kind::Number && IsValid());
  }
  /// The same as `ContainsIntOrNumVariant`.
  bool CanConvertToQuantity() const noexcept { return ContainsIntOrNumVariant(); }
  bool IsNonUnitNumericValue() const noexcept { return ContainsIntOrNumVariant() && exponents_.IsNonUnit(); }
  bool IsUserUndefined() const noexcept { return undefined_; }

  /// The content, or false when it is not a defined logical value.
  bool GetAsBool() const noexcept { return kind_ == Kind::Logical && !undefined_ && bits_ != 0; }
  /// The content, or the empty text when it is not a defined text.
  const TW::UniString& GetAsString() const& noexcept;
  TW::UniString GetAsString() && noexcept;
  /// The integer or number, whatever its dimension and state; 0 for anything else.
  double GetIntOrNumVariantValue() const noexcept;
  /// The integer or number when it has no unit and is defined, else 0.
  double GetAsNonUnitNumericValue() const noexcept;
  /// The value as a quantity; a defined 0 without unit for what is no number.
  Quantity ConvertToQuantity() const noexcept;
  /// The dimension; none for what is no number.
  const UnitExponents& GetUnitExponents() const noexcept { return exponents_; }

  /// Turns the value into the user-undefined one of its kind and dimension. Not to be called on an invalid value.
  void SetToUserUndefined() noexcept { undefined_ = true; }
  /// A copy of the content as a value of the foundation, or null.
  std::unique_ptr<TW::DynamicValue> CloneContainedVariant() const;

  /// Whether both values are of the same kind and dimension; an integer and a number are of the same kind.
  static bool AreEqualByTypeAndUnit(const ExpressionValue& a, const ExpressionValue& b) noexcept;
  /// Whether both values are the same, numbers without tolerance and texts unit by unit. Two user-undefined values of
  /// one kind and dimension are.
  static bool AreEqualByContent(const ExpressionValue& a, const ExpressionValue& b) noexcept;

 private:
  enum class Kind : std::uint8_t { Invalid, Logical, Text, Integer, Number };

  ExpressionValue(Kind kind, std::uint64_t bits, bool undefined) noexcept
      : bits_(bits), kind_(kind), undefined_(undefined) {}
  ExpressionValue(double number, UnitExponents exponents, bool undefined) noexcept
      : bits_(std::bit_cast<std::uint64_t>(number)),
        exponents_(exponents),
        kind_(Kind::Number),
        undefined_(undefined) {}
  ExpressionValue(TW::UniString&& text, bool undefined) noexcept
      : text_(std::move(text)), kind_(Kind::Text), undefined_(undefined) {}

  double GetNumber() const noexcept { return std::bit_cast<double>(bits_); }
  std::int32_t GetInteger() const noexcept { return static_cast<std::int32_t>(bits_); }

  void CopyFrom(const ExpressionValue& other);
  void MoveFrom(ExpressionValue& other) noexcept;
  void DestroyText() noexcept {
    if (kind_ == Kind::Text) text_.~UniString();
  }

  // A text, or the bits of anything else.
  union {
    std::uint64_t bits_;
    TW::UniString text_;
  };
  UnitExponents exponents_;
  Kind kind_ = Kind::Invalid;
  bool undefined_ = false;
};

static_assert(sizeof(ExpressionValue) <= 64, "a value fits into one cache line");

// What evaluation does at every node stands here, where callers can see through it.

inline void ExpressionValue::CopyFrom(const ExpressionValue& other) {
  if (other.kind_ == Kind::Text) {
    new (&text_) TW::UniString(other.text_);
  } else {
    bits_ = other.bits_;
  }
  exponents_ = other.exponents_;
  kind_ = other.kind_;
  undefined_ = other.undefined_;
}

inline void ExpressionValue::MoveFrom(ExpressionValue& other) noexcept {
  if (other.kind_ == Kind::Text) {
    new (&text_) TW::UniString(std::move(other.text_));
    other.DestroyText();
    other.bits_ = 0;
  } else {
    bits_ = other.bits_;
  }
  exponents_ = other.exponents_;
  kind_ = std::exchange(other.kind_, Kind::Invalid);
  undefined_ = std::exchange(other.undefined_, false);
}

inline ExpressionValue ExpressionValue::FromBool(bool value) noexcept {
  return {Kind::Logical, std::uint64_t{value}, false};
}
inline ExpressionValue ExpressionValue::FromBool(UndefinedSelector) noexcept { return {Kind::Logical, 0, true}; }
inline ExpressionValue ExpressionValue::FromString(const TW::UniString& text) {
  return FromString(TW::UniString(text));
}
inline ExpressionValue ExpressionValue::FromString(TW::UniString&& text) noexcept { return {std::move(text), false}; }
inline ExpressionValue ExpressionValue::FromString(UndefinedSelector) noexcept { return {TW::UniString(), true}; }
inline ExpressionValue ExpressionValue::FromInteger(int value) noexcept {
  return {Kind::Integer, static_cast<std::uint32_t>(value), false};
}
inline ExpressionValue ExpressionValue::FromInteger(UndefinedSelector) noexcept { return {Kind::Integer, 0, true}; }
inline ExpressionValue ExpressionValue::FromNumber(double value) noexcept { return {value, UnitExponents(), false}; }
inline ExpressionValue ExpressionValue::FromNumber(UndefinedSelector) noexcept { return {0.0, UnitExponents(), true}; }
inline ExpressionValue ExpressionValue::FromQuantity(const Quantity& quantity) noexcept {
  return {quantity.GetNumericValue(), quantity.GetUnitExponents(), quantity.IsUserUndefinedValue()};
}
inline ExpressionValue ExpressionValue::FromQuantity(double value, UnitExponents exponents) noexcept {
  return {value, exponents, false};
}
inline ExpressionValue ExpressionValue::FromQuantity(UndefinedSelector, UnitExponents exponents) noexcept {
  return {0.0, exponents, true};
}

inline double ExpressionValue::GetIntOrNumVariantValue() const noexcept {
  if (kind_ == Kind::Number) return GetNumber();
  return kind_ == Kind::Integer ? GetInteger() : 0.0;
}

inline double ExpressionValue::GetAsNonUnitNumericValue() const noexcept {
  return IsNonUnitNumericValue() && !undefined_ ? GetIntOrNumVariantValue() : 0.0;
}

inline Quantity ExpressionValue::ConvertToQuantity() const noexcept {
  if (!CanConvertToQuantity()) return {};
  if (undefined_) return {Quantity::UndefinedSelector(), exponents_};
  return {GetIntOrNumVariantValue(), exponents_};
}

}  // namespace QX
