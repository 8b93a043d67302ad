#pragma once

#include "Host/Report/FailureKey.hpp"
#include "Host/Report/ReportScope.hpp"
#include "TW/HashTable.hpp"

#include <cstddef>
#include <deque>

namespace Host {

/// What people are told of failed cells, made once for each failure of a property however many elements it befalls.
/// Keeps a reference to the scope. One thread at a time.
class FailureReports {
 public:
  explicit FailureReports(const ReportScope& scope) : scope_(scope) {}

  /// The number of the report on a cell that has failed, from 0 in the order in which they were asked for first.
  std::size_t FindNumber(PropertyIndex property, ElementIndex element);
  /// Lives as long as this object.
  const FailureReport& Get(std::size_t number) const { return reports_[number]; }
  const FailureReport& Get(PropertyIndex property, ElementIndex element) { return Get(FindNumber(property, element)); }
  std::size_t GetCount() const { return reports_.size(); }

 private:
  const ReportScope& scope_;
  TW::HashTable<FailureKey, std::size_t, FailureKeyHash> numbers_;
  std::deque<FailureReport> reports_;
};

}  // namespace Host
