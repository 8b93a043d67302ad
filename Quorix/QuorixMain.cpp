#include "Quorix/QuorixMain.hpp"

#include "Quorix/QuorixResources.hpp"
#include "Resources/ResourceModule.hpp"
#include "TW/Image.hpp"
#include "TW/UniString.hpp"

#include <array>
#include <cstdlib>
#include <cstring>
#include <string>

namespace {

constexpr int NoModule = -1;

/// Where the library lies, as the loader tells it, in UTF-8.
struct ModulePlace {
  std::array<char, 256> fileName{};
  std::array<char, 1024> folder{};
};

ModulePlace modulePlace;

template <std::size_t Size>
void Keep(const std::string& text, std::array<char, Size>& buffer) {
  if (text.size() < Size) std::memcpy(buffer.data(), text.c_str(), text.size() + 1);
}

// A place that is unknown or too long stays empty.
void FindModulePlace(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  if (slash == std::string::npos) return;
  Keep(path.substr(slash + 1), modulePlace.fileName);
  Keep(TW::UniString::FromUtf8(path.substr(0, slash)).ToNormalizationFormC().ToUtf8(), modulePlace.folder);
}

// A library that was loaded by a relative path is found only now, before the process changes its folder.
[[gnu::constructor]] void StartWithTheProcess() { TWInitImage(); }

}  // namespace

int TWInitImage() {
  const std::string path = TW::FindImagePath(reinterpret_cast<const void*>(&TWInitImage));
  if (TW::IsImageStartDelayed(path.substr(path.rfind('/') + 1))) return 0;
  TWTermImage();
  FindModulePlace(path);
  const bool found = modulePlace.folder[0] != '\0';
  Resources::SetProcessModule(found ? Resources::OpenResourceFile(modulePlace.folder.data()) : NoModule);
  [[maybe_unused]] static const int registered = std::atexit(TWTermImage);
  return 0;
}

void TWTermImage() {
  const int module = Resources::SetProcessModule(NoModule);
  if (module >= 1) Resources::CloseResourceFile(module);
}

int QX::GetQuorixResModule() { return Resources::GetProcessModule(); }
