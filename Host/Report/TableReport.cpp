#include "Host/Report/TableReport.hpp"

#include "Host/Report/Labels.hpp"
#include "Host/Report/ReportTexts.hpp"
#include "Host/Report/ScreenTable.hpp"
#include "Host/Report/SinkBuffer.hpp"

#include <algorithm>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Host {
namespace {

constexpr std::u16string_view AbsentSign = u"\u2013";
constexpr std::u16string_view FailureSign = u"#";
constexpr std::string_view Ellipsis = "\u2026";
constexpr std::string_view Rule = "\u2500";
// No text is shown longer, however much room there is.
constexpr std::size_t LongestText = 60;

struct Cell {
  ScreenText text;
  bool atRight;
};

struct PropertyColumn {
  std::size_t place;  // among all columns
  PropertyIndex property;
  ScreenText heading;
  ScreenColumn column;
};

bool IsNumeric(const PropertyDefinition& definition) {
  return definition.kind && *definition.kind != PropertyKind::Text && *definition.kind != PropertyKind::Logical;
}

class Printer {
 public:
  Printer(const ReportScope& scope, FailureGroups& failures, const TableLimits& limits, const ReportSink& sink)
      : scope_(scope),
        failures_(failures),
        elements_(scope.elements),
        room_(limits.columns),
        buffer_(sink),
        undefinedWord_(MakeText(ReportText::Undefined)) {
    if (limits.maximumElements > 0) elements_ = elements_.first(std::min(elements_.size(), limits.maximumElements));
    if (room_ > 0) room_ = std::max(room_, TableLimits::LeastColumns);
    MakeElementColumns();
    MakePropertyColumns();
  }

  void Print() {
    for (const ElementIndex element : elements_) NoteFailures(element);
    for (std::size_t row = 0; row < elements_.size(); ++row) Measure(row);
    std::span<const PropertyColumn> rest = columns_;
    do {
      const std::size_t count = FindBlock(rest);
      PrintBlock(rest.first(count));
      rest = rest.subspan(count);
      if (!rest.empty()) buffer_.GetText() += '\n';
    } while (!rest.empty());
    PrintLegend();
    buffer_.Flush();
  }

 private:
  void MakeElementColumns() {
    name_.maximumColumns = room_ == 0 ? LongestText : std::min(LongestText, room_ / 3);
    class_.maximumColumns = room_ == 0 ? LongestText : std::min(LongestText, room_ / 4);
    nameHeading_ = MakeScreenText(MakeText(ReportText::Element), name_.maximumColumns);
    classHeading_ = MakeScreenText(MakeText(ReportText::Class), class_.maximumColumns);
    name_.Widen(nameHeading_);
    class_.Widen(classHeading_);
  }

  void MakePropertyColumns() {
    const std::size_t taken = name_.maximumColumns + class_.maximumColumns + 2 * ScreenColumn::Gap;
    const std::size_t most = room_ == 0 ? LongestText : std::min(LongestText, room_ - taken);
    const PropertyCatalog& catalog = scope_.table.GetCatalog();
    const std::vector<TW::UniString> labels = MakePropertyLabels(catalog, scope_.properties);
    for (std::size_t i = 0; i < labels.size(); ++i) {
      const PropertyIndex property = scope_.properties[i];
      const ScreenColumn column{most, 0, IsNumeric(catalog.Get(property))};
      columns_.push_back({i, property, MakeScreenText(labels[i], most), column});
      columns_.back().column.Widen(columns_.back().heading);
    }
  }

  // Once for all blocks: beside each other the cells of an element cost least.
  void NoteFailures(ElementIndex element) {
    for (const PropertyColumn& shown : columns_) {
      numbers_.push_back(static_cast<std::uint32_t>(failures_.FindNumber(shown.property, element)));
    }
  }

  void Measure(std::size_t row) {
    name_.Widen(MakeName(elements_[row]));
    class_.Widen(MakeClass(elements_[row]));
    for (PropertyColumn& shown : columns_) {
      const Cell cell = MakeCell(shown, row);
      shown.column.Widen(cell.text);
      // Without a declared kind the values show which side is theirs.
      if (cell.atRight) shown.column.isRight = true;
    }
  }

  ScreenText MakeName(ElementIndex element) const {
    return MakeScreenText(MakeElementLabel(scope_.source, element), name_.maximumColumns);
  }
  ScreenText MakeClass(ElementIndex element) const {
    return MakeScreenText(scope_.source.GetAttribute(element, ElementAttribute::Class), class_.maximumColumns);
  }

