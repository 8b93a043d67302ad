#pragma once

#include "Localization/CharacterSet.hpp"
#include "TW/ErrorCodes.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace Localization {

/// A message of a catalog in the catalog's character set.
struct RawMessage {
  std::string_view context;  ///< empty when there is none
  std::string_view source;
  std::string_view translation;

  bool IsHeader() const { return context.empty() && source.empty(); }
};

/// What a catalog holds before it is decoded. The messages point into `pool` or into the bytes of the file, which must
/// outlive the catalog.
class RawCatalog {
 public:
  RawCatalog() = default;
  RawCatalog(const RawCatalog&) = delete;
  RawCatalog& operator=(const RawCatalog&) = delete;

  /// Adds a translated message, leaves out one that is not translated, and takes the character set from the first
  /// header.
  TW::ErrCode Add(const RawMessage& message);

  CharacterSet characterSet;
  std::vector<RawMessage> messages;
  std::string pool;

 private:
  bool hasHeader_ = false;
};

}  // namespace Localization
