#pragma once

#include "TW/Channel.hpp"
#include "TW/ClassInfo.hpp"
#include "TW/ErrorCodes.hpp"
#include "TW/Export.hpp"
#include "TW/ObjectState.hpp"
#include "TW/Ref.hpp"

namespace TW {

/// The root of the classes that know their class, can be stored and read back, and are shared by `Ref`.
class TW_EXPORT Object : public Counted {
 public:
  static ClassInfo classInfo;

  Object() = default;
  Object(const Object&) = default;
  Object& operator=(const Object&) = default;

  /// Tells in `valid`, unless it is null, whether `state` is a snapshot of an object of this class.
  virtual ErrCode Validate(const ObjectState& state, bool* valid) const;
  /// Takes over a snapshot that `Validate` has accepted.
  virtual ErrCode RestoreValidated(const ObjectState& state);
  /// A deep copy, made by storing and reading back; empty when the class is abstract or one of the two fails.
  virtual Ref<Object> Clone() const;
  virtual ~Object();
  virtual const ClassInfo* GetClassInfo() const;
  virtual ErrCode Read(IChannel& channel);
  virtual ErrCode Write(OChannel& channel) const;
  /// Makes a snapshot of this object.
  virtual ErrCode Store(ObjectState& state) const;
  /// Takes over a snapshot, or gives `ErrFrameClass` when it is of another class.
  virtual ErrCode Restore(const ObjectState& state);
  /// Writes a line of UTF-8 for diagnostics: the name of the class.
  virtual ErrCode Print(OChannel& channel) const;
  /// Whether the object is consistent in itself.
  virtual ErrCode CheckState() const;
};

}  // namespace TW
