#pragma once

#include "TW/Channel.hpp"
#include "TW/Export.hpp"

#include <cstddef>
#include <span>
#include <vector>

namespace TW {

/// Writes into memory that grows as needed.
class TW_EXPORT MemoryOChannel final : public OChannel {
 public:
  const std::vector<std::byte>& GetBytes() const { return bytes_; }
  /// Hands over what was written and starts anew.
  std::vector<std::byte> TakeBytes();

 protected:
  ErrCode WriteRaw(const void* bytes, std::size_t count) override;

 private:
  std::vector<std::byte> bytes_;
};

/// Reads from bytes that somebody else owns and that must outlive the channel.
class TW_EXPORT MemoryIChannel final : public IChannel {
 public:
  explicit MemoryIChannel(std::span<const std::byte> bytes) : rest_(bytes) {}

  /// How many bytes have not been read.
  std::size_t GetRemaining() const { return rest_.size(); }

 protected:
  ErrCode ReadRaw(void* bytes, std::size_t count) override;

 private:
  std::span<const std::byte> rest_;
};

}  // namespace TW
