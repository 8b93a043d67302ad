#pragma once

#include "Quorix/Export.hpp"
#include "Quorix/FunctionNodeRegistry.hpp"
#include "Quorix/IdentitiferNodeRegistry.hpp"
#include "Quorix/OperatorNodeRegistry.hpp"
#include "TW/UniChar.hpp"

/// The vocabulary of the language, and the characters that its words may hold.

namespace QX {

/// Whether a function's name may hold the character: letters and digits.
QX_EXPORT bool IsValidFunctionChar(const TW::UniChar& character);
/// Whether a constant's name may hold the character: letters and digits.
QX_EXPORT bool IsValidIdentifierChar(const TW::UniChar& character);
/// Whether the character occurs in the sign of an operator.
QX_EXPORT bool IsValidOperatorChar(const TW::UniChar& character);

}  // namespace QX
