#include "Host/Column.hpp"

#include "Host/Room.hpp"

#include <bit>

namespace Host {

using QX::ExpressionValue;

namespace {

constexpr ExpressionValue::UndefinedSelector Undefined;

}  // namespace

Column::Column(TW::Optional<PropertyKind> kind) : kind_(kind), hasDimension_(kind.has_value()) {
  if (kind) dimension_ = GetDimension(*kind);
}

void Column::MakeRoomFor(ElementIndex count) {
  const auto makeRoom = [count](auto& cells) {
    if (count > cells.size()) MakeRoom(cells, count - cells.size());
  };
  makeRoom(numbers_);
  makeRoom(states_);
  if (!rarities_) return;
  if (!rarities_->texts.empty()) makeRoom(rarities_->texts);
  if (!rarities_->failures.empty()) makeRoom(rarities_->failures);
  if (!rarities_->dimensions.empty()) makeRoom(rarities_->dimensions);
}

void Column::Resize(ElementIndex count) {
  numbers_.resize(count);
  states_.resize(count, State::NotComputed);
  if (!rarities_) return;
  if (!rarities_->texts.empty()) rarities_->texts.resize(count);
  if (!rarities_->failures.empty()) rarities_->failures.resize(count);
  if (!rarities_->dimensions.empty()) rarities_->dimensions.resize(count, dimension_);
}

CellStatus Column::GetStatus(ElementIndex element) const {
  const State state = states_[element];
  if (state <= State::Failed) return static_cast<CellStatus>(state);
  return state >= FirstUndefined ? CellStatus::Undefined : CellStatus::Defined;
}

ExpressionValue Column::GetValue(ElementIndex element) const {
  switch (states_[element]) {
    case State::Number:
      return ExpressionValue::FromQuantity(numbers_[element], GetDimensionOf(element));
    case State::Integer:
      return ExpressionValue::FromInteger(static_cast<int>(numbers_[element]));
    case State::Text:
      return ExpressionValue::FromString(rarities_->texts[element]);
    case State::Logical:
      return ExpressionValue::FromBool(numbers_[element] != 0.0);
    case State::UndefinedNumber:
      return ExpressionValue::FromQuantity(Undefined, GetDimensionOf(element));
    case State::UndefinedInteger:
      return ExpressionValue::FromInteger(Undefined);
    case State::UndefinedText:
      return ExpressionValue::FromString(Undefined);
    case State::UndefinedLogical:
      return ExpressionValue::FromBool(Undefined);
    default:
      return ExpressionValue::CreateInvalid();
  }
}

const Failure* Column::GetFailure(ElementIndex element) const {
  return states_[element] == State::Failed ? &rarities_->failures[element] : nullptr;
}

Column::State Column::MakeUndefined(State state) {
  constexpr auto Distance = static_cast<unsigned int>(FirstUndefined) - static_cast<unsigned int>(State::Number);
  return static_cast<State>(static_cast<unsigned int>(state) + Distance);
}

Column::State Column::StateOfNumber(const ExpressionValue& value) const {
  const bool isInteger = kind_ ? *kind_ == PropertyKind::Integer : IsInteger(value);
  return isInteger ? State::Integer : State::Number;
}

bool Column::SetValue(ElementIndex element, const ExpressionValue& value) {
  const bool isUndefined = value.IsUserUndefined();
  State state = State::Text;
  bool changed = false;
  if (value.IsString()) {
    changed = !isUndefined && SetText(element, value.GetAsString());
  } else if (value.IsBool()) {
    state = State::Logical;
    changed = SetNumber(element, value.GetAsBool() ? 1.0 : 0.0);
  } else {
    state = StateOfNumber(value);
    changed = SetDimension(element, value.GetUnitExponents());
    changed = SetNumber(element, isUndefined ? 0.0 : value.GetIntOrNumVariantValue()) || changed;
  }
  return SetState(element, isUndefined ? MakeUndefined(state) : state) || changed;
}

bool Column::SetFailure(ElementIndex element, const Failure& failure) {
  const bool changed = SetRarity(&Rarities::failures, element, failure, {});
  return SetState(element, State::Failed) || changed;
}

void Column::Clear() {
  for (State& state : states_) {
    if (state != State::Absent) state = State::NotComputed;
  }
  rarities_.reset();
  if (!kind_) hasDimension_ = false;
}

bool Column::SetState(ElementIndex element, State state) { return std::exchange(states_[element], state) != state; }

// Bit by bit: the two zeros are not the same to a formula that divides by them.
bool Column::SetNumber(ElementIndex element, double number) {
  return std::bit_cast<std::uint64_t>(std::exchange(numbers_[element], number)) != std::bit_cast<std::uint64_t>(number);
}

bool Column::SetText(ElementIndex element, const TW::UniString& text) {
  return SetRarity(&Rarities::texts, element, text, {});
}

bool Column::SetDimension(ElementIndex element, QX::UnitExponents dimension) {
  if (!hasDimension_) {
    hasDimension_ = true;
    dimension_ = dimension;
  }
  const bool isApart = rarities_ && !rarities_->dimensions.empty();
  if (!isApart && dimension == dimension_) return false;
  return SetRarity(&Rarities::dimensions, element, dimension, dimension_);
}

QX::UnitExponents Column::GetDimensionOf(ElementIndex element) const {
  return rarities_ && !rarities_->dimensions.empty() ? rarities_->dimensions[element] : dimension_;
}

Column::Rarities& Column::GetRarities() {
  if (!rarities_) rarities_ = std::make_unique<Rarities>();
  return *rarities_;
}

template <class Content>
bool Column::SetRarity(std::vector<Content> Rarities::* contents, ElementIndex element, const Content& content,
                       const Content& filling) {
  std::vector<Content>& cells = GetRarities().*contents;
  if (cells.empty()) cells.resize(states_.size(), filling);
  if (cells[element] == content) return false;
  cells[element] = content;
  return true;
}

}  // namespace Host
