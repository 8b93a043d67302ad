#pragma once

#include "TW/UniString.hpp"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace Host {

/// Something wrong with a file that was read, for people.
struct FileProblem {
  std::uint64_t line = 0;    ///< counted from 1; 0 when the problem has no place
  std::uint64_t column = 0;  ///< in characters, counted from 1; 0 when the whole line is meant
  TW::UniString message;     ///< one sentence or two, in the user's language
  bool isFatal = true;       ///< whether the file cannot be used
};

/// Collects what is wrong with a file, and keeps the first problems of it.
class FileProblems {
 public:
  /// How many problems are kept.
  static constexpr std::size_t MaximumCount = 100;

  void Add(FileProblem problem);
  /// Puts what is kept in the order of the file, problems of one place by their messages; what has no place comes
  /// first.
  void SortByPlace();
  bool HasFatal() const { return hasFatal_; }
  const std::vector<FileProblem>& GetList() const { return list_; }
  /// How many problems there were, those included that were not kept.
  std::size_t GetCount() const { return count_; }

 private:
  std::vector<FileProblem> list_;
  std::size_t count_ = 0;
  bool hasFatal_ = false;
};

}  // namespace Host
