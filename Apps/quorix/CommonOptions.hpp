#pragma once

#include "Environment.hpp"
#include "OptionTable.hpp"
#include "PropertyNames.hpp"
#include "Settings.hpp"
#include "TW/Optional.hpp"

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Command {

/// The options that every command takes.
class CommonOptions {
 public:
  /// Enters the options in the table; this object must stay where it is. The language of messages changes at once.
  void AddTo(OptionTable& options);

  /// Limits the memory of the process as the options ask for.
  void LimitMemory() const;
  /// The settings that the options ask for, over `defaults`.
  Settings GetSettings(Settings defaults) const;
  /// The same over what suits the user: separators of the locale asked for, or else of the environment.
  Settings GetUserSettings() const;
  /// The same, with the separators of `defaults` where no locale is asked for.
  Settings GetSettingsOfLocale(Settings defaults) const;
  /// Sets the properties that the options give. Throws `UsageError` for a value that has none.
  void SetProperties(Environment& environment, PropertyNames& names) const;
  /// Evaluates the properties that the options give, without properties. Throws `UsageError` for one without a value.
  std::vector<std::pair<std::string_view, QX::ExpressionValue>> EvaluateProperties(const Settings& settings) const;

  bool HasProperties() const { return !properties_.empty(); }
  bool IsJson() const { return json_; }

 private:
  using Separator = TW::Optional<unsigned short>;

  void AddSeparators(OptionTable& options);
  void AddUnits(OptionTable& options);
  void AddProperty(const OptionValue& value);

  TW::Optional<std::string> locale_;
  Separator decimal_;
  Separator list_;
  Separator thousand_;
  std::vector<std::function<void(Host::DisplayUnits&)>> unitChanges_;
  std::vector<std::pair<std::string_view, std::string_view>> properties_;
  bool propagateUndefined_ = false;
  bool json_ = false;
  unsigned long long mebibytes_ = 4096;
};

}  // namespace Command
