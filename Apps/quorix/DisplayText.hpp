#pragma once

#include "Environment.hpp"
#include "Quorix/ExpressionValue.hpp"
#include "TW/Optional.hpp"
#include "TW/UniString.hpp"

namespace Command {

/// The text that shows a value to people; nothing for an invalid value, and for a quantity of a dimension without units
/// or beyond what its unit can show.
TW::Optional<TW::UniString> GetDisplayText(const QX::ExpressionValue& value, const Environment& environment);

/// The same, but in base units where there is no such text, as in `16 m^4`; empty for an invalid value only.
TW::UniString GetTextForPeople(const QX::ExpressionValue& value, const Environment& environment);

}  // namespace Command
