#pragma once

#include "Host/Cell.hpp"
#include "Host/PropertyDefinition.hpp"
#include "Quorix/ExpressionValue.hpp"
#include "Quorix/UnitExponents.hpp"
#include "TW/Optional.hpp"
#include "TW/UniString.hpp"

#include <cstdint>
#include <memory>
#include <vector>

namespace Host {

/// The cells of one property, one for each element. A number or a logical value takes nine bytes. Texts, failures and,
/// in a column without a declared kind, dimensions that differ from cell to cell are kept apart, once there are any.
///
/// The setters say whether the cell is now another than before; one that throws leaves it as it was, and an undefined
/// value of the column's kind can always be set. Elements must be within the column.
class Column {
 public:
  explicit Column(TW::Optional<PropertyKind> kind);

  /// Makes room, so that `Resize` to as many cells cannot fail.
  void MakeRoomFor(ElementIndex count);
  /// Adds cells that are not computed, or removes cells at the end.
  void Resize(ElementIndex count);

  CellStatus GetStatus(ElementIndex element) const;
  /// The value; invalid when there is none.
  QX::ExpressionValue GetValue(ElementIndex element) const;
  /// Null unless the cell has failed.
  const Failure* GetFailure(ElementIndex element) const;

  /// `value` is valid, and of the column's kind when one is declared.
  bool SetValue(ElementIndex element, const QX::ExpressionValue& value);
  bool SetFailure(ElementIndex element, const Failure& failure);
  bool SetAbsent(ElementIndex element) { return SetState(element, State::Absent); }
  bool SetNotComputed(ElementIndex element) { return SetState(element, State::NotComputed); }
  /// Forgets everything but which cells are absent.
  void Clear();

 private:
  enum class State : std::uint8_t {
    NotComputed,
    Absent,
    Failed,
    Number,
    Integer,
    Text,
    Logical,
    UndefinedNumber,
    UndefinedInteger,
    UndefinedText,
    UndefinedLogical,
  };

  struct Rarities {
    std::vector<TW::UniString> texts;
    std::vector<Failure> failures;
    std::vector<QX::UnitExponents> dimensions;
  };

  static constexpr State FirstUndefined = State::UndefinedNumber;
  static State MakeUndefined(State state);

  State StateOfNumber(const QX::ExpressionValue& value) const;
  bool SetState(ElementIndex element, State state);
  bool SetNumber(ElementIndex element, double number);
  bool SetText(ElementIndex element, const TW::UniString& text);
  bool SetDimension(ElementIndex element, QX::UnitExponents dimension);
  QX::UnitExponents GetDimensionOf(ElementIndex element) const;
  Rarities& GetRarities();
  template <class Content>
  bool SetRarity(std::vector<Content> Rarities::* contents, ElementIndex element, const Content& content,
                 const Content& filling);

  std::vector<double> numbers_;
  std::vector<State> states_;
  std::unique_ptr<Rarities> rarities_;
  QX::UnitExponents dimension_;  ///< of every number, unless there are dimensions among the rarities
  TW::Optional<PropertyKind> kind_;
  bool hasDimension_;  ///< whether `dimension_` is settled
};

}  // namespace Host
