#include "Host/Files/FileProblems.hpp"

#include <algorithm>
#include <utility>

namespace Host {

void FileProblems::Add(FileProblem problem) {
  ++count_;
  hasFatal_ = hasFatal_ || problem.isFatal;
  if (list_.size() < MaximumCount) list_.push_back(std::move(problem));
}

void FileProblems::SortByPlace() {
  std::ranges::stable_sort(list_, {},
                           [](const FileProblem& problem) { return std::pair(problem.line, problem.column); });
}

}  // namespace Host
