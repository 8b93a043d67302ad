#include "Host/Ifc/StepClasses.hpp"

#include "Host/Ifc/StepScan.hpp"

#include <algorithm>
#include <cstddef>

namespace Host {
namespace {

std::size_t Hash(std::string_view keyword) {
  std::uint32_t hash = 0;
  for (const char character : keyword) {
    hash = (hash ^ static_cast<unsigned char>(ToStepUpper(character))) * 0x9E3779B1U;
    hash ^= hash >> 15;
  }
  return hash;
}

bool IsSame(std::string_view upper, std::string_view keyword) {
  if (upper == keyword) return true;
  return std::equal(upper.begin(), upper.end(), keyword.begin(), keyword.end(),
                    [](char left, char right) { return left == ToStepUpper(right); });
}

std::string ToUpper(std::string_view keyword) {
  std::string upper(keyword);
  for (char& character : upper) character = ToStepUpper(character);
  return upper;
}

}  // namespace

StepClasses::StepClasses() : names_(1), slots_(SlotCount, 0) {}

std::uint32_t StepClasses::Add(std::string_view keyword) {
  // A keyword of thousands of letters names nothing.
  constexpr std::size_t MaximumLength = 256;
  if (keyword.size() > MaximumLength) return None;
  std::size_t slot = Hash(keyword) % SlotCount;
  while (slots_[slot] != 0) {
    if (IsSame(names_[slots_[slot]], keyword)) return slots_[slot];
    slot = (slot + 1) % SlotCount;
  }
  if (names_.size() == MaximumCount) return None;
  slots_[slot] = static_cast<std::uint16_t>(names_.size());
  names_.push_back(ToUpper(keyword));
  return slots_[slot];
}

std::uint32_t StepClasses::Find(std::string_view name) const {
  std::size_t slot = Hash(name) % SlotCount;
  while (slots_[slot] != 0 && names_[slots_[slot]] != name) slot = (slot + 1) % SlotCount;
  return slots_[slot];
}

}  // namespace Host
