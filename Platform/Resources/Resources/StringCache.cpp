#include "Resources/StringCache.hpp"

#include "Resources/LanguageCode.hpp"
#include "Resources/TextModule.hpp"

namespace Resources {

StringCache::StringCache(int moduleHandle) : module_(FindTextModule(moduleHandle)) {}

StringCache::~StringCache() = default;

const TW::UniString& StringCache::Get(int listId, int index) const {
  return module_->Get(GetCurrentLanguage(), listId, index);
}

}  // namespace Resources
