#pragma once

#include "TW/Export.hpp"
#include "TW/UniString.hpp"

#include <cstdint>
#include <memory>
#include <utility>

namespace TW {

/// How the text that shows a dynamic value is written.
class TW_EXPORT DynamicValueConversionRules {
 public:
  /// Numbers show at least `minimumDecimals` digits after the decimal separator and are rounded to `maximumDecimals`; a
  /// minimum above the maximum counts for both. The list separator stands between the values of a list; a single
  /// integer, number, text or logical value never shows it.
  DynamicValueConversionRules(unsigned int minimumDecimals, unsigned int maximumDecimals,
                              const UniString& listSeparator, const UniString& decimalSeparator);

  unsigned int GetMinimumDecimals() const noexcept { return minimumDecimals_; }
  /// Gives the decimals that numbers are rounded to: never fewer than the minimum.
  unsigned int GetMaximumDecimals() const noexcept { return maximumDecimals_; }
  const UniString& GetListSeparator() const noexcept { return listSeparator_; }
  const UniString& GetDecimalSeparator() const noexcept { return decimalSeparator_; }

 private:
  unsigned int minimumDecimals_;
  unsigned int maximumDecimals_;
  UniString listSeparator_;
  UniString decimalSeparator_;
};

/// A value whose kind is known only at run time: `IntValue`, `NumValue`, `StringValue` or `BoolValue`. A user-undefined
/// value keeps its kind, and its content is not used. A value owns its content and belongs to one thread at a time;
/// several may read it.
class TW_EXPORT DynamicValue {
 public:
  enum class Kind { Integer, Number, String, Bool };
  enum class Status { Normal = 0, UserUndefined = 3 };

  virtual ~DynamicValue();

  virtual Kind GetKind() const noexcept = 0;
  virtual std::unique_ptr<DynamicValue> Clone() const = 0;
  /// Gives the text that shows the value: numbers in plain decimal digits, halves rounded away from zero, without
  /// exponent and grouping, and nothing for one that is not finite; `TRUE` and `FALSE`; `Undefined` whenever it is
  /// undefined.
  UniString ToDisplayText(const DynamicValueConversionRules& rules) const;

  Status GetStatus() const noexcept { return status_; }
  void SetStatus(Status status) noexcept { status_ = status; }
  bool IsUserUndefined() const noexcept { return status_ == Status::UserUndefined; }

  /// Whether kind, status and content are the same. An integer never equals a number.
  friend bool operator==(const DynamicValue& left, const DynamicValue& right) {
    return left.GetKind() == right.GetKind() && left.status_ == right.status_ && left.HasContentOf(right);
  }

 protected:
  DynamicValue() = default;
  DynamicValue(const DynamicValue&) = default;
  DynamicValue& operator=(const DynamicValue&) = default;

 private:
  virtual UniString GetContentText(const DynamicValueConversionRules& rules) const = 0;
  /// `other` is of the same kind.
  virtual bool HasContentOf(const DynamicValue& other) const = 0;

  Status status_ = Status::Normal;
};

/// What the kinds of dynamic values have in common: `Value` is the class of the kind, `Content` what it holds.
template <class Value, class Content, DynamicValue::Kind kind>
class TW_EXPORT DynamicValueOf : public DynamicValue {
 public:
  Kind GetKind() const noexcept final { return kind; }
  std::unique_ptr<DynamicValue> Clone() const final {
    return std::make_unique<Value>(static_cast<const Value&>(*this));
  }

  const Content& Get() const noexcept { return content_; }
  void Set(Content content) noexcept { content_ = std::move(content); }

 protected:
  explicit DynamicValueOf(Content&& content) noexcept : content_(std::move(content)) {}

 private:
  bool HasContentOf(const DynamicValue& other) const final {
    return content_ == static_cast<const DynamicValueOf&>(other).content_;
  }

  Content content_;
};

/// A whole number of 32 bits.
class TW_EXPORT IntValue final : public DynamicValueOf<IntValue, std::int32_t, DynamicValue::Kind::Integer> {
 public:
  explicit IntValue(std::int32_t content = 0) noexcept : DynamicValueOf(std::move(content)) {}

 private:
  UniString GetContentText(const DynamicValueConversionRules& rules) const override;
};

/// A number without unit.
class TW_EXPORT NumValue final : public DynamicValueOf<NumValue, double, DynamicValue::Kind::Number> {
 public:
  explicit NumValue(double content = 0) noexcept : DynamicValueOf(std::move(content)) {}

 private:
  UniString GetContentText(const DynamicValueConversionRules& rules) const override;
};

/// A text.
class TW_EXPORT StringValue final : public DynamicValueOf<StringValue, UniString, DynamicValue::Kind::String> {
 public:
  explicit StringValue(UniString content = {}) noexcept : DynamicValueOf(std::move(content)) {}

 private:
  UniString GetContentText(const DynamicValueConversionRules& rules) const override;
};

/// A logical value.
class TW_EXPORT BoolValue final : public DynamicValueOf<BoolValue, bool, DynamicValue::Kind::Bool> {
 public:
  explicit BoolValue(bool content = false) noexcept : DynamicValueOf(std::move(content)) {}

 private:
  UniString GetContentText(const DynamicValueConversionRules& rules) const override;
};

}  // namespace TW
