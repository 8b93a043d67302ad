#include "TW/MemoryChannel.hpp"

#include <cstring>
#include <utility>

namespace TW {

std::vector<std::byte> MemoryOChannel::TakeBytes() { return std::exchange(bytes_, {}); }

ErrCode MemoryOChannel::WriteRaw(const void* bytes, std::size_t count) {
  const auto* first = static_cast<const std::byte*>(bytes);
  bytes_.insert(bytes_.end(), first, first + count);
  return NoErr;
}

ErrCode MemoryIChannel::ReadRaw(void* bytes, std::size_t count) {
  if (count > rest_.size()) return ErrEndOfData;
  std::memcpy(bytes, rest_.data(), count);
  rest_ = rest_.subspan(count);
  return NoErr;
}

}  // namespace TW
