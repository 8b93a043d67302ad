#include "Resources/TextArchive.hpp"

#include "Resources/SealedFile.hpp"

#include <unicode/udata.h>
#include <unicode/uenum.h>
#include <unicode/ures.h>

#include <charconv>
#include <memory>
#include <new>
#include <string_view>
#include <utility>

extern "C" {
extern const unsigned char QxBuiltInTexts[] __attribute__((visibility("hidden")));
extern const unsigned char QxBuiltInTextsEnd[] __attribute__((visibility("hidden")));
}

namespace Resources {
namespace {

using Bundle = std::unique_ptr<UResourceBundle, decltype(&ures_close)>;

// What is missing for want of memory must not be taken for what the archive lacks.
bool Succeeded(UErrorCode error) {
  if (error == U_MEMORY_ALLOCATION_ERROR) throw std::bad_alloc();
  return U_SUCCESS(error) != 0;
}

// Not `ures_open`: where the language is missing it would turn to the default language of the process.
Bundle OpenBundle(const std::string& packageName, LanguageCode language) {
  UErrorCode error = U_ZERO_ERROR;
  Bundle bundle(ures_openDirect(packageName.c_str(), language.GetTag().c_str(), &error), &ures_close);
  return Succeeded(error) ? std::move(bundle) : Bundle(nullptr, &ures_close);
}

// Hands the archive over to ICU.
bool Register(SealedArchive archive, const std::string& packageName) {
  UErrorCode error = U_ZERO_ERROR;
  udata_setAppData(packageName.c_str(), archive.bytes.get(), &error);
  // With any other outcome, also where an equal archive is known already, ICU has not taken the bytes.
  if (error == U_ZERO_ERROR) static_cast<void>(archive.bytes.release());
  return Succeeded(error);
}

std::string GetListKey(int listId) { return "L" + std::to_string(listId); }

// The list id of a key such as L106; 0 for any other key.
int ReadListKey(const char* key) {
  if (key == nullptr || *key != 'L') return 0;
  const std::string_view digits(key + 1);
  int listId = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), listId);
  return GetListKey(listId) == key ? listId : 0;
}

std::vector<LanguageCode> ReadLanguages(const std::string& packageName) {
  UErrorCode error = U_ZERO_ERROR;
  const std::unique_ptr<UEnumeration, decltype(&uenum_close)> names(
      ures_openAvailableLocales(packageName.c_str(), &error), &uenum_close);
  std::vector<LanguageCode> languages;
  while (Succeeded(error)) {
    const char* name = uenum_next(names.get(), nullptr, &error);
    if (name == nullptr || !Succeeded(error)) break;
    const LanguageCode language = LanguageCode::FromTag(name);
    if (!language.IsRoot()) languages.push_back(language);
  }
  return languages;
}

TW::Optional<std::string> RegisterIfSealed(TW::Optional<SealedArchive> archive) {
  if (!archive) return {};
  std::string packageName = GetPackageName(archive->seal.key);
  if (!Register(std::move(*archive), packageName)) return {};
  return packageName;
}

}  // namespace

TextArchive::TextArchive(std::string packageName)
    : packageName_(std::move(packageName)), languages_(ReadLanguages(packageName_)) {}

TW::Optional<TextArchive> TextArchive::OpenFile(const std::string& path) {
  auto packageName = RegisterIfSealed(ReadSealedFile(path));
  if (!packageName) return {};
  return TextArchive(std::move(*packageName));
}

TW::Optional<TextArchive> TextArchive::OpenBuiltIn() {
  const auto length = static_cast<std::size_t>(QxBuiltInTextsEnd - QxBuiltInTexts);
  auto packageName = RegisterIfSealed(CopySealedArchive(QxBuiltInTexts, length));
  if (!packageName) return {};
  return TextArchive(std::move(*packageName));
}

std::vector<int> TextArchive::GetListIds() const {
  std::vector<int> listIds;
  const Bundle root = OpenBundle(packageName_, {});
  const int count = root ? ures_getSize(root.get()) : 0;
  for (int i = 0; i < count; ++i) {
    UErrorCode error = U_ZERO_ERROR;
    const Bundle list(ures_getByIndex(root.get(), i, nullptr, &error), &ures_close);
    const int listId = Succeeded(error) ? ReadListKey(ures_getKey(list.get())) : 0;
    if (listId > 0) listIds.push_back(listId);
  }
  return listIds;
}

void TextArchive::FillList(LanguageCode language, int listId, List& texts) const {
  const Bundle bundle = OpenBundle(packageName_, language);
  if (!bundle) return;
  UErrorCode error = U_ZERO_ERROR;
  const Bundle list(ures_getByKey(bundle.get(), GetListKey(listId).c_str(), nullptr, &error), &ures_close);
  if (!Succeeded(error) || ures_getType(list.get()) != URES_ARRAY) return;
  const auto count = static_cast<std::size_t>(ures_getSize(list.get()));
  if (texts.size() < count) texts.resize(count);
  for (std::size_t i = 0; i < count; ++i) {
    if (!texts[i].IsEmpty()) continue;
    error = U_ZERO_ERROR;
    std::int32_t length = 0;
    const char16_t* text = ures_getStringByIndex(list.get(), static_cast<std::int32_t>(i), &length, &error);
    if (Succeeded(error)) texts[i] = TW::UniString(std::u16string_view(text, static_cast<std::size_t>(length)));
  }
}

}  // namespace Resources
