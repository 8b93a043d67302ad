#pragma once

#include "Host/Ifc/IfcUnits.hpp"
#include "Host/Ifc/IfcValue.hpp"
#include "Host/Ifc/StepFile.hpp"

#include <cstdint>
#include <vector>

namespace Host {

/// Reads the values of properties and quantities from their instances. Refers to the file and the units, which must
/// outlive it; any number of threads may use one object.
class IfcPropertyReader {
 public:
  explicit IfcPropertyReader(const StepFile& file);

  /// Whether instances of a class are properties or quantities that this reader knows.
  bool IsProperty(std::uint32_t classNumber) const { return shapes_[classNumber] != 0; }
  /// Whether instances of a class are quantities.
  bool IsQuantity(std::uint32_t classNumber) const;
  /// The value of a property or quantity. Several values of one property become a text, joined by semicolons.
  IfcValue Read(const StepFile& file, const IfcUnits& units, StepFile::Place place) const;

 private:
  std::vector<std::uint8_t> shapes_;  ///< by class: how its values stand, or 0
};

}  // namespace Host
