#pragma once

#include "Host/Ifc/IfcValue.hpp"
#include "Host/Ifc/StepFile.hpp"
#include "TW/FixArray.hpp"
#include "TW/Optional.hpp"

namespace Host {

/// A unit of length, area, volume or angle.
struct IfcUnit {
  IfcKind kind;
  double factor;  ///< what one of the unit is in base units
};

/// Reads an instance that is a unit: an SI unit with its prefix, or one that is defined by another. Gives nothing for
/// units of other kinds and broken ones.
TW::Optional<IfcUnit> ReadIfcUnit(const StepFile& file, StepFile::Place place);

/// The units in which a model states its lengths, areas, volumes and angles.
class IfcUnits {
 public:
  /// Reads the units of the project; where there is none, the base unit is assumed and a message added.
  static IfcUnits Read(const StepFile& file, StepMessages& messages);

  /// What one of the project's units is in base units; 1 for kinds without unit.
  double GetFactor(IfcKind kind) const;

 private:
  TW::FixArray<double, 4> factors_{1, 1, 1, 1};
};

}  // namespace Host
