#include "Host/Display/UnitNames.hpp"

#include "TW/UniString.hpp"

#include <cstddef>

namespace Host {
namespace {

template <class Unit>
struct Row {
  std::u16string_view name;
  Unit unit;
};

constexpr Row<TWUnit::LengthUnit> LengthUnits[] = {
    {u"m", TWUnit::LengthUnit::Meter},
    {u"dm", TWUnit::LengthUnit::Decimeter},
    {u"cm", TWUnit::LengthUnit::Centimeter},
    {u"mm", TWUnit::LengthUnit::Millimeter},
    {u"ft-frac", TWUnit::LengthUnit::FootFractionalInch},
    {u"ft-dec", TWUnit::LengthUnit::FootDecimalInch},
    {u"ft", TWUnit::LengthUnit::DecimalFoot},
    {u"in-frac", TWUnit::LengthUnit::FractionalInch},
    {u"in", TWUnit::LengthUnit::DecimalInch},
};

constexpr Row<TWUnit::AreaUnit> AreaUnits[] = {
    {u"m2", TWUnit::AreaUnit::SquareMeter},       {u"cm2", TWUnit::AreaUnit::SquareCentimeter},
    {u"mm2", TWUnit::AreaUnit::SquareMillimeter}, {u"ft2", TWUnit::AreaUnit::SquareFoot},
    {u"in2", TWUnit::AreaUnit::SquareInch},
};

constexpr Row<TWUnit::VolumeUnit> VolumeUnits[] = {
    {u"m3", TWUnit::VolumeUnit::CubicMeter},       {u"l", TWUnit::VolumeUnit::Liter},
    {u"cm3", TWUnit::VolumeUnit::CubicCentimeter}, {u"y3", TWUnit::VolumeUnit::CubicYard},
    {u"ft3", TWUnit::VolumeUnit::CubicFoot},       {u"in3", TWUnit::VolumeUnit::CubicInch},
    {u"gal", TWUnit::VolumeUnit::Gallon},
};

constexpr Row<TWUnit::AngleUnit> AngleUnits[] = {
    {u"degree", TWUnit::AngleUnit::DecimalDegree},
    {u"dms", TWUnit::AngleUnit::DegreeMinuteSecond},
    {u"gon", TWUnit::AngleUnit::Gradian},
    {u"rad", TWUnit::AngleUnit::Radian},
};

template <class Unit, std::size_t Count>
bool Find(const Row<Unit> (&rows)[Count], std::u16string_view name, Unit& unit) {
  for (const Row<Unit>& row : rows) {
    if (row.name != name) continue;
    unit = row.unit;
    return true;
  }
  return false;
}

template <class Unit, std::size_t Count>
std::string List(const Row<Unit> (&rows)[Count]) {
  std::string names;
  for (const Row<Unit>& row : rows) names += (names.empty() ? "" : ", ") + TW::UniString(row.name).ToUtf8();
  return names;
}

}  // namespace

bool FindUnit(std::u16string_view name, TWUnit::LengthUnit& unit) { return Find(LengthUnits, name, unit); }

bool FindUnit(std::u16string_view name, TWUnit::AreaUnit& unit) { return Find(AreaUnits, name, unit); }

bool FindUnit(std::u16string_view name, TWUnit::VolumeUnit& unit) { return Find(VolumeUnits, name, unit); }

bool FindUnit(std::u16string_view name, TWUnit::AngleUnit& unit) { return Find(AngleUnits, name, unit); }

std::string GetUnitNames(TWUnit::LengthUnit) { return List(LengthUnits); }

std::string GetUnitNames(TWUnit::AreaUnit) { return List(AreaUnits); }

std::string GetUnitNames(TWUnit::VolumeUnit) { return List(VolumeUnits); }

std::string GetUnitNames(TWUnit::AngleUnit) { return List(AngleUnits); }

}  // namespace Host
