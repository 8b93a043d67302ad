#include "Localization/PoDictionary.hpp"

#include "Localization/MoReader.hpp"
#include "Localization/PoReader.hpp"
#include "Localization/RawCatalog.hpp"

#include <filesystem>
#include <fstream>
#include <system_error>
#include <utility>

namespace Localization {
namespace {

TW::ErrCode ReadBytes(const std::string& path, std::string& bytes) {
  std::ifstream file(path, std::ios::binary);
  if (!file) {
    std::error_code ignored;
    return std::filesystem::exists(path, ignored) ? TW::ErrFileAccess : TW::ErrFileNotFound;
  }
  char chunk[16384];
  while (file.read(chunk, sizeof(chunk)) || file.gcount() > 0) {
    bytes.append(chunk, static_cast<std::size_t>(file.gcount()));
    if (bytes.size() > PoDictionary::MaximumCatalogSize) return TW::ErrTooLong;
  }
  return file.bad() ? TW::ErrReadFailed : TW::NoErr;
}

}  // namespace

std::size_t PoDictionary::KeyHash::operator()(const KeyView& key) const noexcept {
  constexpr std::size_t Odd = 0x9E3779B97F4A7C15U;
  const std::hash<std::u16string_view> hash;
  return hash(key.context) * Odd + hash(key.text);
}

TW::ErrCode PoDictionary::ReadPo(std::string_view bytes) { return Read(bytes, ReadPoCatalog); }

TW::ErrCode PoDictionary::ReadMo(std::string_view bytes) { return Read(bytes, ReadMoCatalog); }

TW::ErrCode PoDictionary::ReadFile(const std::string& path) {
  std::string bytes;
  const TW::ErrCode error = ReadBytes(path, bytes);
  if (error != TW::NoErr) return error;
  return IsMoCatalog(bytes) ? ReadMo(bytes) : ReadPo(bytes);
}

TW::ErrCode PoDictionary::Read(std::string_view bytes, TW::ErrCode (*read)(std::string_view, RawCatalog&)) {
  if (bytes.size() > MaximumCatalogSize) return TW::ErrTooLong;
  RawCatalog catalog;
  const TW::ErrCode error = read(bytes, catalog);
  if (error == TW::NoErr) Add(catalog);
  return error;
}

void PoDictionary::Add(const RawCatalog& catalog) {
  const CharacterSet& set = catalog.characterSet;
  Translations added;
  added.reserve(catalog.messages.size());
  for (const RawMessage& message : catalog.messages) {
    added.insert_or_assign(Key{set.Decode(message.context), set.Decode(message.source)},
                           set.Decode(message.translation));
  }
  // From here on nothing fails: the room is there, and the entries only change hands.
  translations_.reserve(translations_.size() + added.size());
  while (!added.empty()) {
    auto [position, inserted, entry] = translations_.insert(added.extract(added.begin()));
    if (!inserted) position->second = std::move(entry.mapped());
  }
}

const TW::UniString* PoDictionary::Find(std::u16string_view text, std::u16string_view context) const {
  const auto found = translations_.find(KeyView{context, text});
  return found == translations_.end() ? nullptr : &found->second;
}

TW::UniString PoDictionary::Translate(const TW::UniString& text, const TW::UniString& context) const {
  const TW::UniString* translation = Find(text, context);
  if (translation == nullptr && !context.IsEmpty()) translation = Find(text, {});
  return translation == nullptr ? text : *translation;
}

}  // namespace Localization
