#include "Host/Ifc/IfcModel.hpp"

#include "Host/Ifc/IfcModelBuilder.hpp"

#include <algorithm>
#include <string_view>
#include <unordered_set>
#include <utility>

namespace Host {
namespace {

constexpr unsigned int TypeArgument = 4;
constexpr unsigned int TagArgument = 7;

// In these classes another name stands where elements have their tag.
bool HasLongName(std::string_view name) {
  constexpr std::string_view Names[] = {"IFCBRIDGE",
                                        "IFCBRIDGEPART",
                                        "IFCBUILDING",
                                        "IFCBUILDINGSTOREY",
                                        "IFCEXTERNALSPATIALELEMENT",
                                        "IFCFACILITY",
                                        "IFCFACILITYPART",
                                        "IFCFACILITYPARTCOMMON",
                                        "IFCMARINEFACILITY",
                                        "IFCMARINEPART",
                                        "IFCRAILWAY",
                                        "IFCRAILWAYPART",
                                        "IFCROAD",
                                        "IFCROADPART",
                                        "IFCSITE",
                                        "IFCSPACE",
                                        "IFCSPATIALZONE"};
  return std::binary_search(std::begin(Names), std::end(Names), name);
}

}  // namespace

IfcModel::IfcModel(StepFile file) : file_(std::move(file)), reader_(file_) { IfcModelBuilder(*this).Build(); }

const std::string& IfcModel::GetClass(Element element) const {
  return file_.GetClasses().GetName(file_.GetClass(elements_[element].place));
}

TW::UniString IfcModel::GetTextArgument(Place place, unsigned int index) const {
  return file_.GetArguments(place).NextAfter(index).GetText();
}

TW::UniString IfcModel::GetTag(Element element) const {
  return HasLongName(GetClass(element)) ? TW::UniString() : GetTextArgument(elements_[element].place, TagArgument);
}

TW::UniString IfcModel::GetTypeName(Element element) const {
  const ElementRecord& record = elements_[element];
  return record.type == None ? GetTextArgument(record.place, TypeArgument) : GetTextArgument(types_[record.type], 2);
}

TW::UniString IfcModel::GetStorey(Element element) const {
  const std::uint32_t storey = elements_[element].storey;
  return storey == None ? TW::UniString() : GetTextArgument(storey, 2);
}

TW::Optional<IfcModel::Key> IfcModel::FindKey(std::u16string_view path) const {
  for (std::size_t dot = path.find(u'.'); dot != std::u16string_view::npos; dot = path.find(u'.', dot + 1)) {
    const TW::Optional<Name> set = setNames_.Find(path.substr(0, dot));
    const TW::Optional<Name> property = propertyNames_.Find(path.substr(dot + 1));
    if (set && property) return Key{*set, *property};
  }
  return {};
}

std::span<const IfcModel::PropertyRecord> IfcModel::GetProperties(std::uint32_t set) const {
  const std::uint32_t begin = set == 0 ? 0 : sets_[set - 1].end;
  return std::span(properties_).subspan(begin, sets_[set].end - begin);
}

std::span<const std::uint32_t> IfcModel::GetTypeSets(Element element) const {
  const std::uint32_t type = elements_[element].type;
  return type == None ? std::span<const std::uint32_t>() : setsOfTypes_[type];
}

TW::Optional<IfcModel::Place> IfcModel::FindIn(std::span<const std::uint32_t> sets, Key key) const {
  for (const std::uint32_t set : sets) {
    if (sets_[set].name != key.set) continue;
    for (const PropertyRecord& property : GetProperties(set))
      if (property.name == key.property) return property.place;
  }
  return {};
}

TW::Optional<IfcModel::Place> IfcModel::FindProperty(Element element, Key key) const {
  const TW::Optional<Place> own = FindIn(setsOfElements_[element], key);
  return own ? own : FindIn(GetTypeSets(element), key);
}

TW::Optional<IfcValue> IfcModel::FindValue(Element element, Key key) const {
  const TW::Optional<Place> property = FindProperty(element, key);
  return property ? ReadValue(*property) : TW::Optional<IfcValue>();
}

void IfcModel::ForEachProperty(Element element, const std::function<void(Key key, Place property)>& visit) const {
  std::unordered_set<std::uint64_t> seen;
  for (const std::span<const std::uint32_t> sets : {setsOfElements_[element], GetTypeSets(element)}) {
    for (const std::uint32_t set : sets) {
      for (const PropertyRecord& property : GetProperties(set)) {
        const Key key{sets_[set].name, property.name};
        if (seen.insert(std::uint64_t{key.set} << 32 | key.property).second) visit(key, property.place);
      }
    }
  }
}

}  // namespace Host
