#pragma once

#include "Host/Files/FileProblems.hpp"
#include "Host/Files/TextPlace.hpp"
#include "Host/Rules/Rules.hpp"

#include <cstddef>
#include <string>
#include <vector>

namespace Host {

/// Rules as people write them in a file of JSON in UTF-8. Everything that is wrong with it is collected, and makes the
/// file unusable; the rules then hold what could be read, and serve only to find out what else is wrong.
class RulesFile {
 public:
  /// Reads the file at a path, in the encoding of the system.
  static RulesFile Read(const std::string& path);
  static RulesFile FromText(std::string text);

  const Rules& GetRules() const { return rules_; }
  /// What is wrong but for the formulas, in the order of the file.
  const FileProblems& GetProblems() const { return problems_; }
  /// The text of the file, to which positions refer.
  std::string_view GetText() const { return text_; }
  /// Whether the separators can be relied on, so that formulas can be read.
  bool HasSeparators() const { return hasSeparators_; }
  /// The byte of the file at which a 16-bit unit of the formula of a property stands.
  std::size_t FindFormulaUnit(std::size_t property, std::size_t unit) const;

 private:
  friend class RulesFileReader;

  std::string text_;
  Rules rules_;
  std::vector<std::size_t> formulas_;  ///< the positions of the opening quotation marks of formulas by property
  FileProblems problems_;
  bool hasSeparators_ = true;
};

}  // namespace Host
