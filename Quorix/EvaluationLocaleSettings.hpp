#pragma once

#include "EP/LocaleSettings.hpp"
#include "Quorix/Export.hpp"

namespace QX {

/// The separators that evaluation needs: those of formula texts and the one between groups of three digits. Each is one
/// 16-bit code unit; 0 as the thousand separator means none. Equal separators are accepted.
class QX_EXPORT IEvaluationLocaleSettings : public EP::IParsingLocaleSettings {
 public:
  virtual unsigned short GetThousandSeparator() const = 0;
};

/// Separators that the host chooses.
class QX_EXPORT EvaluationLocaleSettings : public IEvaluationLocaleSettings {
 public:
  EvaluationLocaleSettings(unsigned short decimal, unsigned short list, unsigned short thousand)
      : decimal_(decimal), list_(list), thousand_(thousand) {}

  unsigned short GetDecimalSeparator() const override { return decimal_; }
  unsigned short GetListSeparator() const override { return list_; }
  unsigned short GetThousandSeparator() const override { return thousand_; }

 private:
  unsigned short decimal_;
  unsigned short list_;
  unsigned short thousand_;
};

/// The separators of the operating system, as they were when the object was made.
class QX_EXPORT SystemLocaleSettings final : public EvaluationLocaleSettings {
 public:
  SystemLocaleSettings();
};

}  // namespace QX
