#include "Host/Files/OutputFile.hpp"

#include <filesystem>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace Host {

OutputFile::OutputFile(std::string path)
    : path_(std::move(path)), partPath_(path_ + ".part" + std::to_string(getpid())), channel_(partPath_) {}

OutputFile::~OutputFile() {
  if (finished_) return;
  channel_.Close();
  std::error_code error;
  std::filesystem::remove(partPath_, error);
}

TW::ErrCode OutputFile::Finish() {
  const TW::ErrCode written = channel_.GetOutputStatus();
  const TW::ErrCode closed = channel_.Close();
  if (written != TW::NoErr) return written;
  if (closed != TW::NoErr) return closed;
  std::error_code error;
  std::filesystem::rename(partPath_, path_, error);
  finished_ = !error;
  return error ? TW::ErrWriteFailed : TW::NoErr;
}

}  // namespace Host
