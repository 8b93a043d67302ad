#include "BoundedMemory.hpp"
#include "FuzzInput.hpp"
#include "Host/PropertyTable.hpp"

#include <algorithm>
#include <iterator>
#include <map>
#include <utility>

// Tables of properties whose formulas and inputs change. After a line of choices (separators, propagation, kinds), each
// line is an edit: a capital letter and a formula, or a small letter, an element and a number of one digit.

namespace {

using Host::ElementIndex;
using Host::PropertyIndex;
using Host::PropertyKind;
using Host::PropertyTable;

constexpr ElementIndex ElementCount = 2;

struct Name {
  const char16_t* name;
  const char16_t* group;
};
// What a reference may name, some of it in two ways.
constexpr Name Names[] = {{u"A", u""}, {u"B", u""}, {u"C", u"G"}, {u"C", u"H"}, {u"Größe", u""}, {u"x.y]", u"G"}};
constexpr PropertyIndex PropertyCount = std::size(Names);

constexpr TW::Optional<PropertyKind> Kinds[] = {std::nullopt,       PropertyKind::Number,  PropertyKind::Length,
                                                PropertyKind::Text, PropertyKind::Integer, PropertyKind::Logical};

Host::EvaluationSettings ChooseSettings(FuzzInput& input) {
  const QX::EvaluationLocaleSettings locales[] = {{'.', ',', ','}, {',', ';', '.'}, {',', ',', 0xA0}};
  Host::EvaluationSettings settings;
  settings.locale = input.ChooseFrom(locales);
  settings.isUndefinedPropagationEnabled = input.ChooseYes();
  return settings;
}

class Model {
 public:
  explicit Model(FuzzInput& input) : table_(ChooseSettings(input)) {
    for (TW::Optional<PropertyKind>& kind : kinds_) kind = input.ChooseFrom(Kinds);
    Define(table_);
  }

  void Edit(std::string_view line) {
    if (line.empty()) return;
    const char letter = line.front();
    line.remove_prefix(1);
    if (letter >= 'a') {
      SetInput(static_cast<unsigned int>(letter - 'a') % PropertyCount, line);
    } else {
      SetFormula(static_cast<unsigned char>(letter - 'A') % PropertyCount, TW::UniString::FromUtf8(line));
    }
    Recalculate(table_);
    ForEachCell([this](PropertyIndex property, ElementIndex element) { CheckFailure(property, element); });
  }

  void CheckAgainstNewTable() const {
    PropertyTable fresh(table_.GetSettings());
    Define(fresh);
    for (PropertyIndex i = 0; i < PropertyCount; ++i) SetFormulaOf(fresh, i);
    for (const auto& [cell, number] : inputs_) {
      Require(fresh.SetInput(cell.first, cell.second, QX::ExpressionValue::FromNumber(number)), "an input is accepted");
    }
    Recalculate(fresh);
    ForEachCell([&](PropertyIndex property, ElementIndex element) { Compare(fresh, property, element); });
  }

 private:
  void Define(PropertyTable& table) const {
    for (PropertyIndex i = 0; i < PropertyCount; ++i) {
      TW::Guid::Bytes id{1};
      id[15] = static_cast<std::uint8_t>(i);
      Require(!!table.Define({TW::Guid(id), Names[i].name, Names[i].group, kinds_[i], {}}), "a property is defined");
    }
    table.AddElements(ElementCount);
  }

  static void Recalculate(PropertyTable& table) {
    const BoundedMemory shortage;
    table.Recalculate();
    Require(table.Recalculate() == 0, "nothing is left to compute");
  }

  template <class Visit>
  static void ForEachCell(const Visit& visit) {
    for (PropertyIndex property = 0; property < PropertyCount; ++property) {
      for (ElementIndex element = 0; element < ElementCount; ++element) visit(property, element);
    }
  }

  void ForgetInputs(PropertyIndex property) {
    std::erase_if(inputs_, [property](const auto& input) { return input.first.first == property; });
  }

  void SetInput(PropertyIndex property, std::string_view line) {
    const ElementIndex element = line.empty() ? 0U : static_cast<unsigned char>(line.front()) % ElementCount;
    const double number = line.size() < 2 ? 0 : line[1] - '0';
    if (!table_.SetInput(property, element, QX::ExpressionValue::FromNumber(number))) return;
    inputs_[{property, element}] = number;
  }

  void SetFormula(PropertyIndex property, const TW::UniString& text) {
    if (text.IsEmpty()) {
      if (table_.RemoveFormula(property)) ForgetInputs(property);
      return;
    }
    const auto error = table_.SetFormula(property, text, table_.GetSettings().locale);
    if (!error) return ForgetInputs(property);
    Require(error->range.begin <= error->range.end, "an error ends after it begins");
    Require(error->range.end <= text.GetLength(), "an error lies within the text");
    Require(!error->message.IsEmpty(), "an error has a message");
  }

  // Gives another table the formula of this one, as it is written with names.
  void SetFormulaOf(PropertyTable& other, PropertyIndex property) const {
    const TW::UniString text = table_.GetFormulaText(property, table_.GetSettings().locale);
    if (!table_.HasFormula(property)) return;
    Require(!other.SetFormula(property, text, other.GetSettings().locale), "a formula with names can be read");
    Require(other.GetFormulaText(property, other.GetSettings().locale) == text, "a formula is written as before");
  }

  void CheckFailure(PropertyIndex property, ElementIndex element) const {
    const auto report = table_.GetFailureReport(property, element, table_.GetSettings().locale);
    Require(report.has_value() == (table_.GetStatus(property, element) == Host::CellStatus::Failed),
            "a cell that failed has a report");
    if (!report) return;
    const unsigned int length = report->formula.GetLength();
    Require(report->span.begin <= report->range.begin && report->range.begin <= report->range.end,
            "the node at fault begins within what belongs to it");
    Require(report->range.end <= report->span.end && report->span.end <= length, "a failure lies within the formula");
    Require(!report->name.IsEmpty() && !report->message.IsEmpty(), "a failure has a name and a message");
  }

  void Compare(const PropertyTable& fresh, PropertyIndex property, ElementIndex element) const {
    Require(fresh.GetStatus(property, element) == table_.GetStatus(property, element), "a new table gives the status");
    Require(
        QX::ExpressionValue::AreEqualByContent(fresh.GetValue(property, element), table_.GetValue(property, element)),
        "a new table gives the value");
    const Host::Failure* failure = table_.FindFailure(property, element);
    const Host::Failure* other = fresh.FindFailure(property, element);
    Require((failure == nullptr) == (other == nullptr), "a new table fails as well");
    if (failure == nullptr) return;
    Require(failure->kind == other->kind && failure->resourceIndex == other->resourceIndex,
            "a new table fails for the same reason");
  }

  TW::Optional<PropertyKind> kinds_[PropertyCount];
  PropertyTable table_;
  std::map<std::pair<PropertyIndex, ElementIndex>, double> inputs_;
};

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzInput input(data, size);
  Model model(input);
  std::string_view edits = input.GetText();
  while (!edits.empty()) {
    const std::size_t end = std::min(edits.find('\n'), edits.size());
    model.Edit(edits.substr(0, end));
    edits.remove_prefix(std::min(end + 1, edits.size()));
  }
  model.CheckAgainstNewTable();
  return 0;
}
