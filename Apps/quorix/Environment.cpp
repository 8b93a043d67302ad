#include "Environment.hpp"

namespace Command {
namespace {

QX::ExpressionUnitConverter MakeConverter(const DisplayUnits& units) {
  return QX::ExpressionUnitConverter(QX::CalcUnitSettings(QX::LengthFormat(units.length), QX::AreaFormat(units.area),
                                                          QX::VolumeFormat(units.volume),
                                                          QX::AngleFormat(units.angle)));
}

}  // namespace

Environment::Environment(const Settings& settings) : settings_(settings), converter_(MakeConverter(settings.units)) {}

void Environment::SetSettings(const Settings& settings) {
  settings_ = settings;
  converter_ = MakeConverter(settings.units);
}

void Environment::Reset(const Settings& settings) {
  SetSettings(settings);
  if (!values_.IsEmpty()) values_.Clear();
  if (!statuses_.IsEmpty()) statuses_.Clear();
}

QX::EvaluableStatus Environment::GetPropertyEvaluableStatus(const TW::Guid& propertyId) const {
  const QX::EvaluableStatus* status = statuses_.Find(propertyId);
  return status == nullptr ? QX::EvaluableStatus::Evaluable : *status;
}

}  // namespace Command
