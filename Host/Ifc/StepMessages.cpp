#include "Host/Ifc/StepMessages.hpp"

#include "Host/Texts/HostText.hpp"

#include <algorithm>
#include <numeric>
#include <string>

namespace Host {
TW::UniString StepMessage::GetMessage() const {
  const TW::UniString sentence = MakeText(TextList::Model, static_cast<int>(problem) + 1);
  return id == 0 ? sentence : TW::UniString::FromUtf8("#" + std::to_string(id) + ": ") + sentence;
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
