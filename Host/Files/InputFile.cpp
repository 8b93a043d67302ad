#include "Host/Files/InputFile.hpp"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <system_error>

namespace Host {
namespace {

constexpr std::size_t Step = std::size_t{1} << 20;

struct Closer {
  void operator()(std::FILE* file) const { std::fclose(file); }
};

// The size that the system gives is where to begin: it is wrong for pipes, and for files that grow meanwhile.
std::size_t GuessSize(const std::string& path, std::size_t limit) {
  std::error_code error;
  const std::uintmax_t size = std::filesystem::file_size(path, error);
  if (error) return Step;
  return size < limit ? static_cast<std::size_t>(size) + 1 : Step;
}

}  // namespace

FileReading ReadWholeFile(const std::string& path, std::size_t limit, std::string& text) {
  const std::unique_ptr<std::FILE, Closer> file(std::fopen(path.c_str(), "rb"));
  if (file == nullptr) return FileReading::Unreadable;
  std::size_t used = 0;
  text.resize(GuessSize(path, limit));
  while (used <= limit && std::feof(file.get()) == 0 && std::ferror(file.get()) == 0) {
    if (used == text.size()) text.resize(used + used / 2 + Step);
    used += std::fread(text.data() + used, 1, text.size() - used, file.get());
  }
  if (std::ferror(file.get()) != 0) return FileReading::Unreadable;
  text.resize(used);
  return used <= limit ? FileReading::Read : FileReading::TooLarge;
}

}  // namespace Host
