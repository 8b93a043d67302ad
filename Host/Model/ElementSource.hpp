#pragma once

#include "Host/Files/FileProblems.hpp"
#include "Host/PropertyDefinition.hpp"
#include "Host/PropertyKind.hpp"
#include "Host/Rules/ElementAttribute.hpp"
#include "Quorix/ExpressionValue.hpp"
#include "TW/Optional.hpp"
#include "TW/UniString.hpp"

#include <cstdint>
#include <string_view>

namespace Host {

/// The elements of a model, and the values that are known of them. Any number of threads may ask.
class ElementSource {
 public:
  /// Numbers what values are read from: a property of a set, or a column.
  using SourceIndex = std::uint64_t;

  virtual ~ElementSource() = default;

  virtual ElementIndex GetCount() const = 0;
  virtual TW::UniString GetAttribute(ElementIndex element, ElementAttribute attribute) const = 0;
  /// The number of a source by its name, or nothing when no element has it.
  virtual TW::Optional<SourceIndex> FindSource(std::u16string_view name) const = 0;
  /// The value of an element from a source: of the given kind, perhaps user undefined, or invalid when the source holds
  /// something of another kind. Nothing when the element has nothing there.
  virtual TW::Optional<QX::ExpressionValue> Read(ElementIndex element, SourceIndex source, PropertyKind kind) const = 0;
  /// What was wrong with the file. Without a fatal problem the elements are those that could be read.
  virtual const FileProblems& GetProblems() const = 0;
};

}  // namespace Host
