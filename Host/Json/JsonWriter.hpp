#pragma once

#include <string>
#include <string_view>

namespace Host {

/// Appends JSON to a text, on one line unless told otherwise, in UTF-8. It puts the commas; that the rest makes sense
/// is up to the caller.
class JsonWriter {
 public:
  /// Keeps a reference to `out`.
  explicit JsonWriter(std::string& out) : out_(out) {}

  void BeginObject() { Open('{'); }
  void EndObject() { Close('}'); }
  void BeginArray() { Open('['); }
  void EndArray() { Close(']'); }
  /// `key` is printable ASCII without quotation marks and backslashes.
  void WriteKey(std::string_view key);
  /// The same for any key.
  void WriteKey(std::u16string_view key);
  /// The same for a text.
  void WriteName(std::string_view name);
  /// Writes a lone surrogate as an escape.
  void WriteText(std::u16string_view text);
  /// Writes the shortest form that reads back as the same double; `value` is finite.
  void WriteNumber(double value);
  void WriteInteger(long long value);
  void WriteBool(bool value) { WriteSource(value ? "true" : "false"); }
  void WriteNull() { WriteSource("null"); }
  /// Writes what is JSON already.
  void WriteSource(std::string_view json);
  /// Makes the next value or key begin a line.
  void BreakLine();

 private:
  void Open(char bracket);
  void Close(char bracket);
  void Separate();

  std::string& out_;
  bool follows_ = false;  ///< whether a comma comes before the next value or key
};

}  // namespace Host
