#pragma once

#include "Resources/Export.hpp"

#include <string>
#include <string_view>

/// The language in which the whole process speaks to its user. Any thread may ask or set it at any time.
///
/// A tag names a language, perhaps a script and a region: `de`, `de_AT`, `de-AT`, `sr_Latn_RS`, `de_AT.UTF-8`. What
/// follows the region is ignored. Anything that is no tag means `root`, the language of the texts that need no
/// translation (English).

namespace Resources {

/// Sets the language of the texts that are asked for from now on.
RESOURCES_EXPORT void SetLanguage(std::string_view tag);

/// The language in its plain form (`de_AT`), or `root`. The first use takes it from the environment.
RESOURCES_EXPORT std::string GetLanguage();

/// The language that the values of LC_ALL, LC_MESSAGES and LANG ask for: the first that is neither null nor empty
/// decides alone.
RESOURCES_EXPORT std::string GetLanguageOfEnvironment(const char* lcAll, const char* lcMessages, const char* lang);

}  // namespace Resources
