#pragma once

#include "Environment.hpp"
#include "Evaluation.hpp"
#include "Host/Json/JsonWriter.hpp"
#include "Quorix/ExpressionString.hpp"
#include "Quorix/ExpressionValue.hpp"
#include "TW/Range.hpp"

#include <string_view>

/// What is told of a formula in JSON.

namespace Command {

/// The display text or null, after the key `display`.
void WriteDisplay(Host::JsonWriter& writer, const QX::ExpressionValue& value, const Environment& environment);
/// The failure as an object; `text` is where the formula was rendered, and not needed for a failure of syntax.
void WriteFailure(Host::JsonWriter& writer, const Failure& failure, const QX::ExpressionString& text);

/// The whole answer for a formula. `id` is the JSON that names the request; empty when nothing does.
void WriteAnswer(Host::JsonWriter& writer, std::string_view id, const Evaluation& evaluation,
                 const Environment& environment);
/// The answer for a request of which nothing could be made.
void WriteRefusal(Host::JsonWriter& writer, std::string_view id, std::string_view name, std::u16string_view message);

}  // namespace Command
