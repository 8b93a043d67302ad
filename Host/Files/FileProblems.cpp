#include "Host/Files/FileProblems.hpp"

#include <algorithm>
#include <tuple>
#include <utility>

namespace Host {

void FileProblems::Add(FileProblem problem) {
  ++count_;
  hasFatal_ = hasFatal_ || problem.isFatal;
  if (list_.size() < MaximumCount) list_.push_back(std::move(problem));
}

void FileProblems::SortByPlace() {
  std::ranges::sort(list_, {}, [](const FileProblem& problem) {
    return std::tuple(problem.line, problem.column, problem.message.GetView());
  });
}

}  // namespace Host
