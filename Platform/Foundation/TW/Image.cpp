#include "TW/Image.hpp"

#include <cstdlib>
#include <dlfcn.h>
#include <memory>

namespace TW {

bool IsImageStartDelayed(const std::string& imageName) {
  return TWDelayImageStart != nullptr && TWDelayImageStart(imageName.c_str());
}

std::string FindImagePath(const void* address) {
  Dl_info image{};
  if (dladdr(address, &image) == 0 || image.dli_fname == nullptr) return {};
  const std::unique_ptr<char, decltype(&std::free)> path(realpath(image.dli_fname, nullptr), &std::free);
  return path ? std::string(path.get()) : std::string();
}

}  // namespace TW
