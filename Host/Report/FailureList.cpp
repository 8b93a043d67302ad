#include "Host/Report/FailureList.hpp"

#include "Host/Report/FailureExcerpt.hpp"
#include "Host/Report/Labels.hpp"
#include "Host/Report/ReportTexts.hpp"
#include "Host/Report/SinkBuffer.hpp"
#include "Host/Screen/ScreenText.hpp"

#include <algorithm>
#include <string>

namespace Host {
namespace {

constexpr std::string_view Indentation = "    ";
constexpr std::size_t MaximumConsequences = 8;
constexpr std::size_t LongestLine = 1000;
constexpr std::u16string_view Separator = u", ";
constexpr std::u16string_view Ellipsis = u"\u2026";

class Printer {
 public:
  Printer(const ReportScope& scope, const ReportSink& sink) : scope_(scope), buffer_(sink) {}

  void Print(const std::vector<FailureGroup>& groups) {
    if (groups.empty()) return;
    PrintLine("", MakeText(ReportText::Errors));
    for (std::size_t i = 0; i < groups.size(); ++i) {
      PrintGroup(i + 1, groups[i]);
      buffer_.FlushIfFull();
    }
    buffer_.Flush();
  }

 private:
  void PrintGroup(std::size_t number, const FailureGroup& group) {
    const PropertyIndex property = group.key.property;
    const FailureReport report =
        *scope_.table.GetFailureReport(property, group.lastElement, scope_.display.GetLocale());
    TW::UniString line = u"#" + MakeNumberText(number) + u" ";
    line += GetName(property) + u": " + report.message;
    if (const TW::UniString missing = ExplainMissing(group); !missing.IsEmpty()) line += u" " + missing;
    PrintLine("", line);
    AppendFailureExcerpt(buffer_.GetText(), Indentation, scope_, property, group.key.failure, report);
    PrintElements(group);
    PrintConsequences(group);
  }

  // What the message cannot know: which value is missing, and why.
  TW::UniString ExplainMissing(const FailureGroup& group) const {
    if (!group.missing) return {};
    const bool isAbsent = group.key.cause == CellStatus::Absent;
    return MakeText(isAbsent ? ReportText::DoesNotApply : ReportText::HasNoValue, GetName(*group.missing));
  }

  void PrintElements(const FailureGroup& group) {
    TW::UniString names;
    for (const ElementIndex element : group.examples) Add(names, MakeElementLabel(scope_.source, element));
    if (group.elementCount > group.examples.size()) Add(names, TW::UniString(Ellipsis));
    const TW::UniString count = MakeCountText(ReportText::OneElement, ReportText::Elements, group.elementCount);
    PrintLine(Indentation, MakeText(ReportText::Examples, count, names));
  }

  void PrintConsequences(const FailureGroup& group) {
    if (group.consequences.empty()) return;
    TW::UniString names;
    const std::size_t shown = std::min(group.consequences.size(), MaximumConsequences);
    for (std::size_t i = 0; i < shown; ++i) Add(names, GetName(group.consequences[i]));
    if (shown < group.consequences.size()) Add(names, TW::UniString(Ellipsis));
    PrintLine(Indentation, MakeText(ReportText::Consequences, names));
  }

  static void Add(TW::UniString& list, const TW::UniString& name) {
    if (!list.IsEmpty()) list += Separator;
    list += name;
  }

  const TW::UniString& GetName(PropertyIndex property) const { return scope_.table.GetCatalog().Get(property).name; }

  void PrintLine(std::string_view indentation, const TW::UniString& text) {
    buffer_.GetText().append(indentation).append(MakeScreenText(text, LongestLine).text).append("\n");
  }

  const ReportScope& scope_;
  SinkBuffer buffer_;
};

}  // namespace

void WriteFailureList(const ReportScope& scope, const FailureGroups& failures, const ReportSink& sink) {
  Printer(scope, sink).Print(failures.GetList());
}

}  // namespace Host
