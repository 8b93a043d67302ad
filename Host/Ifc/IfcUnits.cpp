#include "Host/Ifc/IfcUnits.hpp"

#include <cmath>
#include <cstddef>
#include <string_view>
#include <utility>

namespace Host {
namespace {

using Place = StepFile::Place;

struct UnitKind {
  std::string_view type;  ///< as units name what they measure
  std::string_view siName;
  int power;  ///< of a prefix
  IfcKind kind;
  StepProblem missing;
};

constexpr UnitKind UnitKinds[] = {
    {"LENGTHUNIT", "METRE", 1, IfcKind::Length, StepProblem::NoLengthUnit},
    {"AREAUNIT", "SQUARE_METRE", 2, IfcKind::Area, StepProblem::NoAreaUnit},
    {"VOLUMEUNIT", "CUBIC_METRE", 3, IfcKind::Volume, StepProblem::NoVolumeUnit},
    {"PLANEANGLEUNIT", "RADIAN", 1, IfcKind::Angle, StepProblem::NoAngleUnit},
};
constexpr std::size_t KindCount = std::size(UnitKinds);

constexpr std::pair<std::string_view, int> Prefixes[] = {
    {"EXA", 18},  {"PETA", 15},  {"TERA", 12},   {"GIGA", 9},   {"MEGA", 6},   {"KILO", 3},
    {"HECTO", 2}, {"DECA", 1},   {"DECI", -1},   {"CENTI", -2}, {"MILLI", -3}, {"MICRO", -6},
    {"NANO", -9}, {"PICO", -12}, {"FEMTO", -15}, {"ATTO", -18},
};

std::size_t IndexOf(IfcKind kind) {
  std::size_t index = 0;
  while (index < KindCount && UnitKinds[index].kind != kind) ++index;
  return index;
}

const UnitKind* FindType(const StepValue& type) {
  if (type.kind != StepKind::Enumeration) return nullptr;
  for (const UnitKind& kind : UnitKinds)
    if (kind.type == type.text) return &kind;
  return nullptr;
}

// Powers of ten are exact as divisors where they are not as factors.
double ScaleByTens(int exponent) { return exponent < 0 ? 1 / std::pow(10.0, -exponent) : std::pow(10.0, exponent); }

TW::Optional<double> ReadPrefix(const StepValue& prefix, int power) {
  if (prefix.kind == StepKind::Absent) return 1.0;
  for (const auto& [name, exponent] : Prefixes)
    if (prefix.kind == StepKind::Enumeration && name == prefix.text) return ScaleByTens(exponent * power);
  return {};
}

// Dimensions, type, prefix, name.
TW::Optional<IfcUnit> ReadSiUnit(StepCursor arguments) {
  const UnitKind* kind = FindType(arguments.NextAfter(1));
  if (kind == nullptr) return {};
  const TW::Optional<double> prefix = ReadPrefix(arguments.Next(), kind->power);
  const StepValue name = arguments.Next();
  if (!prefix || name.kind != StepKind::Enumeration || name.text != kind->siName) return {};
  return IfcUnit{kind->kind, *prefix};
}

bool IsConversion(std::string_view name) {
  return name == "IFCCONVERSIONBASEDUNIT" || name == "IFCCONVERSIONBASEDUNITWITHOFFSET";
}

std::string_view NameOfClass(const StepFile& file, Place place) {
  return file.GetClasses().GetName(file.GetClass(place));
}

struct Conversion {
  double factor;
  Place base;
};

// Dimensions, type, name, a measure with unit: that is, value and unit.
TW::Optional<Conversion> ReadConversion(const StepFile& file, StepCursor arguments) {
  const TW::Optional<Place> measure = file.Find(arguments.NextAfter(3));
  if (!measure) return {};
  StepCursor parts = file.GetArguments(*measure);
  const StepValue value = parts.Next();
  const TW::Optional<double> factor =
      value.kind == StepKind::Typed ? StepCursor(value.inside).Next().GetNumber() : value.GetNumber();
  const TW::Optional<Place> base = file.Find(parts.Next());
  if (!factor || !base || !(*factor > 0)) return {};
  return Conversion{*factor, *base};
}

TW::Optional<Place> FindAssignment(const StepFile& file) {
  const std::uint32_t project = file.GetClasses().Find("IFCPROJECT");
  const std::uint32_t assignment = file.GetClasses().Find("IFCUNITASSIGNMENT");
  if (assignment == StepClasses::None) return {};
  TW::Optional<Place> first;
  for (Place place = 0; place < file.GetIndex().GetCount(); ++place) {
    const std::uint32_t number = file.GetClass(place);
    if (number == assignment && !first) first = place;
    if (number != project || project == StepClasses::None) continue;
    constexpr unsigned int UnitsOfProject = 8;
    const TW::Optional<Place> own = file.Find(file.GetArguments(place).NextAfter(UnitsOfProject));
    if (own && file.GetClass(*own) == assignment) return own;
  }
  return first;
}

}  // namespace

TW::Optional<IfcUnit> ReadIfcUnit(const StepFile& file, StepFile::Place place) {
  // A unit may be defined by one that is defined by another; a circle of them is none.
  constexpr int MaximumDepth = 8;
  double factor = 1;
  const UnitKind* wanted = nullptr;
  for (int depth = 0; depth < MaximumDepth; ++depth) {
    const StepCursor arguments = file.GetArguments(place);
    const std::string_view name = NameOfClass(file, place);
    if (name == "IFCSIUNIT") {
      TW::Optional<IfcUnit> unit = ReadSiUnit(arguments);
      if (!unit || (wanted != nullptr && wanted->kind != unit->kind)) return {};
      unit->factor *= factor;
      return std::isfinite(unit->factor) ? unit : TW::Optional<IfcUnit>();
    }
    const TW::Optional<Conversion> conversion =
        IsConversion(name) ? ReadConversion(file, arguments) : TW::Optional<Conversion>();
    if (!conversion) return {};
    if (wanted == nullptr) wanted = FindType(StepCursor(arguments).NextAfter(1));
    if (wanted == nullptr) return {};
    factor *= conversion->factor;
    place = conversion->base;
  }
  return {};
}

IfcUnits IfcUnits::Read(const StepFile& file, StepMessages& messages) {
  IfcUnits units;
  bool found[KindCount] = {};
  const TW::Optional<Place> assignment = FindAssignment(file);
  if (assignment) {
    StepCursor list(file.GetArguments(*assignment).Next().inside);
    for (StepValue value = list.Next(); value.kind == StepKind::Reference; value = list.Next()) {
      const TW::Optional<Place> place = file.Find(value);
      const TW::Optional<IfcUnit> unit = place ? ReadIfcUnit(file, *place) : TW::Optional<IfcUnit>();
      const std::size_t index = unit ? IndexOf(unit->kind) : KindCount;
      if (index >= KindCount || std::exchange(found[index], true)) continue;
      units.factors_[index] = unit->factor;
    }
  }
  const std::size_t position = assignment ? file.GetIndex().GetPosition(*assignment) : StepMessages::NoPlace;
  const std::uint64_t id = assignment ? file.GetIndex().GetId(*assignment) : 0;
  for (std::size_t i = 0; i < KindCount; ++i)
    if (!found[i]) messages.Add(UnitKinds[i].missing, position, id);
  return units;
}

double IfcUnits::GetFactor(IfcKind kind) const {
  const std::size_t index = IndexOf(kind);
  return index < KindCount ? factors_[index] : 1;
}

}  // namespace Host
