#pragma once

#include "Resources/LanguageCode.hpp"
#include "Resources/TextArchive.hpp"
#include "TW/UniString.hpp"

#include <atomic>
#include <deque>
#include <mutex>
#include <vector>

namespace Resources {

/// The texts of several archives as one, each list read from the archives when it is first asked for in a language.
/// Where a text is missing in a language, the next archive answers, and after the last archive the parent language.
/// Memory is bounded by the texts of the archives. Any thread may ask; a list that was read is found without a lock.
class TextTable {
 public:
  /// The first archive that has a text wins.
  explicit TextTable(std::vector<TextArchive> archives);
  TextTable(const TextTable&) = delete;
  TextTable& operator=(const TextTable&) = delete;

  /// The text, or an empty one; it stays as long as the table.
  const TW::UniString& Get(LanguageCode language, int listId, int index) const;

 private:
  using List = TextArchive::List;

  std::size_t FindLanguage(LanguageCode language) const;
  const List& ReadList(std::size_t languageIndex, std::size_t listIndex) const;

  std::vector<TextArchive> archives_;
  std::vector<LanguageCode> languages_;  // sorted, with the root
  std::vector<int> listIds_;             // sorted
  TW::UniString empty_;
  mutable std::vector<std::atomic<const List*>> lists_;  // a row for each language
  mutable std::mutex readMutex_;
  mutable std::deque<List> readLists_;  // where the pointers of lists_ lead
};

}  // namespace Resources
