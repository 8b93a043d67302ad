#pragma once

#include "TW/ClassInfo.hpp"
#include "TW/Export.hpp"
#include "TW/Guid.hpp"

#include <functional>

namespace TW {

/// All registered classes; of several with one GUID, only the first. They are registered while the library is loaded;
/// after that every operation only reads and may be called from any thread.
class TW_EXPORT ClassManager {
 public:
  ClassManager() = delete;

  /// Calls `visit` for every registered class, in the order of registration.
  static void EnumerateClassInfos(const std::function<void(const ClassInfo*)>& visit);
  /// The class with this GUID, or null.
  static const ClassInfo* Find(const Guid& guid);

 private:
  friend class ClassInfo;

  static void Register(const ClassInfo& info);
  static void Unregister(const ClassInfo& info);
};

}  // namespace TW
