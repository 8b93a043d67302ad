#include "Host/Ifc/StepMessages.hpp"

#include <algorithm>
#include <numeric>

namespace Host {
namespace {

const char* Describe(StepProblem problem) {
  switch (problem) {
    case StepProblem::Unreadable:
      return "the file cannot be read";
    case StepProblem::NotAStepFile:
      return "this is not a STEP file";
    case StepProblem::NoDataSection:
      return "there is no data section";
    case StepProblem::CutOff:
      return "the file ends too early";
    case StepProblem::NoInstance:
      return "this is not an instance";
    case StepProblem::IdTooLarge:
      return "the number of the instance is too large";
    case StepProblem::DuplicateId:
      return "there is an instance of this number before";
    case StepProblem::TooManyInstances:
      return "there are too many instances";
    case StepProblem::UnknownSchema:
      return "the schema is none of IFC2X3, IFC4 and IFC4X3";
    case StepProblem::BrokenInstance:
      return "the instance is broken";
    case StepProblem::DanglingReference:
      return "the instance refers to one that is not there";
    case StepProblem::NoLengthUnit:
      return "the project has no unit of length, metres are assumed";
    case StepProblem::NoAreaUnit:
      return "the project has no unit of area, square metres are assumed";
    case StepProblem::NoVolumeUnit:
      return "the project has no unit of volume, cubic metres are assumed";
    case StepProblem::NoAngleUnit:
      return "the project has no unit of angle, radians are assumed";
  }
  return "";
}

}  // namespace

std::string StepMessage::GetText() const {
  std::string text;
  if (line != 0) text += "line " + std::to_string(line) + ": ";
  if (id != 0) text += "#" + std::to_string(id) + ": ";
  return text + Describe(problem);
}

void StepMessages::Add(StepProblem problem, std::size_t position, std::uint64_t id) {
  ++count_;
  if (list_.size() == MaximumCount) return;
  list_.push_back({problem, 0, id});
  positions_.push_back(position);
}

void StepMessages::FindLines(std::string_view text) {
  std::vector<std::size_t> order(positions_.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::sort(order.begin(), order.end(), [&](auto a, auto b) { return positions_[a] < positions_[b]; });
  const std::size_t first = list_.size() - positions_.size();
  std::uint64_t line = 1;
  std::size_t counted = 0;
  for (const std::size_t i : order) {
    if (positions_[i] == NoPlace) break;
    const std::size_t position = std::min(positions_[i], text.size());
    const auto from = text.begin() + static_cast<std::ptrdiff_t>(counted);
    line += static_cast<std::uint64_t>(std::count(from, text.begin() + static_cast<std::ptrdiff_t>(position), '\n'));
    counted = position;
    list_[first + i].line = line;
  }
  positions_.clear();
}

bool StepMessages::HasFatal() const {
  return std::any_of(list_.begin(), list_.end(), [](const StepMessage& message) { return message.IsFatal(); });
}

}  // namespace Host
