#include "Host/Model/ModelTable.hpp"

#include "Host/Model/ClassPattern.hpp"
#include "Host/Model/InputReader.hpp"

#include <string>
#include <unordered_map>
#include <utility>

namespace Host {
namespace {

// Elements are of few classes, so each pattern is looked at once for each class.
class Classes {
 public:
  explicit Classes(const ElementSource& source) {
    std::unordered_map<std::u16string, unsigned int> numbers;
    for (ElementIndex element = 0; element < source.GetCount(); ++element) {
      const TW::UniString name = source.GetAttribute(element, ElementAttribute::Class);
      const auto [found, isNew] = numbers.try_emplace(std::u16string(name.GetView()), names_.size());
      if (isNew) names_.push_back(name);
      ofElements_.push_back(found->second);
    }
  }

  // For each element whether the property applies to it.
  std::vector<bool> FindApplicable(const std::vector<TW::UniString>& patterns) const {
    std::vector<bool> ofClasses;
    ofClasses.reserve(names_.size());
    for (const TW::UniString& name : names_) ofClasses.push_back(MatchesClass(patterns, name.GetView()));
    std::vector<bool> applicable;
    applicable.reserve(ofElements_.size());
    for (const unsigned int number : ofElements_) applicable.push_back(ofClasses[number]);
    return applicable;
  }

 private:
  std::vector<TW::UniString> names_;
  std::vector<unsigned int> ofElements_;
};

void SetApplicable(PropertyTable& table, PropertyIndex property, const std::vector<bool>& applicable) {
  for (ElementIndex element = 0; element < applicable.size(); ++element) {
    if (!applicable[element]) table.SetApplies(property, element, false);
  }
}

void ReadInputs(PropertyTable& table, PropertyIndex property, const PropertyRule& rule, const ElementSource& source) {
  const InputReader reader(rule, source);
  for (ElementIndex element = 0; element < source.GetCount(); ++element) {
    if (table.GetStatus(property, element) == CellStatus::Absent) continue;
    TW::Optional<QX::ExpressionValue> value = rule.constant.IsValid() ? rule.constant : reader.Read(element);
    if (!value) continue;
    if (!table.SetInput(property, element, *std::move(value))) table.SetInputFailed(property, element);
  }
}

}  // namespace

void FillFromSource(PropertyTable& table, const Rules& rules, const ElementSource& source) {
  table.AddElements(source.GetCount());
  const Classes classes(source);
  for (PropertyIndex property = 0; property < rules.properties.size(); ++property) {
    const PropertyRule& rule = rules.properties[property];
    if (!rule.classPatterns.empty()) SetApplicable(table, property, classes.FindApplicable(rule.classPatterns));
    if (!rule.formula) ReadInputs(table, property, rule, source);
  }
}

}  // namespace Host
