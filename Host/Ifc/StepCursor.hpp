#pragma once

#include "TW/Optional.hpp"
#include "TW/UniString.hpp"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace Host {

/// What an argument of an instance is.
enum class StepKind : std::uint8_t {
  End,      ///< there are no more arguments
  Broken,   ///< what stands here is no argument; nothing after it is read
  Absent,   ///< `$`
  Derived,  ///< `*`
  Integer,
  Real,
  Text,
  Binary,
  Enumeration,  ///< `.NAME.`
  Reference,    ///< `#1`
  List,
  Typed,  ///< an argument in the brackets of a keyword
};

/// An argument as it stands in the file; a view that lives as long as the text of the file.
struct StepValue {
  StepKind kind = StepKind::End;
  std::string_view text;    ///< the digits, the text between quotes, the name or the keyword
  std::uint64_t id = 0;     ///< of a reference; 0 when it needs more than 64 bits
  std::string_view inside;  ///< for a list and a typed argument: where its own arguments begin

  /// The number, or nothing when this is none or none that a double holds.
  TW::Optional<double> GetNumber() const;
  /// The content of a text, with its escapes read; empty for anything else.
  TW::UniString GetText() const;
};

/// Goes through the arguments of an instance, a list or a typed argument, from its opening bracket to the closing one,
/// and reads only what it is asked for. Passing over a nested argument needs no recursion. A cursor is small, copied
/// freely, and views the text of the file.
class StepCursor {
 public:
  StepCursor() = default;
  /// `text` begins behind the opening bracket and may reach beyond the closing one.
  explicit StepCursor(std::string_view text) : text_(text) {}

  /// Reads the next argument.
  StepValue Next();
  /// Passes over `count` arguments and reads the one after them.
  StepValue NextAfter(unsigned int count);
  /// The text from where reading goes on: after the last argument, from the closing bracket. Empty after a broken one.
  std::string_view GetRest() const { return text_.substr(at_); }

 private:
  StepValue Read();
  StepValue ReadText();
  StepValue ReadNumber();
  StepValue ReadEnumeration();
  StepValue ReadBinary();
  StepValue ReadReference();
  StepValue ReadTyped();
  StepValue Enter(StepKind kind, std::string_view keyword);
  StepValue Take(StepKind kind, std::size_t first, std::size_t end, std::size_t next);
  StepValue Break();
  bool PassSeparator();
  void PassNested();

  std::string_view text_;
  std::size_t at_ = 0;
  bool first_ = true;    ///< no argument was read yet
  bool nested_ = false;  ///< the last argument is nested, and the position is in it
};

}  // namespace Host
