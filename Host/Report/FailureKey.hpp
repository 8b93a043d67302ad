#pragma once

#include "Host/Cell.hpp"
#include "Host/PropertyDefinition.hpp"

#include <cstddef>
#include <functional>

namespace Host {

/// A failure of a property, the same for every element that it befalls.
struct FailureKey {
  PropertyIndex property = 0;
  Failure failure;
  /// What the property that the formula waits for has in place of a value; `Defined` when there is none.
  CellStatus cause = CellStatus::Defined;

  friend bool operator==(const FailureKey&, const FailureKey&) = default;
};

struct FailureKeyHash {
  std::size_t operator()(const FailureKey& key) const {
    constexpr std::size_t Spread = 0x9E3779B97F4A7C15U;
    const std::size_t place = std::hash<const void*>()(key.failure.node) + key.property;
    const auto reason = static_cast<std::size_t>(key.failure.resourceIndex) * 64 +
                        static_cast<std::size_t>(key.failure.kind) * 8 + static_cast<std::size_t>(key.cause);
    const std::size_t mixed = (place * Spread) ^ reason;
    return (mixed * Spread) ^ (mixed >> 29);
  }
};

}  // namespace Host
