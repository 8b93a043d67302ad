#pragma once

#include "Host/Model/ElementSource.hpp"
#include "Host/Rules/Rules.hpp"

#include <vector>

namespace Host {

/// Reads the values of one input, each from the first of its sources that the element has. Keeps references to the rule
/// and the elements; any number of threads may use one.
class InputReader {
 public:
  InputReader(const PropertyRule& rule, const ElementSource& elements);

  /// Whether any element has one of the sources.
  bool HasSources() const { return !sources_.empty(); }
  /// The value, invalid when the source holds something of another kind; nothing when the element has none of the
  /// sources.
  TW::Optional<QX::ExpressionValue> Read(ElementIndex element) const;
  /// The name of the source that `Read` reads from, or null when the element has none of them.
  const TW::UniString* FindOrigin(ElementIndex element) const;

 private:
  struct Source {
    const TW::UniString* name;
    TW::Optional<ElementAttribute> attribute;
    ElementSource::SourceIndex index;  ///< when it is no attribute
  };

  TW::Optional<QX::ExpressionValue> ReadFrom(const Source& source, ElementIndex element) const;

  const ElementSource& elements_;
  PropertyKind kind_;
  std::vector<Source> sources_;  ///< those that some element has
};

}  // namespace Host
