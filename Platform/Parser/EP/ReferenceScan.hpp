#pragma once

#include <cstddef>
#include <string_view>

namespace EP {

enum class ReferenceOutcome {
  None,          ///< what begins there is no reference
  Unterminated,  ///< the text ends before the reference does
  Complete,
};

/// What became of looking for a reference.
struct ReferenceScan {
  ReferenceOutcome outcome = ReferenceOutcome::None;
  std::size_t separator = 0;  ///< the position of the sign between type and value, when the reference is complete
  std::size_t end = 0;        ///< the position after the closing bracket, when the reference is complete
};

/// Looks at the reference whose opening bracket stands at `position`.
ReferenceScan ScanReference(std::u16string_view text, std::size_t position);

}  // namespace EP
