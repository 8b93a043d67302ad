#pragma once

#include "Host/Json/JsonDocument.hpp"
#include "TW/UniString.hpp"

#include <cstddef>
#include <functional>
#include <span>
#include <string_view>
#include <vector>

namespace Host {

/// What can be wrong with the contents of valid JSON.
enum class JsonContentFault {
  WrongValue,
  UnknownUnit,  ///< a text names no unit
  UnknownKey,
  DuplicateKey,  ///< the key has come before in the same object
};

/// Told where something is wrong, what, and in a sentence for people. It may throw to end the reading; otherwise what
/// is wrong is passed over.
using JsonComplain = std::function<void(const JsonValue& place, JsonContentFault fault, const TW::UniString& message)>;

/// Tells members of an object by their keys.
class JsonMembers {
 public:
  /// Keeps references to both, and the views of the keys.
  JsonMembers(std::span<const std::u16string_view> keys, const JsonComplain& complain)
      : keys_(keys), complain_(complain) {}

  /// Calls `visit` with the number of the key and the value of each member of an object in order, but complains of
  /// unknown keys; of keys that come again too.
  template <class Visit>
  void ForEach(const JsonValue& object, Visit&& visit) const {
    std::vector<bool> seen(keys_.size());
    object.ForEachKey([&](const JsonValue& key, const JsonValue& value) {
      const std::size_t number = Find(key);
      if (number == keys_.size()) return;
      if (seen[number]) ComplainOfDouble(key);
      seen[number] = true;
      visit(number, value);
    });
  }

 private:
  // The number of the key, or the count of keys.
  std::size_t Find(const JsonValue& key) const;
  void ComplainOfDouble(const JsonValue& key) const;

  std::span<const std::u16string_view> keys_;
  const JsonComplain& complain_;
};

}  // namespace Host
