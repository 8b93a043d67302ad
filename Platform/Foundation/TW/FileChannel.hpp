#pragma once

#include "TW/Channel.hpp"
#include "TW/Export.hpp"

#include <cstddef>
#include <cstdio>
#include <string>

/// Channels over files of the system. Paths are in the system's own encoding (UTF-8 as a rule).

namespace TW {

/// Writes a file, replacing one that is there. What was written is sure to have reached the system only when `Close`
/// has given `NoErr`: a full disk often shows there first.
class TW_EXPORT FileOChannel final : public OChannel {
 public:
  explicit FileOChannel(const std::string& path);
  ~FileOChannel() override;

  /// Writes out what is still held back and closes the file; gives the channel's status.
  ErrCode Close();

 protected:
  ErrCode WriteRaw(const void* bytes, std::size_t count) override;

 private:
  std::FILE* file_;
};

/// Reads a file.
class TW_EXPORT FileIChannel final : public IChannel {
 public:
  explicit FileIChannel(const std::string& path);
  ~FileIChannel() override;

 protected:
  ErrCode ReadRaw(void* bytes, std::size_t count) override;

 private:
  std::FILE* file_;
};

}  // namespace TW
