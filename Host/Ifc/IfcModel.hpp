#pragma once

#include "Host/Ifc/IfcNames.hpp"
#include "Host/Ifc/IfcPropertyReader.hpp"
#include "Host/Ifc/IfcSpans.hpp"
#include "Host/Ifc/IfcUnits.hpp"
#include "Host/Ifc/IfcValue.hpp"
#include "Host/Ifc/StepFile.hpp"
#include "TW/Optional.hpp"
#include "TW/UniString.hpp"

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <vector>

namespace Host {

/// The elements of an IFC building model (IFC2X3, IFC4, IFC4X3) with their properties and quantities. Elements are all
/// products of the classes of which the model gives some product properties or a type, in the order of the file.
///
/// Owns the file. Texts and values are read from it when they are asked for, which any number of threads may do at
/// once. What is wrong with the file is told by its messages; the model then holds what could be read.
class IfcModel {
 public:
  using Element = std::uint32_t;  ///< from 0
  using Name = IfcNames::Name;
  using Place = StepFile::Place;

  /// Which property is meant: the names of its set and its own.
  struct Key {
    Name set;
    Name property;
  };

  static IfcModel Read(const std::string& path) { return IfcModel(StepFile::Read(path)); }
  explicit IfcModel(StepFile file);

  const StepFile& GetFile() const { return file_; }
  const StepMessages& GetMessages() const { return file_.GetMessages(); }
  const IfcUnits& GetUnits() const { return units_; }

  Element GetElementCount() const { return static_cast<Element>(elements_.size()); }
  /// The instance of an element in the file.
  Place GetPlace(Element element) const { return elements_[element].place; }
  /// The class in upper case.
  const std::string& GetClass(Element element) const;
  TW::UniString GetGlobalId(Element element) const { return GetTextArgument(elements_[element].place, 0); }
  TW::UniString GetName(Element element) const { return GetTextArgument(elements_[element].place, 2); }
  TW::UniString GetTag(Element element) const;
  /// The name of the element's type; without a type, the type that the element itself names.
  TW::UniString GetTypeName(Element element) const;
  /// The name of the storey that holds the element, or the whole of which it is a part; empty when there is none.
  TW::UniString GetStorey(Element element) const;

  /// The key of `SetName.PropertyName`, or nothing when no element has such names. Both may hold full stops.
  TW::Optional<Key> FindKey(std::u16string_view path) const;
  const TW::UniString& GetSetName(Key key) const { return setNames_.GetText(key.set); }
  const TW::UniString& GetPropertyName(Key key) const { return propertyNames_.GetText(key.property); }
  /// The instance of a property or quantity that the element or, where it has none of these names, its type has.
  TW::Optional<Place> FindProperty(Element element, Key key) const;
  /// The value of a property, or nothing when neither the element nor its type has it.
  TW::Optional<IfcValue> FindValue(Element element, Key key) const;
  /// The value of a property that was found.
  IfcValue ReadValue(Place property) const { return reader_.Read(file_, units_, property); }
  bool IsQuantity(Place property) const { return reader_.IsQuantity(file_.GetClass(property)); }
  /// Visits every property that `FindProperty` finds, the element's own first.
  void ForEachProperty(Element element, const std::function<void(Key key, Place property)>& visit) const;

 private:
  friend class IfcModelBuilder;

  static constexpr std::uint32_t None = UINT32_MAX;

  struct ElementRecord {
    Place place;
    std::uint32_t type;    ///< in `types_`, or none
    std::uint32_t storey;  ///< its place, or none
  };
  struct PropertyRecord {
    Name name;
    Place place;
  };
  struct SetRecord {
    Name name;
    std::uint32_t end;  ///< of its properties, which begin where those of the set before end
  };

  TW::UniString GetTextArgument(Place place, unsigned int index) const;
  std::span<const PropertyRecord> GetProperties(std::uint32_t set) const;
  std::span<const std::uint32_t> GetTypeSets(Element element) const;
  TW::Optional<Place> FindIn(std::span<const std::uint32_t> sets, Key key) const;

  StepFile file_;
  IfcPropertyReader reader_;
  IfcUnits units_;
  IfcNames setNames_;
  IfcNames propertyNames_;
  std::vector<ElementRecord> elements_;
  std::vector<Place> types_;  ///< ascending
  std::vector<SetRecord> sets_;
  std::vector<PropertyRecord> properties_;
  IfcSpans setsOfElements_;
  IfcSpans setsOfTypes_;
};

}  // namespace Host
