#include "Host/Report/FailureReports.hpp"

namespace Host {

std::size_t FailureReports::FindNumber(PropertyIndex property, ElementIndex element) {
  const FailureKey key{property, *scope_.table.FindFailure(property, element)};
  if (const std::size_t* number = numbers_.Find(key)) return *number;
  reports_.push_back(*scope_.table.GetFailureReport(property, element, scope_.display.GetLocale()));
  numbers_.Add(key, reports_.size() - 1);
  return reports_.size() - 1;
}

}  // namespace Host
