#pragma once

#include "Environment.hpp"
#include "Host/Json/JsonDocument.hpp"
#include "TW/UniString.hpp"

#include <stdexcept>
#include <string>
#include <string_view>

namespace Command {

/// A request asks for something that there is not; the message tells people what.
class RequestError : public std::runtime_error {
 public:
  /// `name` is for programs and must last.
  RequestError(std::string_view name, const std::string& message) : std::runtime_error(message), name_(name) {}

  std::string_view GetName() const { return name_; }

 private:
  std::string_view name_;
};

/// The JSON that names a request, as it was written; empty when nothing does.
std::string_view ReadId(const Host::JsonValue& request);

/// Reads what a request asks for; what it leaves out is as in `defaults`. Throws `RequestError`. Unknown keys have no
/// bearing, and of equal keys the last one counts.
void ReadRequest(const Host::JsonValue& request, const Settings& defaults, TW::UniString& formula,
                 Environment& environment);

}  // namespace Command
