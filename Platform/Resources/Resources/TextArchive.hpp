#pragma once

#include "Resources/LanguageCode.hpp"
#include "TW/Optional.hpp"
#include "TW/UniString.hpp"

#include <string>
#include <vector>

namespace Resources {

/// The texts of one sealed archive. A view of bytes that ICU keeps until the process ends; archives with the same
/// contents share them, so that opening one again takes no more memory. Immutable.
class TextArchive {
 public:
  using List = std::vector<TW::UniString>;

  /// Reads the archive in a file; nothing when there is none, or it is broken.
  static TW::Optional<TextArchive> OpenFile(const std::string& path);
  /// The archive that is part of the library.
  static TW::Optional<TextArchive> OpenBuiltIn();

  /// A name that only archives with the same texts share.
  const std::string& GetPackageName() const { return packageName_; }
  /// The languages that have texts here, the root aside.
  const std::vector<LanguageCode>& GetLanguages() const { return languages_; }
  /// The ids of the lists in the root.
  std::vector<int> GetListIds() const;
  /// Fills the empty places of `texts` from the list of exactly this language, and lengthens it as far as that reaches.
  void FillList(LanguageCode language, int listId, List& texts) const;

 private:
  explicit TextArchive(std::string packageName);

  std::string packageName_;
  std::vector<LanguageCode> languages_;
};

}  // namespace Resources
