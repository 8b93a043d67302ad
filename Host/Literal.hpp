#pragma once

#include "EP/LocaleSettings.hpp"
#include "Quorix/ExpressionValue.hpp"

#include <string_view>

namespace Host {

/// The value of a text that holds one number, with or without sign and unit (`-3.5 m`, `5 1/2"`), or a logical value,
/// written as in formulas with these separators; blanks at the ends do not count. Invalid for anything else, formulas
/// included.
QX::ExpressionValue ReadLiteral(std::u16string_view text, const EP::IParsingLocaleSettings& settings);

}  // namespace Host
