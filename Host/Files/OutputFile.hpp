#pragma once

#include "TW/ErrorCodes.hpp"
#include "TW/FileChannel.hpp"

#include <string>
#include <string_view>

namespace Host {

/// A file that appears whole or not at all: it is written under another name in the same folder, and takes the place of
/// what stands at its path when it is finished. A file that is given up leaves nothing behind.
class OutputFile {
 public:
  explicit OutputFile(std::string path);
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;
  ~OutputFile();

  /// What the file is written to. The first failure sticks.
  TW::OChannel& GetChannel() { return channel_; }
  void Write(std::string_view text) { channel_.WriteBytes(text.data(), text.size()); }
  /// Puts the file in its place, and gives the first error of all that was done with it. To be called once.
  TW::ErrCode Finish();

 private:
  std::string path_;
  std::string partPath_;
  TW::FileOChannel channel_;
  bool finished_ = false;
};

}  // namespace Host
