#include "Host/Report/CellReport.hpp"

#include "Host/ElementEnvironment.hpp"
#include "Host/Explanation.hpp"
#include "Host/FormulaText.hpp"
#include "Host/NodeList.hpp"
#include "Host/Report/CellReason.hpp"
#include "Host/Report/FailureExcerpt.hpp"
#include "Host/Report/Labels.hpp"
#include "Host/Report/ReportTexts.hpp"
#include "Host/Report/ScreenTable.hpp"
#include "Host/Report/SinkBuffer.hpp"
#include "Host/Report/SkippedParts.hpp"
#include "Host/Screen/Excerpt.hpp"
#include "Quorix/ExpressionSemanticExceptions.hpp"

#include <algorithm>
#include <new>
#include <string>
#include <vector>

namespace Host {
namespace {

constexpr std::string_view Indentation = "  ";
constexpr std::u16string_view AbsentSign = u"\u2013";
constexpr std::size_t LongestName = 40;
constexpr std::size_t LongestPart = 50;
constexpr std::size_t LongestValue = 60;
constexpr std::size_t LongestLine = 1000;
constexpr std::size_t MaximumParts = 200;
// Deeper parts are not moved further to the right.
constexpr unsigned int DeepestIndentation = 15;

using Row = std::vector<ScreenText>;

void AppendRows(std::string& out, std::string_view indentation, const std::vector<Row>& rows) {
  std::vector<ScreenColumn> columns(rows.empty() ? 0 : rows.front().size());
  for (const Row& row : rows) {
    for (std::size_t i = 0; i < row.size(); ++i) columns[i].Widen(row[i]);
  }
  for (const Row& row : rows) {
    std::string line(indentation);
    for (std::size_t i = 0; i < row.size(); ++i) columns[i].Append(line, row[i], false);
    EndLine(line);
    out += line;
  }
}

class Printer {
 public:
  Printer(const ReportScope& scope, ElementIndex element, const OriginText& origin, const ReportSink& sink)
      : scope_(scope), element_(element), origin_(origin), buffer_(sink) {}

  void Print(PropertyIndex property) {
    std::vector<PropertyIndex> way = ExplainCell(scope_.table, property, element_);
    PrintHead(property, MakeReason(scope_, way, element_));
    if (way.empty()) way.push_back(property);
    for (const PropertyIndex step : way) {
      const bool isComputed = scope_.table.GetStatus(step, element_) != CellStatus::Absent;
      if (isComputed && scope_.table.HasFormula(step)) PrintFormula(step);
      buffer_.FlushIfFull();
    }
    buffer_.Flush();
  }

 private:
  std::string& Out() { return buffer_.GetText(); }

  void PrintHead(PropertyIndex property, const TW::UniString& reason) {
    TW::UniString element = MakeElementLabel(scope_.source, element_);
    const char16_t* before = u" (";
    for (const ElementAttribute attribute : {ElementAttribute::Class, ElementAttribute::GlobalId}) {
      const TW::UniString text = scope_.source.GetAttribute(element_, attribute);
      if (text.IsEmpty()) continue;
      element += before + text;
      before = u", ";
    }
    if (before[0] == u',') element += u")";
    TW::UniString value = MakeCellText(property);
    if (!scope_.table.HasFormula(property)) value += u"  " + origin_(property, element_);
    std::vector<Row> rows;
    AddLine(rows, ReportText::Element, element);
    AddLine(rows, ReportText::Property, GetName(property));
    AddLine(rows, ReportText::Value, value);
    if (!reason.IsEmpty()) AddLine(rows, ReportText::Reason, reason);
    AppendRows(Out(), "", rows);
  }

  static void AddLine(std::vector<Row>& rows, ReportText heading, const TW::UniString& text) {
    rows.push_back({MakeScreenText(MakeText(heading), LongestName), MakeScreenText(text, LongestLine)});
  }

  const TW::UniString& GetName(PropertyIndex property) const { return scope_.table.GetCatalog().Get(property).name; }

  TW::UniString MakeCellText(PropertyIndex property) const {
    switch (scope_.table.GetStatus(property, element_)) {
      case CellStatus::Defined:
      case CellStatus::Undefined:
        return MakeValueText(scope_.table.GetValue(property, element_));
      case CellStatus::Failed:
        return MakeText(ReportText::Failed);
      default:
        return TW::UniString(AbsentSign);
    }
  }

