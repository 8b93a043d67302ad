#pragma once

#include "Environment.hpp"
#include "Evaluation.hpp"
#include "JsonWriter.hpp"
#include "Quorix/ExpressionString.hpp"
#include "Quorix/ExpressionValue.hpp"
#include "TW/Range.hpp"

#include <string_view>

/// What is told of a formula in JSON.

namespace Command {

/// The smallest range that holds the text of a node and of everything below it.
TW::Range<unsigned int> GetSpan(const QX::ExpressionString& text, const QX::ExpressionNode& node);

void WriteValue(JsonWriter& writer, const QX::ExpressionValue& value);
/// The display text or null, after the key `display`.
void WriteDisplay(JsonWriter& writer, const QX::ExpressionValue& value, const Environment& environment);
/// The failure as an object; `text` is where the formula was rendered, and not needed for a failure of syntax.
void WriteFailure(JsonWriter& writer, const Failure& failure, const QX::ExpressionString& text);

/// The whole answer for a formula. `id` is the JSON that names the request; empty when nothing does.
void WriteAnswer(JsonWriter& writer, std::string_view id, const Evaluation& evaluation, const Environment& environment);
/// The answer for a request of which nothing could be made.
void WriteRefusal(JsonWriter& writer, std::string_view id, std::string_view name, std::u16string_view message);

}  // namespace Command
