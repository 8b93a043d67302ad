#pragma once

#include "Host/Json/JsonDocument.hpp"
#include "Quorix/ExpressionValue.hpp"
#include "TW/Optional.hpp"

namespace Command {

/// Reads the value of a property in a request; nothing for one that is to fail. Throws `RequestError`.
TW::Optional<QX::ExpressionValue> ReadPropertyValue(const Host::JsonValue& value);

}  // namespace Command
