#include "Host/Display/DisplaySettings.hpp"

#include "Quorix/CalcUnitSettings.hpp"

namespace Host {

QX::ExpressionUnitConverter MakeUnitConverter(const DisplayUnits& units) {
  return QX::ExpressionUnitConverter(QX::CalcUnitSettings(QX::LengthFormat(units.length), QX::AreaFormat(units.area),
                                                          QX::VolumeFormat(units.volume),
                                                          QX::AngleFormat(units.angle)));
}

}  // namespace Host
