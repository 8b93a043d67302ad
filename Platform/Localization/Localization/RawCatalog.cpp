#include "Localization/RawCatalog.hpp"

namespace Localization {

TW::ErrCode RawCatalog::Add(const RawMessage& message) {
  if (!message.IsHeader()) {
    if (!message.translation.empty()) messages.push_back(message);
    return TW::NoErr;
  }
  if (hasHeader_) return TW::NoErr;
  hasHeader_ = true;
  return characterSet.ChooseByHeader(message.translation);
}

}  // namespace Localization
