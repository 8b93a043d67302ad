#pragma once

#include "Host/Json/JsonWriter.hpp"
#include "TW/Optional.hpp"
#include "TW/Range.hpp"
#include "TW/UniString.hpp"

#include <string_view>

namespace Host {

/// What programs are told of a failure.
struct FailureFacts {
  std::string_view stage;  ///< printable ASCII
  TW::UniString name;
  short index = 0;  ///< of the message in its list; 0 when it has none
  TW::UniString message;
  TW::Optional<TW::Range<unsigned int>> place = {};  ///< in 16-bit units of the formula's text
  TW::Optional<TW::Range<unsigned int>> span = {};   ///< of the place and everything below it
};

/// Writes a failure as an object.
void WriteFailure(JsonWriter& writer, const FailureFacts& failure);

}  // namespace Host
