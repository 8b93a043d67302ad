#pragma once

#include "Host/Report/ReportScope.hpp"

#include <string>
#include <string_view>

namespace Host {

/// Appends the formula of a property, with the place underlined where it has failed. Nothing for an input.
void AppendFailureExcerpt(std::string& out, std::string_view indentation, const ReportScope& scope,
                          PropertyIndex property, const Failure& failure, const FailureReport& report);

}  // namespace Host
