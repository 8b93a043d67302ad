#include "Host/Ifc/IfcAddedSets.hpp"

#include "Host/Ifc/IfcGlobalId.hpp"
#include "Host/Ifc/StepScan.hpp"
#include "Host/Ifc/StepText.hpp"

#include <algorithm>

namespace Host {
namespace {

constexpr unsigned int ObjectsArgument = 4;
constexpr unsigned int PropertiesArgument = 4;
constexpr unsigned int NameArgument = 2;

// The relation of an added set has one object and one set.
class AddedSetFinder {
 public:
  explicit AddedSetFinder(const StepFile& file) : file_(file), setClass_(file.GetClasses().Find("IFCPROPERTYSET")) {}

  std::vector<StepFile::Place> Find() {
    const std::uint32_t relationClass = file_.GetClasses().Find("IFCRELDEFINESBYPROPERTIES");
    if (relationClass == StepClasses::None || setClass_ == StepClasses::None) return {};
    for (StepFile::Place place = 0; place < file_.GetIndex().GetCount(); ++place)
      if (file_.GetClass(place) == relationClass) Look(place);
    std::sort(found_.begin(), found_.end());
    found_.erase(std::unique(found_.begin(), found_.end()), found_.end());
    return std::move(found_);
  }

 private:
  void Look(StepFile::Place relation) {
    StepCursor arguments = file_.GetArguments(relation);
    const std::string_view id = arguments.Next().text;
    const StepValue objects = arguments.NextAfter(ObjectsArgument - 1);
    const auto element = file_.Find(StepCursor(objects.inside).Next());
    const auto set = file_.Find(arguments.Next());
    if (objects.kind != StepKind::List || !element || !set || file_.GetClass(*set) != setClass_) return;
    StepCursor ofSet = file_.GetArguments(*set);
    const std::string_view setId = ofSet.Next().text;
    const std::string name = ofSet.NextAfter(NameArgument - 1).GetText().ToUtf8();
    const std::string elementId = file_.GetArguments(*element).Next().GetText().ToUtf8();
    const IfcAddedSetIds ids = MakeIfcAddedSetIds(elementId, name);
    if (id == ids.relation && setId == ids.set)
      Take(relation, *set, ofSet.NextAfter(PropertiesArgument - NameArgument - 1));
  }

  void Take(StepFile::Place relation, StepFile::Place set, const StepValue& properties) {
    found_.insert(found_.end(), {relation, set});
    if (properties.kind != StepKind::List) return;
    StepCursor items(properties.inside);
    for (StepValue item = items.Next(); item.kind == StepKind::Reference; item = items.Next())
      if (const auto place = file_.Find(item)) found_.push_back(*place);
  }

  const StepFile& file_;
  std::uint32_t setClass_;
  std::vector<StepFile::Place> found_;
};

// Where the number of an instance begins, or `keyword` when what stands before that is not as it is written here.
std::size_t FindNumber(std::string_view text, std::uint64_t id, std::size_t keyword) {
  std::size_t begin = keyword;
  while (begin > 0 && (IsStepSpace(text[begin - 1]) || text[begin - 1] == '=')) --begin;
  const std::string number = "#" + std::to_string(id);
  return text.substr(0, begin).ends_with(number) ? begin - number.size() : keyword;
}

}  // namespace

IfcAddedSetIds MakeIfcAddedSetIds(std::string_view elementGlobalId, std::string_view setName) {
  std::string seed(elementGlobalId);
  seed += '\n';
  seed += setName;
  return {MakeIfcGlobalId(seed), MakeIfcGlobalId(seed + "\nIFCRELDEFINESBYPROPERTIES")};
}

std::vector<StepFile::Place> FindIfcAddedInstances(const StepFile& file) { return AddedSetFinder(file).Find(); }

StepStatement FindStepStatement(const StepFile& file, StepFile::Place place) {
  const std::string_view text = file.GetText();
  const std::size_t keyword = file.GetIndex().GetPosition(place);
  const std::size_t begin = FindNumber(text, file.GetIndex().GetId(place), keyword);
  StepCursor arguments = file.GetArguments(place);
  arguments.NextAfter(UINT32_MAX);
  std::size_t end = arguments.GetRest().empty() ? keyword : text.size() - arguments.GetRest().size();
  end = SkipStepSpace(text, std::min(end + 1, text.size()));
  if (begin == keyword || end == text.size() || text[end] != ';') return {keyword, keyword};
  ++end;
  if (end < text.size() && text[end] == '\r') ++end;
  if (end < text.size() && text[end] == '\n') ++end;
  return {begin, end};
}

}  // namespace Host
