#pragma once

#include "Resources/TextTable.hpp"

#include <atomic>
#include <memory>
#include <mutex>
#include <string>

namespace Resources {

/// What stands behind a handle: the texts of a file over those that are built in. The file is read at the first
/// look-up. Any thread may ask.
class TextModule {
 public:
  /// An empty path stands for the built-in texts alone.
  explicit TextModule(std::string path) : path_(std::move(path)) {}

  /// The text, or an empty one; it stays as long as the module.
  const TW::UniString& Get(LanguageCode language, int listId, int index) const {
    const TextTable* table = table_.load(std::memory_order_acquire);
    return (table != nullptr ? *table : OpenTable()).Get(language, listId, index);
  }

 private:
  const TextTable& OpenTable() const;

  std::string path_;
  mutable std::mutex openMutex_;
  mutable std::unique_ptr<const TextTable> openTable_;
  mutable std::atomic<const TextTable*> table_ = nullptr;
};

/// The module of a handle; the one of the built-in texts when no file is open under it.
std::shared_ptr<const TextModule> FindTextModule(int moduleHandle);

}  // namespace Resources
