#include "TW/ClassManager.hpp"

#include "TW/HashTable.hpp"

namespace TW {
namespace {

using ClassTable = HashTable<Guid, const ClassInfo*>;

// Made by the first registration, so that it outlives every static one.
ClassTable& GetClasses() {
  static ClassTable classes;
  return classes;
}

}  // namespace

void ClassManager::Register(const ClassInfo& info) { GetClasses().Add(info.GetGuid(), &info); }

void ClassManager::Unregister(const ClassInfo& info) {
  if (Find(info.GetGuid()) == &info) GetClasses().Remove(info.GetGuid());
}

void ClassManager::EnumerateClassInfos(const std::function<void(const ClassInfo*)>& visit) {
  for (const auto& entry : GetClasses()) visit(entry.value);
}

const ClassInfo* ClassManager::Find(const Guid& guid) {
  const ClassInfo* const* found = GetClasses().Find(guid);
  return found != nullptr ? *found : nullptr;
}

}  // namespace TW
