#pragma once

#include "Host/Json/JsonWriter.hpp"
#include "Host/Report/ReportScope.hpp"
#include "TW/UniString.hpp"

#include <cstddef>
#include <vector>

namespace Host {

/// One kind of failure.
struct SummaryError {
  TW::UniString name;     ///< of the exception, as in failure reports
  short index = 0;        ///< of the message; 0 when the failure is no exception
  TW::UniString message;  ///< in the user's language
  std::size_t count = 0;  ///< of cells
};

/// What became of the chosen cells.
struct Summary {
  std::size_t elements = 0;
  std::size_t values = 0;     ///< defined ones
  std::size_t undefined = 0;  ///< user-undefined values
  std::size_t absent = 0;     ///< properties that do not apply, or have no value yet
  std::size_t failed = 0;
  std::vector<SummaryError> errors;  ///< the most frequent first
};

/// Counts. Takes time linear in the number of cells.
Summary MakeSummary(const ReportScope& scope);

/// Writes lines for people.
void WriteSummary(const Summary& summary, const ReportSink& sink);
/// Writes an object.
void WriteSummary(const Summary& summary, JsonWriter& writer);

}  // namespace Host
