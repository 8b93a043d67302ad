#include "TW/FileChannel.hpp"

#include <cerrno>

namespace TW {
namespace {

ErrCode ErrorOfSystem(ErrCode other) {
  switch (errno) {
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return ErrDiskFull;
    case ENOENT:
    case ENOTDIR:
    case ENAMETOOLONG:
      return ErrFileNotFound;
    case EACCES:
    case EPERM:
    case EROFS:
    case EISDIR:
      return ErrFileAccess;
    default:
      return other;
  }
}

}  // namespace

FileOChannel::FileOChannel(const std::string& path) : file_(std::fopen(path.c_str(), "wb")) {
  if (file_ == nullptr) SetStatus(ErrorOfSystem(ErrWriteFailed));
}

FileOChannel::~FileOChannel() { Close(); }

ErrCode FileOChannel::Close() {
  if (file_ == nullptr) return GetOutputStatus();
  const int result = std::fclose(file_);
  file_ = nullptr;
  if (result != 0) SetStatus(ErrorOfSystem(ErrWriteFailed));
  return GetOutputStatus();
}

ErrCode FileOChannel::WriteRaw(const void* bytes, std::size_t count) {
  if (file_ == nullptr) return ErrClosed;
  return std::fwrite(bytes, 1, count, file_) == count ? NoErr : ErrorOfSystem(ErrWriteFailed);
}

FileIChannel::FileIChannel(const std::string& path) : file_(std::fopen(path.c_str(), "rb")) {
  if (file_ == nullptr) SetStatus(ErrorOfSystem(ErrReadFailed));
}

FileIChannel::~FileIChannel() {
  if (file_ != nullptr) std::fclose(file_);
}

ErrCode FileIChannel::ReadRaw(void* bytes, std::size_t count) {
  if (std::fread(bytes, 1, count, file_) == count) return NoErr;
  return std::ferror(file_) != 0 ? ErrorOfSystem(ErrReadFailed) : ErrEndOfData;
}

}  // namespace TW