  Cell MakeCell(const PropertyColumn& shown, std::size_t row) {
    const ElementIndex element = elements_[row];
    const std::size_t most = shown.column.maximumColumns;
    switch (scope_.table.GetStatus(shown.property, element)) {
      case CellStatus::Defined:
        return MakeValueCell(scope_.table.GetValue(shown.property, element), most);
      case CellStatus::Undefined:
        return {MakeScreenText(undefinedWord_, most), shown.column.isRight};
      case CellStatus::Failed:
        return {MakeScreenText(MakeFailureText(numbers_[row * columns_.size() + shown.place]), most),
                shown.column.isRight};
      default:
        hasAbsent_ = true;
        return {MakeScreenText(AbsentSign, most), shown.column.isRight};
    }
  }

  Cell MakeValueCell(const QX::ExpressionValue& value, std::size_t most) const {
    const TW::UniString text = scope_.display.Make(value);
    ScreenText shown = MakeScreenText(text, most);
    // The beginning of a number would be taken for another number.
    const bool isNumber = value.CanConvertToQuantity();
    if (isNumber && shown.text.ends_with(Ellipsis)) shown = {std::string(Ellipsis), 1};
    return {std::move(shown), isNumber};
  }

  TW::UniString MakeFailureText(std::size_t number) {
    if (firstFailure_ == 0) firstFailure_ = number;
    return TW::UniString(FailureSign) + MakeNumberText(number);
  }

  // How many columns stand beside each other: one at least.
  std::size_t FindBlock(std::span<const PropertyColumn> columns) const {
    std::size_t count = 0;
    std::size_t end = name_.columns + ScreenColumn::Gap + class_.columns;
    while (count < columns.size()) {
      end += ScreenColumn::Gap + columns[count].column.columns;
      if (room_ > 0 && count > 0 && end > room_) break;
      ++count;
    }
    return count;
  }

  void PrintBlock(std::span<const PropertyColumn> columns) {
    std::string& out = buffer_.GetText();
    name_.Append(out, nameHeading_, false);
    class_.Append(out, classHeading_, false);
    for (const PropertyColumn& shown : columns) shown.column.Append(out, shown.heading, shown.column.isRight);
    EndLine(out);
    PrintRule(columns);
    for (std::size_t row = 0; row < elements_.size(); ++row) PrintRow(row, columns);
  }

  void PrintRule(std::span<const PropertyColumn> columns) {
    std::size_t length = name_.columns + ScreenColumn::Gap + class_.columns;
    for (const PropertyColumn& shown : columns) length += ScreenColumn::Gap + shown.column.columns;
    for (std::size_t i = 0; i < length; ++i) buffer_.GetText() += Rule;
    buffer_.GetText() += '\n';
  }

  void PrintRow(std::size_t row, std::span<const PropertyColumn> columns) {
    std::string line;
    name_.Append(line, MakeName(elements_[row]), false);
    class_.Append(line, MakeClass(elements_[row]), false);
    for (const PropertyColumn& shown : columns) {
      const Cell cell = MakeCell(shown, row);
      shown.column.Append(line, cell.text, cell.atRight);
    }
    EndLine(line);
    buffer_.GetText() += line;
    buffer_.FlushIfFull();
  }

  void PrintLegend() {
    const bool hasMore = elements_.size() < scope_.elements.size();
    if (hasMore || hasAbsent_ || firstFailure_ != 0) buffer_.GetText() += '\n';
    if (const std::size_t rest = scope_.elements.size() - elements_.size(); rest > 0) {
      PrintLine(MakeCountText(ReportText::OneMoreElement, ReportText::MoreElements, rest));
    }
    if (hasAbsent_) PrintLine(MakeText(ReportText::AbsentLegend, TW::UniString(AbsentSign)));
    if (firstFailure_ == 0) return;
    PrintLine(MakeText(ReportText::FailureLegend, TW::UniString(FailureSign) + MakeNumberText(firstFailure_)));
  }

  void PrintLine(const TW::UniString& text) { buffer_.GetText() += text.ToUtf8() + "\n"; }

  const ReportScope& scope_;
  FailureGroups& failures_;
  std::span<const ElementIndex> elements_;
  std::size_t room_;
  SinkBuffer buffer_;
  TW::UniString undefinedWord_;
  ScreenColumn name_;
  ScreenColumn class_;
  ScreenText nameHeading_;
  ScreenText classHeading_;
  std::vector<PropertyColumn> columns_;
  std::vector<std::uint32_t> numbers_;  // of the reasons, row after row; 0 for what has not failed
  bool hasAbsent_ = false;
  std::size_t firstFailure_ = 0;
};

}  // namespace

void WriteTable(const ReportScope& scope, FailureGroups& failures, const TableLimits& limits, const ReportSink& sink) {
  Printer(scope, failures, limits, sink).Print();
}

}  // namespace Host
