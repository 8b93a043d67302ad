#include "EP/NormalizedParsingLocaleSettings.hpp"

namespace EP {

NormalizedParsingLocaleSettings::NormalizedParsingLocaleSettings(const IParsingLocaleSettings& settings)
    : decimalSeparator_(settings.GetDecimalSeparator()), listSeparator_(settings.GetListSeparator()) {
  if (listSeparator_ == decimalSeparator_) listSeparator_ = decimalSeparator_ == u';' ? u',' : u';';
}

}  // namespace EP
