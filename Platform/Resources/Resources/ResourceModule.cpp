#include "Resources/ResourceModule.hpp"

#include "Resources/ArchiveSeal.hpp"
#include "Resources/LanguageCode.hpp"
#include "Resources/TextModule.hpp"

#include <atomic>
#include <filesystem>
#include <limits>
#include <map>
#include <memory>
#include <mutex>
#include <system_error>

namespace Resources {
namespace {

namespace fs = std::filesystem;

constexpr const char* DefaultFileName = QX_TEXT_FILE;
constexpr int NoModule = -1;

// Set while the library is loaded, before objects that are made by code.
constinit std::atomic<int> processModule{NoModule};

struct Modules {
  std::mutex mutex;
  std::map<int, std::shared_ptr<const TextModule>> byHandle;
  int lastHandle = 0;
  const std::shared_ptr<const TextModule> builtIn = std::make_shared<TextModule>(std::string());
};

Modules& GetModules() {
  // Never destroyed: a file may be closed by code that runs after the destructors of static objects.
  static Modules& modules = *new Modules;
  return modules;
}

// The absolute path, since the process may change its folder before the file is read; empty when there is no file.
std::string FindFile(const std::string& path) {
  std::error_code error;
  fs::path file = fs::absolute(path, error);
  if (!error && fs::is_directory(file, error)) file /= DefaultFileName;
  if (error || !fs::is_regular_file(file, error)) return {};
  const std::uintmax_t length = fs::file_size(file, error);
  if (error || length < MinimumArchiveLength + SealSize || length > MaximumArchiveLength + SealSize) return {};
  return file.string();
}

}  // namespace

std::shared_ptr<const TextModule> FindTextModule(int moduleHandle) {
  Modules& modules = GetModules();
  const std::lock_guard lock(modules.mutex);
  const auto found = modules.byHandle.find(moduleHandle);
  return found == modules.byHandle.end() ? modules.builtIn : found->second;
}

int OpenResourceFile(const std::string& path) {
  std::string file = FindFile(path);
  if (file.empty()) return NoModule;
  auto module = std::make_shared<const TextModule>(std::move(file));
  Modules& modules = GetModules();
  const std::lock_guard lock(modules.mutex);
  // Handles are not used again, so that a stale one never reaches another file.
  if (modules.lastHandle == std::numeric_limits<int>::max()) return NoModule;
  modules.byHandle.emplace(modules.lastHandle + 1, std::move(module));
  return ++modules.lastHandle;
}

void CloseResourceFile(int moduleHandle) {
  Modules& modules = GetModules();
  std::shared_ptr<const TextModule> closed;  // outlives the lock, for its end may take a while
  const std::lock_guard lock(modules.mutex);
  const auto found = modules.byHandle.find(moduleHandle);
  if (found == modules.byHandle.end()) return;
  closed = std::move(found->second);
  modules.byHandle.erase(found);
}

int SetProcessModule(int moduleHandle) { return processModule.exchange(moduleHandle); }

int GetProcessModule() { return processModule; }

TW::UniString GetIndString(int listId, int index, int moduleHandle) {
  return FindTextModule(moduleHandle)->Get(GetCurrentLanguage(), listId, index);
}

TW::UniString GetIndString(int listId, int index, int moduleHandle, std::string_view languageTag) {
  return FindTextModule(moduleHandle)->Get(LanguageCode::FromTag(languageTag), listId, index);
}

}  // namespace Resources
