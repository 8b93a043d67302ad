#pragma once

#include "EP/Export.hpp"

namespace EP {

/// The separators in which the text of a formula is read and written, each one 16-bit code unit.
class EP_EXPORT IParsingLocaleSettings {
 public:
  virtual ~IParsingLocaleSettings() = default;
  virtual unsigned short GetDecimalSeparator() const = 0;
  virtual unsigned short GetListSeparator() const = 0;
};

/// The separators of the text in which formulas are stored, whatever the user's locale: full stop and comma.
class EP_EXPORT IOLocaleSettings final : public IParsingLocaleSettings {
 public:
  unsigned short GetDecimalSeparator() const override { return u'.'; }
  unsigned short GetListSeparator() const override { return u','; }
};

}  // namespace EP
