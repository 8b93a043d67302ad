#include "TW/Channel.hpp"

#include <algorithm>
#include <array>
#include <bit>
#include <limits>
#include <type_traits>
#include <utility>

namespace TW {
namespace {

template <class Number>
std::array<unsigned char, sizeof(Number)> ToLittleEndian(Number value) {
  std::array<unsigned char, sizeof(Number)> bytes;
  for (unsigned char& byte : bytes) {
    byte = static_cast<unsigned char>(value & 0xFF);
    if constexpr (sizeof(Number) > 1) value = static_cast<Number>(value >> 8);
  }
  return bytes;
}

template <class Number>
Number FromLittleEndian(const unsigned char* bytes) {
  Number value = 0;
  for (std::size_t i = sizeof(Number); i-- > 0;) {
    value = static_cast<Number>((static_cast<std::uint64_t>(value) << 8) | bytes[i]);
  }
  return value;
}

// Texts and skipped bytes pass through a buffer of this many bytes.
constexpr std::size_t ChunkSize = 4096;

template <class Number>
ErrCode WriteNumber(OChannel& channel, Number value) {
  const auto bytes = ToLittleEndian(value);
  return channel.WriteBytes(bytes.data(), bytes.size());
}

template <class Number>
ErrCode ReadNumber(IChannel& channel, Number& value) {
  unsigned char bytes[sizeof(Number)];
  const ErrCode error = channel.ReadBytes(bytes, sizeof(bytes));
  if (error == NoErr) value = FromLittleEndian<Number>(bytes);
  return error;
}

}  // namespace

ErrCode OChannel::SetStatus(ErrCode status) {
  if (status_ == NoErr) status_ = status;
  return status_;
}

ErrCode OChannel::WriteBytes(const void* bytes, std::size_t count) {
  if (status_ != NoErr) return status_;
  if (openFrames_ == 0) return Deliver(bytes, count);
  const auto* first = static_cast<const std::byte*>(bytes);
  framed_.insert(framed_.end(), first, first + count);
  return NoErr;
}

ErrCode OChannel::Deliver(const void* bytes, std::size_t count) {
  try {
    return SetStatus(WriteRaw(bytes, count));
  } catch (...) {
    SetStatus(ErrWriteFailed);
    throw;
  }
}

ErrCode OChannel::WriteBool(bool value) { return WriteNumber(*this, static_cast<std::uint8_t>(value ? 1 : 0)); }
ErrCode OChannel::WriteUInt16(std::uint16_t value) { return WriteNumber(*this, value); }
ErrCode OChannel::WriteInt32(std::int32_t value) { return WriteNumber(*this, static_cast<std::uint32_t>(value)); }
ErrCode OChannel::WriteUInt32(std::uint32_t value) { return WriteNumber(*this, value); }
ErrCode OChannel::WriteUInt64(std::uint64_t value) { return WriteNumber(*this, value); }
ErrCode OChannel::WriteDouble(double value) { return WriteNumber(*this, std::bit_cast<std::uint64_t>(value)); }
ErrCode OChannel::WriteGuid(const Guid& guid) { return WriteBytes(guid.GetBytes().data(), guid.GetBytes().size()); }

ErrCode OChannel::WriteString(const UniString& text) {
  WriteUInt32(text.GetLength());
  unsigned char chunk[ChunkSize];
  std::u16string_view rest = text.GetView();
  while (!rest.empty() && status_ == NoErr) {
    const std::size_t count = std::min(rest.size(), ChunkSize / 2);
    for (std::size_t i = 0; i < count; ++i) {
      chunk[2 * i] = static_cast<unsigned char>(rest[i] & 0xFF);
      chunk[2 * i + 1] = static_cast<unsigned char>(rest[i] >> 8);
    }
    WriteBytes(chunk, 2 * count);
    rest.remove_prefix(count);
  }
  return status_;
}

std::size_t OChannel::OpenFrame(const Guid& classGuid, std::uint16_t version) {
  constexpr std::size_t HeadSize = sizeof(Guid::Bytes) + sizeof(std::uint16_t) + sizeof(std::uint32_t);
  framed_.reserve(framed_.size() + HeadSize);
  ++openFrames_;
  WriteGuid(classGuid);
  WriteUInt16(version);
  const std::size_t lengthPosition = framed_.size();
  WriteUInt32(0);
  return lengthPosition;
}

ErrCode OChannel::CloseFrame(std::size_t lengthPosition) {
  --openFrames_;
  if (status_ == NoErr) {
    const std::size_t length = framed_.size() - lengthPosition - sizeof(std::uint32_t);
    if (length > std::numeric_limits<std::uint32_t>::max()) {
      SetStatus(ErrTooLong);
    } else {
      const auto bytes = ToLittleEndian(static_cast<std::uint32_t>(length));
      std::transform(bytes.begin(), bytes.end(), framed_.begin() + static_cast<std::ptrdiff_t>(lengthPosition),
                     [](unsigned char byte) { return std::byte{byte}; });
    }
  }
  if (openFrames_ == 0) {
    const std::vector<std::byte> whole = std::exchange(framed_, {});
    if (status_ == NoErr) Deliver(whole.data(), whole.size());
  }
  return status_;
}

ErrCode IChannel::SetStatus(ErrCode status) {
  if (status_ == NoErr) status_ = status;
  return status_;
}

ErrCode IChannel::ReadBytes(void* bytes, std::size_t count) {
  if (status_ != NoErr) return status_;
  if (count > limit_ - position_) return SetStatus(ErrFrameBounds);
  try {
    if (SetStatus(ReadRaw(bytes, count)) == NoErr) position_ += count;
  } catch (...) {
    SetStatus(ErrReadFailed);
    throw;
  }
  return status_;
}

ErrCode IChannel::Skip(std::uint64_t count) {
  unsigned char chunk[ChunkSize];
  while (count > 0 && status_ == NoErr) {
    const std::size_t step = static_cast<std::size_t>(std::min<std::uint64_t>(count, ChunkSize));
    ReadBytes(chunk, step);
    count -= step;
  }
  return status_;
}

ErrCode IChannel::ReadBool(bool& value) {
  std::uint8_t byte = 0;
  const ErrCode error = ReadNumber(*this, byte);
  if (error == NoErr) value = byte != 0;
  return error;
}

ErrCode IChannel::ReadInt32(std::int32_t& value) {
  std::uint32_t bits = 0;
  const ErrCode error = ReadNumber(*this, bits);
  if (error == NoErr) value = static_cast<std::int32_t>(bits);
  return error;
}

ErrCode IChannel::ReadDouble(double& value) {
  std::uint64_t bits = 0;
  const ErrCode error = ReadNumber(*this, bits);
  if (error == NoErr) value = std::bit_cast<double>(bits);
  return error;
}

ErrCode IChannel::ReadUInt16(std::uint16_t& value) { return ReadNumber(*this, value); }
ErrCode IChannel::ReadUInt32(std::uint32_t& value) { return ReadNumber(*this, value); }
ErrCode IChannel::ReadUInt64(std::uint64_t& value) { return ReadNumber(*this, value); }

ErrCode IChannel::ReadGuid(Guid& guid) {
  Guid::Bytes bytes;
  const ErrCode error = ReadBytes(bytes.data(), bytes.size());
  if (error == NoErr) guid = Guid(bytes);
  return error;
}

ErrCode IChannel::ReadString(UniString& text) {
  std::uint32_t rest = 0;
  ReadUInt32(rest);
  std::u16string units;
  unsigned char chunk[ChunkSize];
  while (rest > 0 && status_ == NoErr) {
    const std::size_t count = std::min<std::size_t>(rest, ChunkSize / 2);
    if (ReadBytes(chunk, 2 * count) != NoErr) break;
    for (std::size_t i = 0; i < count; ++i) units.push_back(FromLittleEndian<char16_t>(chunk + 2 * i));
    rest -= static_cast<std::uint32_t>(count);
  }
  if (status_ == NoErr) text = UniString(std::move(units));
  return status_;
}

}  // namespace TW
