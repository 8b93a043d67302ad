#include "TW/Object.hpp"

#include "TW/Frame.hpp"
#include "TW/MemoryChannel.hpp"

#include <string>

namespace TW {

ClassInfo Object::classInfo("Object", "{3BD1D04C-27E9-4C2E-9B5B-6B2F0F5F4E11}", 1, nullptr);

Object::~Object() = default;

const ClassInfo* Object::GetClassInfo() const { return &classInfo; }

ErrCode Object::Validate(const ObjectState& state, bool* valid) const {
  if (valid != nullptr) *valid = state.classGuid == GetClassInfo()->GetGuid();
  return NoErr;
}

ErrCode Object::RestoreValidated(const ObjectState& state) {
  MemoryIChannel channel(state.bytes);
  return Read(channel);
}

ErrCode Object::Restore(const ObjectState& state) {
  bool valid = false;
  const ErrCode error = Validate(state, &valid);
  if (error != NoErr) return error;
  return valid ? RestoreValidated(state) : ErrFrameClass;
}

ErrCode Object::Store(ObjectState& state) const {
  MemoryOChannel channel;
  const ErrCode error = Write(channel);
  if (error != NoErr) return error;
  state.classGuid = GetClassInfo()->GetGuid();
  state.bytes = channel.TakeBytes();
  return NoErr;
}

Ref<Object> Object::Clone() const {
  ObjectState state;
  if (Store(state) != NoErr) return nullptr;
  Ref<Object> copy = GetClassInfo()->CreateNewInstance();
  if (!copy || copy->RestoreValidated(state) != NoErr) return nullptr;
  return copy;
}

ErrCode Object::Read(IChannel& channel) {
  InputFrame frame(channel, *GetClassInfo());
  return frame.Close();
}

ErrCode Object::Write(OChannel& channel) const {
  OutputFrame frame(channel, *GetClassInfo());
  return frame.Close();
}

ErrCode Object::Print(OChannel& channel) const {
  const std::string line = std::string(GetClassInfo()->GetName()) + "\n";
  return channel.WriteBytes(line.data(), line.size());
}

ErrCode Object::CheckState() const { return NoErr; }

}  // namespace TW
