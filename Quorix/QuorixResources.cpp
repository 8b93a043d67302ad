#include "Quorix/QuorixResources.hpp"

#include "Resources/StringCache.hpp"

namespace QX {

const TW::UniString& GetResourceString(int listId, int index) {
  static const Resources::StringCache cache(GetQuorixResModule());
  return cache.Get(listId, index);
}

}  // namespace QX
