#include "Host/Ifc/IfcPropertyReader.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <string_view>

namespace Host {
namespace {

using QX::ExpressionValue;
using QX::UnitExponents;

enum class Content : std::uint8_t { Single, List, Bounded, Quantity };

struct Shape {
  std::string_view name;
  Content content;
  unsigned int value;  ///< which argument holds the value
  unsigned int unit;   ///< which argument holds the unit
  IfcKind kind;        ///< of a quantity
};

constexpr Shape Shapes[] = {
    {"", Content::Single, 0, 0, IfcKind::None},
    {"IFCPROPERTYSINGLEVALUE", Content::Single, 2, 3, IfcKind::None},
    {"IFCPROPERTYENUMERATEDVALUE", Content::List, 2, 2, IfcKind::None},
    {"IFCPROPERTYLISTVALUE", Content::List, 2, 3, IfcKind::None},
    {"IFCPROPERTYBOUNDEDVALUE", Content::Bounded, 5, 4, IfcKind::None},
    {"IFCQUANTITYLENGTH", Content::Quantity, 3, 2, IfcKind::Length},
    {"IFCQUANTITYAREA", Content::Quantity, 3, 2, IfcKind::Area},
    {"IFCQUANTITYVOLUME", Content::Quantity, 3, 2, IfcKind::Volume},
    {"IFCQUANTITYCOUNT", Content::Quantity, 3, 2, IfcKind::Integer},
    {"IFCQUANTITYWEIGHT", Content::Quantity, 3, 2, IfcKind::Number},
    {"IFCQUANTITYTIME", Content::Quantity, 3, 2, IfcKind::Number},
    {"IFCQUANTITYNUMBER", Content::Quantity, 3, 2, IfcKind::Number},
};

struct Measure {
  std::string_view name;
  IfcKind kind;
};

// The measures that are more than their token says.
constexpr Measure Measures[] = {
    {"IFCLENGTHMEASURE", IfcKind::Length},
    {"IFCPOSITIVELENGTHMEASURE", IfcKind::Length},
    {"IFCNONNEGATIVELENGTHMEASURE", IfcKind::Length},
    {"IFCAREAMEASURE", IfcKind::Area},
    {"IFCVOLUMEMEASURE", IfcKind::Volume},
    {"IFCPLANEANGLEMEASURE", IfcKind::Angle},
    {"IFCPOSITIVEPLANEANGLEMEASURE", IfcKind::Angle},
    {"IFCINTEGER", IfcKind::Integer},
    {"IFCPOSITIVEINTEGER", IfcKind::Integer},
    {"IFCCOUNTMEASURE", IfcKind::Integer},
    {"IFCDIMENSIONCOUNT", IfcKind::Integer},
    {"IFCTIMESTAMP", IfcKind::Integer},
    {"IFCINTEGERCOUNTRATEMEASURE", IfcKind::Integer},
};

IfcKind KindOfMeasure(std::string_view name) {
  const auto* found = std::find_if(std::begin(Measures), std::end(Measures),
                                   [name](const Measure& measure) { return measure.name == name; });
  return found == std::end(Measures) ? IfcKind::Number : found->kind;
}

IfcValue MakeInteger(double number) {
  const bool fits = std::trunc(number) == number && number >= std::numeric_limits<int>::min() &&
                    number <= std::numeric_limits<int>::max();
  if (!fits) return {IfcKind::Number, ExpressionValue::FromNumber(number)};
  return {IfcKind::Integer, ExpressionValue::FromInteger(static_cast<int>(number))};
}

IfcValue MakeQuantity(IfcKind kind, double number, UnitExponents exponents) {
  if (!std::isfinite(number)) return {};
  return {kind, ExpressionValue::FromQuantity(number, exponents)};
}

IfcValue MakeNumber(IfcKind kind, double number, double factor) {
  switch (kind) {
    case IfcKind::Length:
      return MakeQuantity(kind, number * factor, UnitExponents::CreateLength());
    case IfcKind::Area:
      return MakeQuantity(kind, number * factor, UnitExponents::CreateArea());
    case IfcKind::Volume:
      return MakeQuantity(kind, number * factor, UnitExponents::CreateVolume());
    case IfcKind::Angle:
      return MakeQuantity(kind, number * factor, UnitExponents::CreateAngle());
    case IfcKind::Integer:
      return MakeInteger(number);
    default:
      return {IfcKind::Number, ExpressionValue::FromNumber(number)};
  }
}

IfcValue MakeEnumeration(std::string_view name) {
  if (name == "T" || name == "F") return {IfcKind::Logical, ExpressionValue::FromBool(name == "T")};
  if (name == "U") return {IfcKind::Logical, ExpressionValue::FromBool(ExpressionValue::UndefinedSelector())};
  return {IfcKind::Text, ExpressionValue::FromString(TW::UniString::FromUtf8(name))};
}

// The unit of one argument, which is used only where it measures what the value is.
class UnitOfValue {
 public:
  UnitOfValue(const StepFile& file, const IfcUnits& units, const StepValue& own)
      : file_(file), units_(units), own_(own) {}

