#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Host {

/// The classes that occur in a file, by number in the order of their first occurrence. Class 0 stands for an instance
/// that has no single class: a complex one, one that does not count, or one beyond the greatest number of classes.
class StepClasses {
 public:
  static constexpr std::uint32_t None = 0;
  /// No schema comes near it; what a hostile file adds costs no memory.
  static constexpr std::uint32_t MaximumCount = 16'384;

  StepClasses();

  /// The number of the class that a keyword names, in whatever case, which is added unless it is there.
  std::uint32_t Add(std::string_view keyword);
  /// The number of a class in upper case, or `None`.
  std::uint32_t Find(std::string_view name) const;
  /// In upper case.
  const std::string& GetName(std::uint32_t number) const { return names_[number]; }
  std::uint32_t GetCount() const { return static_cast<std::uint32_t>(names_.size()); }

 private:
  static constexpr std::size_t SlotCount = std::size_t{2} * MaximumCount;

  std::vector<std::string> names_;
  std::vector<std::uint16_t> slots_;
};

}  // namespace Host
