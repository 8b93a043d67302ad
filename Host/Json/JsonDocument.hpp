#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace Host {

/// Why a text is no JSON.
enum class JsonFault {
  Empty,           ///< there is nothing
  More,            ///< something follows the value
  ValueExpected,   ///< something else stands where a value must begin
  NameExpected,    ///< something else stands where the name of a member must begin
  ColonExpected,   ///< after the name of a member
  ObjectGoesOn,    ///< neither a comma nor a closing bracket follows a member
  ArrayGoesOn,     ///< the same for an element
  WrongEscape,     ///< a backslash and what follows it stand for nothing
  UnfinishedText,  ///< a text is not closed before the line ends
  WrongNumber,     ///< a number lacks digits or is too large
};

/// A text is no JSON; the message says where and why, in English.
class JsonError : public std::runtime_error {
 public:
  JsonError(JsonFault fault, std::size_t position, const std::string& reason)
      : std::runtime_error("byte " + std::to_string(position) + ": " + reason), fault_(fault), position_(position) {}

  JsonFault GetFault() const { return fault_; }
  /// The byte of the text at which it was noticed.
  std::size_t GetPosition() const { return position_; }

 private:
  JsonFault fault_;
  std::size_t position_;
};

/// The position in `json` of the 16-bit unit of this number, from 0, of the text whose quotation mark stands at `begin`
/// of a valid JSON text; that of the closing quotation mark when the text has no more units.
std::size_t FindUnitInJson(std::string_view json, std::size_t begin, std::size_t unit);

class JsonValue;

/// Reads JSON texts in UTF-8, one at a time, and keeps its memory for the next. Nesting of any depth needs no stack. An
/// escape of half a surrogate pair is refused.
class JsonDocument {
 public:
  JsonDocument();
  ~JsonDocument();
  JsonDocument(const JsonDocument&) = delete;
  JsonDocument& operator=(const JsonDocument&) = delete;

  /// Reads one value with nothing but blanks around it; throws `JsonError`. `text` must live as long as the values are
  /// used, and values end with the next call.
  JsonValue Read(std::string_view text);

 private:
  friend class JsonValue;
  class Handler;
  class Reader;

  enum class Kind : unsigned char { Null, False, True, Number, Text, Object, Array };

  struct Stretch {
    std::uint32_t begin;
    std::uint32_t end;
  };

  /// The nodes of an object's or array's contents follow it, keys before their values.
  struct Node {
    Kind kind;
    std::uint32_t next;  ///< the index after the last node of the contents
    Stretch source;      ///< where the value stands in the text that was read
    Stretch text;        ///< where the characters of a text stand
  };

  void Clear();

  std::unique_ptr<Reader> reader_;
  std::string_view source_;
  std::vector<Node> nodes_;
  std::u16string texts_;
};

/// A value in a document; copied freely, good until the document reads the next text.
class JsonValue {
 public:
  bool IsText() const { return GetKind() == JsonDocument::Kind::Text; }
  bool IsObject() const { return GetKind() == JsonDocument::Kind::Object; }
  bool IsArray() const { return GetKind() == JsonDocument::Kind::Array; }

  /// The characters of a text.
  std::u16string_view GetText() const;
  /// The value as it was written.
  std::string_view GetSource() const;
  /// Where it begins in the text that was read, in bytes.
  std::size_t GetPosition() const { return GetNode().source.begin; }
  /// Each gives false, and leaves `value` alone, when this is nothing of the kind or lies beyond the limits. Any number
  /// without a fraction counts as whole, however it is written.
  bool GetBool(bool& value) const;
  bool GetNumber(double& value) const;
  bool GetWholeNumber(long long minimum, long long maximum, long long& value) const;

  /// Calls `visit` with the key and value of each member of an object in order.
  template <class Visit>
  void ForEachMember(Visit&& visit) const {
    ForEachKey([&visit](const JsonValue& key, const JsonValue& member) { visit(key.GetText(), member); });
  }
  /// The same with the key as a value, which is a text.
  template <class Visit>
  void ForEachKey(Visit&& visit) const {
    for (std::uint32_t index = index_ + 1; index < GetNode().next;) {
      const JsonValue member(*document_, index + 1);
      visit(JsonValue(*document_, index), member);
      index = member.GetNode().next;
    }
  }
  /// Calls `visit` with each element of an array in order.
  template <class Visit>
  void ForEachElement(Visit&& visit) const {
    for (std::uint32_t index = index_ + 1; index < GetNode().next;) {
      const JsonValue element(*document_, index);
      visit(element);
      index = element.GetNode().next;
    }
  }

 private:
  friend class JsonDocument;

  JsonValue(const JsonDocument& document, std::uint32_t index) : document_(&document), index_(index) {}

  const JsonDocument::Node& GetNode() const { return document_->nodes_[index_]; }
  JsonDocument::Kind GetKind() const { return GetNode().kind; }

  const JsonDocument* document_;
  std::uint32_t index_;
};

}  // namespace Host
