#include "Host/Ifc/StepClasses.hpp"

#include "Host/Ifc/StepScan.hpp"

#include <algorithm>
#include <cstddef>
#include <cstring>

namespace Host {
namespace {

// Eight letters, in whatever case.
std::uint64_t LoadWord(const char* letters) {
  std::uint64_t word = 0;
  std::memcpy(&word, letters, sizeof(word));
  return word & 0xDFDFDFDFDFDFDFDFU;
}

// The end and the middle tell the keywords of a schema apart, which begin alike.
std::size_t Hash(std::string_view keyword) {
  constexpr std::size_t Width = sizeof(std::uint64_t);
  std::uint64_t hash = keyword.size();
  if (keyword.size() >= Width) {
    hash += LoadWord(keyword.data() + keyword.size() - Width);
    hash += LoadWord(keyword.data() + (keyword.size() - Width) / 2) * 0xC2B2AE3D27D4EB4FU;
  } else {
    for (const char character : keyword) hash = hash << 8 | static_cast<unsigned char>(ToStepUpper(character));
  }
  hash *= 0x9E3779B97F4A7C15U;
  return static_cast<std::size_t>(hash >> 40);
}

// However unlucky the keywords are, looking for one ends.
constexpr int MaximumSteps = 64;

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
  for (int step = 0; slots_[slot] != 0; ++step) {
    if (IsSame(names_[slots_[slot]], keyword)) return slots_[slot];
    if (step == MaximumSteps) return None;
    slot = (slot + 1) % SlotCount;
  }
  if (names_.size() == MaximumCount) return None;
  slots_[slot] = static_cast<std::uint16_t>(names_.size());
  names_.push_back(ToUpper(keyword));
  return slots_[slot];
}

std::uint32_t StepClasses::Find(std::string_view name) const {
  std::size_t slot = Hash(name) % SlotCount;
  for (int step = 0; step <= MaximumSteps && slots_[slot] != 0; ++step) {
    if (names_[slots_[slot]] == name) return slots_[slot];
    slot = (slot + 1) % SlotCount;
  }
  return None;
}

}  // namespace Host
