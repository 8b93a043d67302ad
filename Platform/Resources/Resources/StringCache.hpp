#pragma once

#include "Resources/Export.hpp"
#include "TW/UniString.hpp"

#include <memory>

namespace Resources {

class TextModule;

/// Gives the texts of one resource file by reference, without a copy. Any thread may ask; a text whose list was asked
/// for before in the same language is found in some nanoseconds without a lock. Memory is bounded by the texts of the
/// file, whatever is asked for and however often the language changes.
class RESOURCES_EXPORT StringCache {
 public:
  /// Binds the cache to what stands behind the handle now: a file, which it goes on using after the handle is closed,
  /// or the built-in texts when no file is open under it.
  explicit StringCache(int moduleHandle);
  ~StringCache();
  StringCache(const StringCache&) = delete;
  StringCache& operator=(const StringCache&) = delete;

  /// The text at `index` of list `listId` in the language of the process; empty when there is none. It stays as long as
  /// the cache.
  const TW::UniString& Get(int listId, int index) const;

 private:
  std::shared_ptr<const TextModule> module_;
};

}  // namespace Resources
