#pragma once

#include "TW/ErrorCodes.hpp"
#include "TW/Export.hpp"
#include "TW/Guid.hpp"
#include "TW/UniString.hpp"

#include <cstddef>
#include <cstdint>
#include <vector>

/// Binary streams. Numbers are stored in little-endian order, a bool as one byte, a text as the count of its units
/// (32 bits) and the units, a GUID as its 16 bytes.
///
/// The first failure sticks: every later operation on the channel does nothing and gives the same code. What a derived
/// class throws passes through, and sticks as `ErrWriteFailed` or `ErrReadFailed`. A channel belongs to one thread at a
/// time.

namespace TW {

/// Where bytes are written. A derived class says where they go.
class TW_EXPORT OChannel {
 public:
  OChannel() = default;
  virtual ~OChannel() = default;
  OChannel(const OChannel&) = delete;
  OChannel& operator=(const OChannel&) = delete;

  ErrCode WriteBool(bool value);
  ErrCode WriteUInt16(std::uint16_t value);
  ErrCode WriteInt32(std::int32_t value);
  ErrCode WriteUInt32(std::uint32_t value);
  ErrCode WriteUInt64(std::uint64_t value);
  ErrCode WriteDouble(double value);
  ErrCode WriteString(const UniString& text);
  ErrCode WriteGuid(const Guid& guid);
  ErrCode WriteBytes(const void* bytes, std::size_t count);

  /// The first failure of this channel, or `NoErr`.
  ErrCode GetOutputStatus() const { return status_; }

 protected:
  /// Takes bytes for good; called with whole frames, never with a part of one.
  virtual ErrCode WriteRaw(const void* bytes, std::size_t count) = 0;
  ErrCode SetStatus(ErrCode status);

 private:
  friend class OutputFrame;

  /// Writes the head of a frame and gives the place of its length.
  std::size_t OpenFrame(const Guid& classGuid, std::uint16_t version);
  ErrCode CloseFrame(std::size_t lengthPosition);
  ErrCode Deliver(const void* bytes, std::size_t count);

  ErrCode status_ = NoErr;
  unsigned int openFrames_ = 0;
  std::vector<std::byte> framed_;  ///< what was written since the outermost frame was opened
};

/// Where bytes are read from. A derived class says where they come from. Nothing that a stream merely claims (the
/// length of a text or of a frame) decides how much memory is taken: that grows only with what was really read.
class TW_EXPORT IChannel {
 public:
  IChannel() = default;
  virtual ~IChannel() = default;
  IChannel(const IChannel&) = delete;
  IChannel& operator=(const IChannel&) = delete;

  /// Each operation leaves `value` unchanged when it fails.
  ErrCode ReadBool(bool& value);
  ErrCode ReadUInt16(std::uint16_t& value);
  ErrCode ReadInt32(std::int32_t& value);
  ErrCode ReadUInt32(std::uint32_t& value);
  ErrCode ReadUInt64(std::uint64_t& value);
  ErrCode ReadDouble(double& value);
  ErrCode ReadString(UniString& text);
  ErrCode ReadGuid(Guid& guid);
  ErrCode ReadBytes(void* bytes, std::size_t count);
  /// Passes over `count` bytes.
  ErrCode Skip(std::uint64_t count);

  /// The first failure of this channel, or `NoErr`.
  ErrCode GetInputStatus() const { return status_; }

 protected:
  /// Reads exactly `count` bytes or fails.
  virtual ErrCode ReadRaw(void* bytes, std::size_t count) = 0;
  ErrCode SetStatus(ErrCode status);

 private:
  friend class InputFrame;

  ErrCode status_ = NoErr;
  std::uint64_t position_ = 0;
  std::uint64_t limit_ = UINT64_MAX;  ///< where the innermost open frame ends
};

}  // namespace TW
