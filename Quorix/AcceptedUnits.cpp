#include "Quorix/AcceptedUnits.hpp"

#include "TW/HashTable.hpp"

namespace QX {
namespace {

using UnitTable = TW::HashTable<TW::UniString, AcceptedUnit>;

// The set is uneven on purpose, and the gallon is the rounded one: stored formulas rely on both.
UnitTable MakeUnitTable() {
  constexpr UnitExponents Length = UnitExponents::CreateLength();
  constexpr UnitExponents Area = UnitExponents::CreateArea();
  constexpr UnitExponents Volume = UnitExponents::CreateVolume();
  constexpr UnitExponents Angle = UnitExponents::CreateAngle();

  UnitTable units;
  units.Add(u"m", {1.0, Length});
  units.Add(u"dm", {0.1, Length});
  units.Add(u"cm", {0.01, Length});
  units.Add(u"mm", {0.001, Length});
  units.Add(u"'", {0.3048, Length});
  units.Add(u"ft", {0.3048, Length});
  units.Add(u"\"", {0.0254, Length});
  units.Add(u"in", {0.0254, Length});
  units.Add(u"m2", {1.0, Area});
  units.Add(u"cm2", {0.0001, Area});
  units.Add(u"mm2", {1e-6, Area});
  units.Add(u"ft2", {0.09290304, Area});
  units.Add(u"in2", {0.00064516, Area});
  units.Add(u"m3", {1.0, Volume});
  units.Add(u"l", {0.001, Volume});
  units.Add(u"cm3", {1e-6, Volume});
  units.Add(u"y3", {0.764554857984, Volume});
  units.Add(u"ft3", {0.028316846592, Volume});
  units.Add(u"in3", {1.6387064e-05, Volume});
  units.Add(u"gal", {0.0037854, Volume});
  units.Add(u"D", {0.017453292519943295, Angle});
  units.Add(u"R", {1.0, Angle});
  units.Add(u"G", {0.015707963267948967, Angle});
  return units;
}

const UnitTable& GetUnitTable() {
  static const UnitTable units = MakeUnitTable();
  return units;
}

}  // namespace

const AcceptedUnit* FindAcceptedUnit(const TW::UniString& marker) { return GetUnitTable().Find(marker); }

void EnumerateAcceptedUnits(const std::function<void(const TW::UniString& marker, const AcceptedUnit& unit)>& visit) {
  for (const auto& entry : GetUnitTable()) visit(entry.key, entry.value);
}

}  // namespace QX
