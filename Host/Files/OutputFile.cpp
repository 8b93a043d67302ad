#include "Host/Files/OutputFile.hpp"

#include <atomic>
#include <cstdio>
#include <filesystem>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace Host {
namespace {

// Another for every file of every process.
std::string MakePartPath(const std::string& path) {
  static constinit std::atomic<unsigned int> count{0};
  return path + ".part" + std::to_string(getpid()) + "-" + std::to_string(++count);
}

}  // namespace

OutputFile::OutputFile(std::string path)
    : path_(std::move(path)), partPath_(MakePartPath(path_)), channel_(partPath_) {}

OutputFile::~OutputFile() {
  if (finished_) return;
  channel_.Close();
  // Not by way of a path object, which could lack memory.
  static_cast<void>(std::remove(partPath_.c_str()));
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
