#include "Host/Ifc/IfcModelBuilder.hpp"

#include <algorithm>
#include <string_view>
#include <utility>

namespace Host {
namespace {

struct Relation {
  std::string_view name;
  unsigned int owners;   ///< the argument that holds what is described
  unsigned int targets;  ///< the argument that holds what describes it
};

enum RelationKind : std::uint32_t { ByProperties, ByType, Contained, Aggregates, RelationCount };

constexpr Relation Relations[RelationCount] = {
    {"IFCRELDEFINESBYPROPERTIES", 4, 5},
    {"IFCRELDEFINESBYTYPE", 4, 5},
    {"IFCRELCONTAINEDINSPATIALSTRUCTURE", 4, 5},
    {"IFCRELAGGREGATES", 5, 4},
};

constexpr unsigned int NameArgument = 2;
constexpr unsigned int PlacementArgument = 5;
constexpr unsigned int SetsOfTypeArgument = 5;
constexpr unsigned int PropertiesArgument = 4;
constexpr unsigned int QuantitiesArgument = 5;

// Objects of these classes may look as a product does where they leave out what they have.
bool IsNoProduct(std::string_view name) {
  constexpr std::string_view Names[] = {"IFCACTIONREQUEST", "IFCASSET",       "IFCCOSTITEM",
                                        "IFCCOSTSCHEDULE",  "IFCEVENT",       "IFCINVENTORY",
                                        "IFCMOVE",          "IFCPERMIT",      "IFCPERFORMANCEHISTORY",
                                        "IFCPROCEDURE",     "IFCPROJECT",     "IFCPROJECTLIBRARY",
                                        "IFCPROJECTORDER",  "IFCTASK",        "IFCWORKCALENDAR",
                                        "IFCWORKPLAN",      "IFCWORKSCHEDULE"};
  return name.ends_with("TYPE") || name.ends_with("STYLE") || name.ends_with("RESOURCE") ||
         std::find(std::begin(Names), std::end(Names), name) != std::end(Names);
}

bool IsReferenceOrAbsent(const StepValue& value) {
  return value.kind == StepKind::Reference || value.kind == StepKind::Absent;
}

void SortByOwner(std::vector<IfcSpans::Pair>& pairs) {
  std::sort(pairs.begin(), pairs.end(),
            [](const auto& a, const auto& b) { return a.owner != b.owner ? a.owner < b.owner : a.value < b.value; });
}

const IfcSpans::Pair* FindOwner(const std::vector<IfcSpans::Pair>& pairs, std::uint32_t owner) {
  const auto found = std::lower_bound(pairs.begin(), pairs.end(), owner,
                                      [](const auto& pair, std::uint32_t wanted) { return pair.owner < wanted; });
  return found != pairs.end() && found->owner == owner ? &*found : nullptr;
}

template <class Values>
void SortUnique(Values& values) {
  std::sort(values.begin(), values.end());
  values.erase(std::unique(values.begin(), values.end()), values.end());
  values.shrink_to_fit();
}

// The index of a value in an ascending array, or its size.
std::uint32_t FindIndex(const std::vector<std::uint32_t>& values, std::uint32_t value) {
  const auto found = std::lower_bound(values.begin(), values.end(), value);
  const bool there = found != values.end() && *found == value;
  return static_cast<std::uint32_t>((there ? found : values.end()) - values.begin());
}

}  // namespace

void IfcModelBuilder::Build() {
  if (!file_.GetMessages().HasFatal()) {
    CheckSchema();
    model_.units_ = IfcUnits::Read(file_, file_.GetMessages());
    ReadRelations();
  }
  FindElements();
  LinkTypes();
  LinkStoreys();
  ReadSets();
  file_.GetMessages().FindLines(file_.GetText());
}

void IfcModelBuilder::CheckSchema() {
  const std::string_view schema = file_.GetSchema();
  if (schema.starts_with("IFC2X3") || schema.starts_with("IFC4")) return;
  file_.GetMessages().Add(StepProblem::UnknownSchema, StepMessages::NoPlace);
}

void IfcModelBuilder::ReadRelations() {
  elementClasses_.resize(file_.GetClasses().GetCount());
  std::uint32_t classes[RelationCount];
  for (std::uint32_t i = 0; i < RelationCount; ++i) classes[i] = file_.GetClasses().Find(Relations[i].name);
  for (Place place = 0; place < file_.GetIndex().GetCount(); ++place) {
    const std::uint32_t number = file_.GetClass(place);
    const auto* found = std::find(std::begin(classes), std::end(classes), number);
    if (number != StepClasses::None && found != std::end(classes))
      ReadRelation(place, static_cast<std::uint32_t>(found - classes));
  }
}

void IfcModelBuilder::ReadRelation(Place place, std::uint32_t kind) {
  const StepCursor arguments = file_.GetArguments(place);
  const StepValue owners = StepCursor(arguments).NextAfter(Relations[kind].owners);
  const StepValue targets = StepCursor(arguments).NextAfter(Relations[kind].targets);
  std::vector<Pair>& pairs = kind == ByProperties ? setsOfObjects_ : kind == ByType ? typesOfObjects_ : parents_;
  const std::size_t before = pairs.size();
  Relate(place, owners, targets, pairs);
  if (kind != ByProperties && kind != ByType) return;
  for (std::size_t i = before; i < pairs.size(); ++i) elementClasses_[file_.GetClass(pairs[i].owner)] = true;
}

// One of both sides is a single instance as a rule. Two long lists would make more pairs than memory holds.
void IfcModelBuilder::Relate(Place place, const StepValue& owners, const StepValue& targets, std::vector<Pair>& pairs) {
  const std::vector<Place> from = ReadReferences(place, owners);
  const std::vector<Place> to = ReadReferences(place, targets);
  constexpr std::size_t MaximumPairsPerReference = 8;
  if (from.size() * to.size() > (from.size() + to.size()) * MaximumPairsPerReference)
    return Complain(StepProblem::BrokenInstance, place);
  for (const Place owner : from)
    for (const Place target : to) pairs.push_back({owner, target});
}

void IfcModelBuilder::Complain(StepProblem problem, Place place) {
  file_.GetMessages().Add(problem, file_.GetIndex().GetPosition(place), file_.GetIndex().GetId(place));
}

std::vector<IfcModelBuilder::Place> IfcModelBuilder::ReadReferences(Place place, const StepValue& value) {
  std::vector<Place> places;
  StepValue list = value;
  if (list.kind == StepKind::Typed) list = StepCursor(list.inside).Next();
  StepCursor items(list.inside);
  StepValue item = list.kind == StepKind::List ? items.Next() : list;
  for (; item.kind == StepKind::Reference; item = list.kind == StepKind::List ? items.Next() : StepValue()) {
    if (const TW::Optional<Place> found = file_.Find(item)) {
      places.push_back(*found);
    } else {
      Complain(StepProblem::DanglingReference, place);
    }
  }
  if (item.kind != StepKind::End && item.kind != StepKind::Absent) Complain(StepProblem::BrokenInstance, place);
  return places;
}

void IfcModelBuilder::FindElements() {
  if (elementClasses_.empty()) return;
  elementClasses_[StepClasses::None] = false;
  for (std::uint32_t number = 1; number < elementClasses_.size(); ++number)
    if (IsNoProduct(file_.GetClasses().GetName(number))) elementClasses_[number] = false;
  for (Place place = 0; place < file_.GetIndex().GetCount(); ++place) {
    if (elementClasses_[file_.GetClass(place)] && IsProduct(place))
      model_.elements_.push_back({place, IfcModel::None, IfcModel::None});
  }
}

bool IfcModelBuilder::IsProduct(Place place) const {
  StepCursor arguments = file_.GetArguments(place);
  const StepValue globalId = arguments.Next();
  if (globalId.kind != StepKind::Text || globalId.text.empty()) return false;
  const StepValue placement = arguments.NextAfter(PlacementArgument - 1);
  return IsReferenceOrAbsent(placement) && IsReferenceOrAbsent(arguments.Next());
}

void IfcModelBuilder::LinkTypes() {
  SortByOwner(typesOfObjects_);
  for (const Pair& pair : typesOfObjects_) model_.types_.push_back(pair.value);
  SortUnique(model_.types_);
  for (IfcModel::ElementRecord& element : model_.elements_)
    if (const Pair* pair = FindOwner(typesOfObjects_, element.place))
      element.type = FindIndex(model_.types_, pair->value);
  typesOfObjects_ = {};
  for (std::uint32_t i = 0; i < model_.types_.size(); ++i) {
    const Place type = model_.types_[i];
    const StepValue sets = file_.GetArguments(type).NextAfter(SetsOfTypeArgument);
    if (sets.kind != StepKind::List) continue;
    for (const Place set : ReadReferences(type, sets)) setsOfTypes_.push_back({i, set});
  }
}

void IfcModelBuilder::LinkStoreys() {
  SortByOwner(parents_);
  const std::uint32_t storeyClass = file_.GetClasses().Find("IFCBUILDINGSTOREY");
  if (storeyClass != StepClasses::None)
    for (IfcModel::ElementRecord& element : model_.elements_) element.storey = FindStorey(element.place, storeyClass);
  parents_ = {};
}

// Parts of parts stand in the storey of the whole; whoever is part of himself, in none.
std::uint32_t IfcModelBuilder::FindStorey(Place place, std::uint32_t storeyClass) const {
  constexpr int MaximumDepth = 32;
  for (int depth = 0; depth < MaximumDepth; ++depth) {
    const Pair* parent = FindOwner(parents_, place);
    if (parent == nullptr) break;
    place = parent->value;
    if (file_.GetClass(place) == storeyClass) return place;
  }
  return IfcModel::None;
}

void IfcModelBuilder::ReadSets() {
  // From here on pairs tell elements, not their places.
  std::size_t used = 0;
  for (const Pair& pair : setsOfObjects_) {
    const auto found = std::lower_bound(model_.elements_.begin(), model_.elements_.end(), pair.owner,
                                        [](const auto& element, Place wanted) { return element.place < wanted; });
    if (found == model_.elements_.end() || found->place != pair.owner) continue;
    setsOfObjects_[used++] = {static_cast<std::uint32_t>(found - model_.elements_.begin()), pair.value};
  }
  setsOfObjects_.resize(used);
  for (const std::vector<Pair>* pairs : {&setsOfObjects_, &setsOfTypes_})
    for (const Pair& pair : *pairs) setPlaces_.push_back(pair.value);
  SortUnique(setPlaces_);
  for (const Place place : setPlaces_) ReadSet(place);
  model_.setNames_.ForgetFile();
  model_.propertyNames_.ForgetFile();
  LinkSets(setsOfObjects_, model_.setsOfElements_, model_.elements_.size());
  LinkSets(setsOfTypes_, model_.setsOfTypes_, model_.types_.size());
}

void IfcModelBuilder::ReadSet(Place place) {
  const std::string_view name = file_.GetClasses().GetName(file_.GetClass(place));
  const bool isSet = name == "IFCPROPERTYSET";
  IfcModel::SetRecord set{0, static_cast<std::uint32_t>(model_.properties_.size())};
  if (isSet || name == "IFCELEMENTQUANTITY") {
    StepCursor arguments = file_.GetArguments(place);
    set.name = model_.setNames_.Add(arguments.NextAfter(NameArgument).text);
    const StepValue list = arguments.NextAfter((isSet ? PropertiesArgument : QuantitiesArgument) - NameArgument - 1);
    for (const Place property : ReadReferences(place, list)) {
      if (!model_.reader_.IsProperty(file_.GetClass(property))) continue;
      model_.properties_.push_back({model_.propertyNames_.Add(file_.GetArguments(property).Next().text), property});
    }
    set.end = static_cast<std::uint32_t>(model_.properties_.size());
  }
  model_.sets_.push_back(set);
}

void IfcModelBuilder::LinkSets(const std::vector<Pair>& pairs, IfcSpans& spans, std::size_t count) {
  std::vector<Pair> links;
  links.reserve(pairs.size());
  for (const Pair& pair : pairs) links.push_back({pair.owner, FindIndex(setPlaces_, pair.value)});
  spans = IfcSpans(count, links);
}

}  // namespace Host
