#include "Host/Files/FileProblems.hpp"

#include <utility>

namespace Host {

void FileProblems::Add(FileProblem problem) {
  ++count_;
  hasFatal_ = hasFatal_ || problem.isFatal;
  if (list_.size() < MaximumCount) list_.push_back(std::move(problem));
}

}  // namespace Host
