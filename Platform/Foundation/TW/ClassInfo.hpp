#pragma once

#include "TW/Export.hpp"
#include "TW/Guid.hpp"
#include "TW/Ref.hpp"

#include <string_view>

namespace TW {

class Object;

/// The registration of a class: its name, the GUID that identifies it in stored data, its version there, its base class
/// and, unless it is abstract, how an empty instance is made. A class keeps one as a static member; making it enters it
/// in the `ClassManager`, destroying it takes it out. Classes are compared by GUID.
class TW_EXPORT ClassInfo {
 public:
  using ConstructorFunction = Ref<Object> (*)();

  /// `name` is the bare class name and must live as long as the registration. `base` may still be unmade: only its
  /// address is kept.
  ClassInfo(std::string_view name, std::string_view guid, unsigned short version, const ClassInfo* base,
            ConstructorFunction construct = nullptr);
  ~ClassInfo();
  ClassInfo(const ClassInfo&) = delete;
  ClassInfo& operator=(const ClassInfo&) = delete;

  std::string_view GetName() const { return name_; }
  const Guid& GetGuid() const { return guid_; }
  unsigned short GetVersion() const { return version_; }
  const ClassInfo* GetBase() const { return base_; }

  /// Whether the class is `other` or derives from it.
  bool IsCompatibleWith(const ClassInfo& other) const;
  /// A new empty instance, or an empty reference for an abstract class.
  Ref<Object> CreateNewInstance() const;

 private:
  std::string_view name_;
  Guid guid_;
  unsigned short version_;
  const ClassInfo* base_;
  ConstructorFunction construct_;
};

}  // namespace TW
