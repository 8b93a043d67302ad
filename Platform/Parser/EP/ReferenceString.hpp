#pragma once

#include "EP/Export.hpp"
#include "TW/UniString.hpp"

#include <functional>
#include <string_view>

/// The text of a reference: `[Type:Value]`. The type is a letter, then letters and digits; within the value `\]` is a
/// closing bracket and `\\` a backslash.

namespace EP {

/// The text that refers to `value` as a `type`.
EP_EXPORT TW::UniString MakeReferenceString(std::u16string_view type, std::u16string_view value);

/// Whether `text` is one reference of this type and nothing else. Case counts.
EP_EXPORT bool IsWellFormedReferenceString(std::u16string_view text, std::u16string_view type);

/// Takes the value, without escapes, out of a text that is one reference of any type; otherwise gives false and leaves
/// `value` unchanged.
EP_EXPORT bool GetRefValueFromReferenceFormat(std::u16string_view text, TW::UniString& value);

/// Calls `visit` for every reference of this type in `text`, from left to right, wherever it stands (in a quoted text
/// or in the value of another reference too), with the position of its opening bracket and its value without escapes.
/// The value lives as long as the call. Takes time linear in the length of the text, as long as `visit` does not go
/// through whole values: those of references within each other share their ends.
EP_EXPORT void EnumerateReferenceValues(
    std::u16string_view text, std::u16string_view type,
    const std::function<void(unsigned int position, std::u16string_view value)>& visit);

/// The length of the reference that begins at `position`, 0 when none does.
EP_EXPORT unsigned int GetReferenceStringLength(std::u16string_view text, unsigned int position);

}  // namespace EP
