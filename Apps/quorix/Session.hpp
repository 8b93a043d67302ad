#pragma once

#include "CommandEntry.hpp"
#include "CommonOptions.hpp"
#include "Environment.hpp"
#include "Evaluation.hpp"
#include "PropertyNames.hpp"
#include "ReplacedText.hpp"

#include <string_view>

namespace Command {

/// Formulas that a person gives, with the options for all of them.
class Session {
 public:
  struct Formula {
    TW::UniString written;
    ReplacedText text;  ///< what was evaluated: with GUIDs in the place of names
    Evaluation evaluation;

    bool HasValue() const { return !evaluation.failure && evaluation.value.IsValid(); }
  };

  /// Keeps a reference to `call`. Throws `UsageError` for a property without a value.
  Session(const CommonOptions& options, const Call& call);

  Environment& GetEnvironment() { return environment_; }
  PropertyNames& GetNames() { return names_; }

  Formula Evaluate(std::string_view argument);
  /// Writes the value of a formula, or tells why it has none.
  void Show(const Formula& formula, bool json);
  /// Writes the tree of a formula, and tells why it has no value if so.
  void ShowTree(const Formula& formula, bool json);

 private:
  /// Writes the answer of a formula as a line of JSON.
  void WriteAnswer(const Formula& formula);
  /// Tells why a formula has no value.
  void WriteDiagnostic(const Formula& formula);

  const Call& call_;
  Environment environment_;
  PropertyNames names_;
};

}  // namespace Command
