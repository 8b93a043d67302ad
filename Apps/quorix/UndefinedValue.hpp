#pragma once

#include "Quorix/ExpressionValue.hpp"
#include "TW/Optional.hpp"

#include <string_view>

namespace Command {

/// The undefined value that a text such as `undefined length` asks for; nothing for any other text.
TW::Optional<QX::ExpressionValue> FindUndefinedValue(std::string_view text);

}  // namespace Command
