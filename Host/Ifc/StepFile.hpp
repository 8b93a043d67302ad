#pragma once

#include "Host/Ifc/StepClasses.hpp"
#include "Host/Ifc/StepCursor.hpp"
#include "Host/Ifc/StepIndex.hpp"
#include "Host/Ifc/StepMessages.hpp"
#include "TW/Optional.hpp"

#include <memory>
#include <string>
#include <string_view>

namespace Host {

/// A file in the STEP text encoding (ISO 10303-21), of any schema: an index of its instances, whose arguments are read
/// when they are asked for. Owns the text of the file and needs little more memory than that. Whatever the file holds,
/// what can be read is read, and what is wrong is told by messages. Any number of threads may read from one object.
class StepFile {
 public:
  using Place = StepIndex::Place;

  /// Reads a file of the system (a path in its own encoding).
  static StepFile Read(const std::string& path);
  /// Reads a text.
  static StepFile FromText(std::string text);

  /// What was found wrong. After a fatal problem there are no instances.
  const StepMessages& GetMessages() const { return messages_; }
  StepMessages& GetMessages() { return messages_; }

  std::string_view GetText() const { return text_; }
  /// The first name of the schema, in upper case.
  const std::string& GetSchema() const { return schema_; }
  /// The position of the end of the last data section, or the end of the text.
  std::size_t GetDataEnd() const { return dataEnd_; }

  const StepClasses& GetClasses() const { return classes_; }
  const StepIndex& GetIndex() const { return index_; }
  /// The class of an instance, by its number in `GetClasses`.
  std::uint32_t GetClass(Place place) const { return index_.GetClass(place); }
  /// Begins to read the arguments of an instance; a complex instance has none.
  StepCursor GetArguments(Place place) const;
  /// The instance that an argument refers to, or nothing.
  TW::Optional<Place> Find(const StepValue& reference) const;

 private:
  friend class StepFileReader;

  explicit StepFile(std::string text) : text_(std::move(text)) {}

  std::string text_;
  std::string schema_;
  std::size_t dataEnd_ = 0;
  StepClasses classes_;
  StepIndex index_;
  StepMessages messages_;
};

}  // namespace Host
