#include "TW/ClassInfo.hpp"

#include "TW/ClassManager.hpp"
#include "TW/Object.hpp"

namespace TW {

ClassInfo::ClassInfo(std::string_view name, std::string_view guid, unsigned short version, const ClassInfo* base,
                     ConstructorFunction construct)
    : name_(name), guid_(guid), version_(version), base_(base), construct_(construct) {
  ClassManager::Register(*this);
}

ClassInfo::~ClassInfo() { ClassManager::Unregister(*this); }

bool ClassInfo::IsCompatibleWith(const ClassInfo& other) const {
  for (const ClassInfo* info = this; info != nullptr; info = info->base_) {
    if (info->guid_ == other.guid_) return true;
  }
  return false;
}

Ref<Object> ClassInfo::CreateNewInstance() const { return construct_ != nullptr ? construct_() : Ref<Object>(); }

}  // namespace TW
