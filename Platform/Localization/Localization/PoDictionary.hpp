#pragma once

#include "Localization/Export.hpp"
#include "TW/ErrorCodes.hpp"
#include "TW/UniString.hpp"

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>

namespace Localization {

class RawCatalog;

/// Translations of texts, read from catalogs in text form (PO) or compiled form (MO), possibly from several. Of a
/// message with plural forms it takes the first. A reading that fails leaves the dictionary as it was. Once filled, a
/// dictionary may be asked from any number of threads.
class LOCALIZATION_EXPORT PoDictionary {
 public:
  /// The greatest size of a catalog, in bytes. A larger one is refused with `ErrTooLong`.
  static constexpr std::size_t MaximumCatalogSize = std::size_t{64} << 20;

  /// Adds the translations of a catalog in text form, replacing those of the same text and context; fuzzy, obsolete and
  /// untranslated messages are left out. Gives `ErrFileFormat` when the catalog breaks the grammar and
  /// `ErrCharacterSet` when its header names an unknown character set.
  TW::ErrCode ReadPo(std::string_view bytes);
  /// Adds the translations of a compiled catalog of either byte order likewise.
  TW::ErrCode ReadMo(std::string_view bytes);
  /// Adds the translations of a file of either form likewise. Gives `ErrFileNotFound`, `ErrFileAccess` or
  /// `ErrReadFailed` when the file cannot be read.
  TW::ErrCode ReadFile(const std::string& path);

  /// Gives the translation of `text` in `context`, or else its translation without a context, or else `text` itself. An
  /// empty context is none.
  TW::UniString Translate(const TW::UniString& text, const TW::UniString& context) const;
  /// Gives the number of translations.
  std::size_t GetCount() const { return translations_.size(); }

 private:
  struct KeyView {
    std::u16string_view context;
    std::u16string_view text;
    friend bool operator==(const KeyView&, const KeyView&) = default;
  };
  struct Key {
    TW::UniString context;
    TW::UniString text;
    operator KeyView() const { return {context, text}; }
  };
  struct KeyHash {
    using is_transparent = void;
    std::size_t operator()(const KeyView& key) const noexcept;
  };
  struct KeyEqual {
    using is_transparent = void;
    bool operator()(const KeyView& left, const KeyView& right) const noexcept { return left == right; }
  };
  using Translations = std::unordered_map<Key, TW::UniString, KeyHash, KeyEqual>;

  const TW::UniString* Find(std::u16string_view text, std::u16string_view context) const;
  TW::ErrCode Read(std::string_view bytes, TW::ErrCode (*read)(std::string_view, RawCatalog&));
  void Add(const RawCatalog& catalog);

  Translations translations_;
};

}  // namespace Localization