  double GetFactor(IfcKind kind) const {
    const TW::Optional<StepFile::Place> place = file_.Find(own_);
    const TW::Optional<IfcUnit> unit = place ? ReadIfcUnit(file_, *place) : TW::Optional<IfcUnit>();
    return unit && unit->kind == kind ? unit->factor : units_.GetFactor(kind);
  }

 private:
  const StepFile& file_;
  const IfcUnits& units_;
  const StepValue& own_;
};

IfcValue ReadSimple(const StepValue& simple, IfcKind kind, const UnitOfValue& unit) {
  if (simple.kind == StepKind::Text) return {IfcKind::Text, ExpressionValue::FromString(simple.GetText())};
  if (simple.kind == StepKind::Enumeration) return MakeEnumeration(simple.text);
  const TW::Optional<double> number = simple.GetNumber();
  if (!number) return {};
  return MakeNumber(kind, *number, unit.GetFactor(kind));
}

IfcValue ReadValue(const StepValue& value, const UnitOfValue& unit) {
  if (value.kind == StepKind::Typed)
    return ReadSimple(StepCursor(value.inside).Next(), KindOfMeasure(value.text), unit);
  return ReadSimple(value, value.kind == StepKind::Integer ? IfcKind::Integer : IfcKind::Number, unit);
}

TW::UniString ReadAsText(const StepValue& value) {
  const StepValue simple = value.kind == StepKind::Typed ? StepCursor(value.inside).Next() : value;
  return simple.kind == StepKind::Text ? simple.GetText() : TW::UniString::FromUtf8(simple.text);
}

bool IsArgument(const StepValue& value) { return value.kind != StepKind::End && value.kind != StepKind::Broken; }

IfcValue ReadList(const StepValue& list, const UnitOfValue& unit) {
  if (list.kind != StepKind::List) return {};
  StepCursor items(list.inside);
  const StepValue first = items.Next();
  if (!IsArgument(first)) return {};
  StepValue next = items.Next();
  if (!IsArgument(next)) return ReadValue(first, unit);
  TW::UniString joined = ReadAsText(first);
  for (; IsArgument(next); next = items.Next()) {
    joined += u";";
    joined += ReadAsText(next);
  }
  return {IfcKind::Text, ExpressionValue::FromString(std::move(joined))};
}

}  // namespace

IfcPropertyReader::IfcPropertyReader(const StepFile& file) : shapes_(file.GetClasses().GetCount(), 0) {
  for (std::size_t i = 1; i < std::size(Shapes); ++i)
    if (const std::uint32_t number = file.GetClasses().Find(Shapes[i].name); number != StepClasses::None)
      shapes_[number] = static_cast<std::uint8_t>(i);
}

bool IfcPropertyReader::IsQuantity(std::uint32_t classNumber) const {
  return IsProperty(classNumber) && Shapes[shapes_[classNumber]].content == Content::Quantity;
}

IfcValue IfcPropertyReader::Read(const StepFile& file, const IfcUnits& units, StepFile::Place place) const {
  const Shape& shape = Shapes[shapes_[file.GetClass(place)]];
  const StepCursor arguments = file.GetArguments(place);
  const StepValue value = StepCursor(arguments).NextAfter(shape.value);
  const StepValue ownUnit = StepCursor(arguments).NextAfter(shape.unit);
  const UnitOfValue unit(file, units, ownUnit);
  if (shape.content == Content::List) return ReadList(value, unit);
  if (shape.content != Content::Quantity) return ReadValue(value, unit);
  // A quantity may be written without the full stop of a real number, and stays what its class says.
  return ReadSimple(value.kind == StepKind::Typed ? StepCursor(value.inside).Next() : value, shape.kind, unit);
}

}  // namespace Host
