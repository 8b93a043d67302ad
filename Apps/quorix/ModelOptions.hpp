#pragma once

#include "OptionTable.hpp"
#include "TW/Optional.hpp"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Command {

/// What a run over a building model is asked to read and to give.
struct ModelOptions {
  TW::Optional<std::string> ifcPath;
  TW::Optional<std::string> csvPath;
  std::vector<std::string> outputs;             ///< files to write, by their ending
  std::vector<std::string> graphs;              ///< files to draw the dependency graph in, by their ending
  TW::Optional<std::vector<std::string>> only;  ///< the names of the properties to tell of
  TW::Optional<std::string> where;              ///< a condition that elements must meet
  std::vector<std::pair<std::string_view, std::string_view>> explanations;  ///< of an element and a property
  TW::Optional<bool> table;
  bool quiet = false;

  /// Enters the options in the table; this object must stay where it is.
  void AddTo(OptionTable& options);
  /// Throws `UsageError` when the options together make no sense, or would write over a file that is read.
  void Check(const std::string& rulesPath) const;
  /// Whether the table is to be shown: as asked, or else when nothing other is given.
  bool IsTableShown() const;
};

/// Whether a path has an ending such as `.csv`, in whatever case.
bool HasEnding(std::string_view path, std::string_view ending);

}  // namespace Command