  TW::UniString MakeValueText(const QX::ExpressionValue& value) const {
    if (!value.IsValid()) return MakeText(ReportText::Failed);
    return value.IsUserUndefined() ? MakeText(ReportText::Undefined) : scope_.display.Make(value);
  }

  void PrintFormula(PropertyIndex property) {
    Out() += "\n" + MakeScreenText(GetName(property), LongestName).text + "\n";
    const auto report = scope_.table.GetFailureReport(property, element_, scope_.display.GetLocale());
    const QX::ExpressionNode& root = *scope_.table.FindFormula(property)->GetRoot();
    const QX::ExpressionString text = RenderWithNames(root, scope_.display.GetLocale(), scope_.table.GetCatalog());
    if (report) {
      const Failure& failure = *scope_.table.FindFailure(property, element_);
      AppendFailureExcerpt(Out(), Indentation, scope_, property, failure, *report);
    } else {
      AppendExcerpt(Out(), Indentation, text.GetFullString(), {});
    }
    PrintParts(root, text);
    PrintReferences(property);
  }

  void PrintParts(const QX::ExpressionNode& root, const QX::ExpressionString& text) {
    const ElementEnvironment environment(scope_.table, element_);
    const std::vector<NodeFacts> nodes = ListNodes(root, text, environment);
    const std::vector<bool> isSkipped = FindSkippedParts(nodes, environment.IsUserUndefinedPropagationEnabled());
    const std::size_t shown = std::min(nodes.size(), MaximumParts);
    std::vector<Row> rows;
    for (std::size_t i = 0; i < shown; ++i) {
      const ScreenText value =
          isSkipped[i] ? MakeScreenText(MakeText(ReportText::NotTaken), LongestValue) : MakePartValue(nodes[i]);
      rows.push_back({MakePartText(nodes[i], text.GetFullString()), value});
    }
    Out() += '\n';
    AppendRows(Out(), Indentation, rows);
    if (shown == nodes.size()) return;
    Out().append(Indentation).append(MakeText(ReportText::MoreParts, MakeNumberText(nodes.size() - shown)).ToUtf8());
    Out() += '\n';
  }

  static ScreenText MakePartText(const NodeFacts& facts, const TW::UniString& formula) {
    const std::size_t indentation = 2 * std::size_t{std::min(facts.depth, DeepestIndentation)};
    ScreenText part = MakeScreenText(formula.Substring(facts.span.begin, facts.span.GetLength()), LongestPart);
    part.text.insert(0, indentation, ' ');
    part.columns += indentation;
    return part;
  }

  // The message stands at the part that failed itself.
  ScreenText MakePartValue(const NodeFacts& facts) const {
    if (facts.failure == nullptr) return MakeScreenText(MakeValueText(facts.value), LongestValue);
    try {
      std::rethrow_exception(facts.failure);
    } catch (const QX::ExpressionSemanticException& exception) {
      if (exception.GetSource() == facts.node) return MakeScreenText(exception.ToString(), LongestLine);
    } catch (const std::bad_alloc&) {
      throw;                           // Texts in tables are bounded: no formula is to blame.
    } catch (const std::exception&) {  // NOLINT(bugprone-empty-catch)
      // What went wrong beyond the formula is told of the whole.
    }
    return MakeScreenText(MakeText(ReportText::Failed), LongestValue);
  }

  void PrintReferences(PropertyIndex property) {
    std::vector<Row> rows;
    for (const PropertyIndex used : scope_.table.GetGraph().GetPrecedents(property)) {
      const bool isComputed = scope_.table.HasFormula(used);
      const TW::UniString origin = isComputed ? MakeText(ReportText::OfFormula) : origin_(used, element_);
      rows.push_back({MakeScreenText(GetName(used), LongestName), MakeScreenText(MakeCellText(used), LongestValue),
                      MakeScreenText(origin, LongestLine)});
    }
    if (rows.empty()) return;
    Out() += '\n';
    AppendRows(Out(), Indentation, rows);
  }

  const ReportScope& scope_;
  ElementIndex element_;
  const OriginText& origin_;
  SinkBuffer buffer_;
};

}  // namespace

void WriteCellReport(const ReportScope& scope, PropertyIndex property, ElementIndex element, const OriginText& origin,
                     const ReportSink& sink) {
  Printer(scope, element, origin, sink).Print(property);
}

}  // namespace Host
