#pragma once

#include "TW/Guid.hpp"

#include <cstddef>
#include <vector>

namespace TW {

/// A snapshot of an object: its class and what it writes of itself. Made by `Object::Store`, used by `Object::Restore`.
struct ObjectState {
  Guid classGuid;
  std::vector<std::byte> bytes;
};

}  // namespace TW
