#include "TW/ClassManager.hpp"

#include <algorithm>
#include <unordered_map>
#include <vector>

namespace TW {
namespace {

struct Classes {
  std::vector<const ClassInfo*> inOrder;
  std::unordered_map<Guid, const ClassInfo*> byGuid;
};

// Made by the first registration, so that it outlives every static one.
Classes& GetClasses() {
  static Classes classes;
  return classes;
}

}  // namespace

void ClassManager::Register(const ClassInfo& info) {
  Classes& classes = GetClasses();
  classes.inOrder.push_back(&info);
  classes.byGuid.try_emplace(info.GetGuid(), &info);
}

void ClassManager::Unregister(const ClassInfo& info) {
  Classes& classes = GetClasses();
  std::erase(classes.inOrder, &info);
  const auto found = classes.byGuid.find(info.GetGuid());
  if (found != classes.byGuid.end() && found->second == &info) classes.byGuid.erase(found);
}

void ClassManager::EnumerateClassInfos(const std::function<void(const ClassInfo*)>& visit) {
  for (const ClassInfo* info : GetClasses().inOrder) visit(info);
}

const ClassInfo* ClassManager::Find(const Guid& guid) {
  const auto& byGuid = GetClasses().byGuid;
  const auto found = byGuid.find(guid);
  return found != byGuid.end() ? found->second : nullptr;
}

}  // namespace TW
