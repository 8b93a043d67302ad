#include "Resources/TextTable.hpp"

#include <algorithm>

namespace Resources {
namespace {

template <class T>
void SortWithoutRepetition(std::vector<T>& values) {
  std::sort(values.begin(), values.end());
  values.erase(std::unique(values.begin(), values.end()), values.end());
}

// The place of a value in a sorted vector, or the vector's size.
template <class T>
std::size_t FindSorted(const std::vector<T>& values, T value) {
  const auto found = std::lower_bound(values.begin(), values.end(), value);
  if (found == values.end() || *found != value) return values.size();
  return static_cast<std::size_t>(found - values.begin());
}

std::vector<LanguageCode> CollectLanguages(const std::vector<TextArchive>& archives) {
  std::vector<LanguageCode> languages(1);
  for (const TextArchive& archive : archives) {
    languages.insert(languages.end(), archive.GetLanguages().begin(), archive.GetLanguages().end());
  }
  SortWithoutRepetition(languages);
  return languages;
}

std::vector<int> CollectListIds(const std::vector<TextArchive>& archives) {
  std::vector<int> listIds;
  for (const TextArchive& archive : archives) {
    const std::vector<int> more = archive.GetListIds();
    listIds.insert(listIds.end(), more.begin(), more.end());
  }
  SortWithoutRepetition(listIds);
  return listIds;
}

}  // namespace

TextTable::TextTable(std::vector<TextArchive> archives)
    : archives_(std::move(archives)),
      languages_(CollectLanguages(archives_)),
      listIds_(CollectListIds(archives_)),
      lists_(languages_.size() * listIds_.size()) {}

std::size_t TextTable::FindLanguage(LanguageCode language) const {
  // Ends at the root at the latest.
  while (true) {
    const std::size_t index = FindSorted(languages_, language);
    if (index < languages_.size()) return index;
    language = language.GetParent();
  }
}

const TW::UniString& TextTable::Get(LanguageCode language, int listId, int index) const {
  const std::size_t listIndex = FindSorted(listIds_, listId);
  if (listIndex == listIds_.size() || index < 0) return empty_;
  const std::size_t languageIndex = FindLanguage(language);
  const List* list = lists_[languageIndex * listIds_.size() + listIndex].load(std::memory_order_acquire);
  if (list == nullptr) list = &ReadList(languageIndex, listIndex);
  const auto place = static_cast<std::size_t>(index);
  return place < list->size() ? (*list)[place] : empty_;
}

const TextTable::List& TextTable::ReadList(std::size_t languageIndex, std::size_t listIndex) const {
  std::atomic<const List*>& entry = lists_[languageIndex * listIds_.size() + listIndex];
  const std::lock_guard lock(readMutex_);
  if (const List* known = entry.load(std::memory_order_relaxed)) return *known;

  List list;
  for (LanguageCode language = languages_[languageIndex];; language = language.GetParent()) {
    for (const TextArchive& archive : archives_) archive.FillList(language, listIds_[listIndex], list);
    if (language.IsRoot()) break;
  }
  readLists_.push_back(std::move(list));
  entry.store(&readLists_.back(), std::memory_order_release);
  return readLists_.back();
}

}  // namespace Resources
