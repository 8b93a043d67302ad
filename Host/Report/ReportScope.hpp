#pragma once

#include "Host/Display/DisplayText.hpp"
#include "Host/Model/ElementSource.hpp"
#include "Host/PropertyTable.hpp"

#include <functional>
#include <string_view>
#include <vector>

namespace Host {

/// What a report is about. Keeps references; all must live as long as it is used.
struct ReportScope {
  const PropertyTable& table;
  const ElementSource& source;
  const DisplayText& display;
  std::vector<ElementIndex> elements;     ///< those that are told of, in order
  std::vector<PropertyIndex> properties;  ///< those that are told of, in order
};

/// Takes a piece of a report, in UTF-8.
using ReportSink = std::function<void(std::string_view)>;

}  // namespace Host
