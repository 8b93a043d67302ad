#include "Environment.hpp"

namespace Command {
Environment::Environment(const Settings& settings) : settings_(settings), display_(settings.display, settings.locale) {}

void Environment::SetSettings(const Settings& settings) {
  settings_ = settings;
  display_ = Host::DisplayText(settings.display, settings.locale);
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
