#pragma once

#include "Host/Json/JsonWriter.hpp"
#include "Quorix/ExpressionValue.hpp"

namespace Host {

/// Writes a value as an object that tells its kind, and for numbers the exponents of length and angle.
void WriteValue(JsonWriter& writer, const QX::ExpressionValue& value);

}  // namespace Host
