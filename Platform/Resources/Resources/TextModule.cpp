#include "Resources/TextModule.hpp"

namespace Resources {
namespace {

std::vector<TextArchive> OpenArchives(const std::string& path) {
  std::vector<TextArchive> archives;
  if (!path.empty()) {
    if (auto file = TextArchive::OpenFile(path)) archives.push_back(std::move(*file));
  }
  auto builtIn = TextArchive::OpenBuiltIn();
  const bool isNew = builtIn && (archives.empty() || archives[0].GetPackageName() != builtIn->GetPackageName());
  if (isNew) archives.push_back(std::move(*builtIn));
  return archives;
}

}  // namespace

const TextTable& TextModule::OpenTable() const {
  const std::lock_guard lock(openMutex_);
  if (!openTable_) {
    openTable_ = std::make_unique<const TextTable>(OpenArchives(path_));
    table_.store(openTable_.get(), std::memory_order_release);
  }
  return *openTable_;
}

}  // namespace Resources
