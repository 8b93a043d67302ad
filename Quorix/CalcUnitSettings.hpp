#pragma once

#include "Quorix/Export.hpp"
#include "Quorix/UnitFormat.hpp"

namespace QX {

/// The units in which a user works, one format for each kind of quantity.
class QX_EXPORT CalcUnitSettings {
 public:
  CalcUnitSettings(const LengthFormat& length, const AreaFormat& area, const VolumeFormat& volume,
                   const AngleFormat& angle)
      : length_(length), area_(area), volume_(volume), angle_(angle) {}

  const LengthFormat& GetLengthFormat() const { return length_; }
  const AreaFormat& GetAreaFormat() const { return area_; }
  const VolumeFormat& GetVolumeFormat() const { return volume_; }
  const AngleFormat& GetAngleFormat() const { return angle_; }

 private:
  LengthFormat length_;
  AreaFormat area_;
  VolumeFormat volume_;
  AngleFormat angle_;
};

}  // namespace QX
