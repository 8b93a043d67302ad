#include "ModelOutput.hpp"

#include "CommandText.hpp"

#include <algorithm>
#include <sys/ioctl.h>
#include <unistd.h>

namespace Command {
namespace {

// More rows than anybody reads on a screen.
constexpr std::size_t MaximumRowsOnTerminal = 200;

Host::TableLimits GetTableLimits() {
  winsize size{};
  if (::isatty(STDOUT_FILENO) == 0 || ::ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) != 0) return {};
  return {size.ws_col, MaximumRowsOnTerminal};
}

template <class Write>
TW::ErrCode WriteWhole(const std::string& path, Write&& write) {
  Host::OutputFile file(path);
  write([&file](std::string_view piece) { file.Write(piece); });
  return file.Finish();
}

}  // namespace

Status ModelOutput::Give(bool json) {
  Host::ReportScope scope{input_.GetTable(), input_.GetSource(), input_.GetDisplay(), {}, {}};
  if (!ChooseProperties(scope) || !ChooseElements(scope)) return Status::Unusable;
  Status status = Explain(scope);
  const bool drawn = WriteGraphs(scope);
  const bool isAllAsked = options_.explanations.empty() && options_.graphs.empty();
  if (isAllAsked || json || options_.IsTableShown() || !options_.outputs.empty()) {
    status = std::max(status, GiveValues(scope, json));
  }
  return drawn ? status : Status::Unusable;
}

Status ModelOutput::GiveValues(const Host::ReportScope& scope, bool json) const {
  const Host::Summary summary = Host::MakeSummary(scope);
  Host::FailureGroups failures(scope);
  if (json) {
    Host::WriteJsonReport(scope, summary, ToResults());
  } else if (options_.IsTableShown()) {
    Host::WriteTable(scope, failures, GetTableLimits(), ToResults());
  }
  const bool written = WriteFiles(scope, summary);
  const Host::ReportSink toDiagnostics = [this](std::string_view piece) { diagnostics_.Write(piece); };
  // What fails is told even when a file cannot be written.
  if (summary.failed != 0) diagnostics_.Write("\n");
  Host::WriteFailureList(scope, failures, toDiagnostics);
  if (!diagnostics_.IsQuiet()) {
    diagnostics_.Write("\n");
    Host::WriteSummary(summary, toDiagnostics);
  }
  if (!written) return Status::Unusable;
  return summary.failed == 0 ? Status::Success : Status::FormulaFailed;
}

bool ModelOutput::ChooseProperties(Host::ReportScope& scope) const {
  if (!options_.only) {
    for (Host::PropertyIndex property = 0; property < scope.table.GetCatalog().GetCount(); ++property) {
      if (scope.table.HasFormula(property)) scope.properties.push_back(property);
    }
    return true;
  }
  for (const std::string& name : *options_.only) {
    const auto property = input_.FindProperty(name);
    if (!property) return false;
    scope.properties.push_back(*property);
  }
  return true;
}

bool ModelOutput::ChooseElements(Host::ReportScope& scope) const {
  if (!options_.where) {
    scope.elements = Host::GetAllElements(scope.table);
    return true;
  }
  const TW::UniString text = TW::UniString::FromUtf8(*options_.where);
  const auto& locale = input_.GetSettings().locale;
  const Host::ReadFormula condition = Host::ReadFormulaWithNames(text.GetView(), locale, scope.table.GetCatalog());
  if (condition.error) {
    diagnostics_.Error(MakeText(CommandText::WrongCondition, condition.error->message));
    std::string excerpt;
    Host::AppendExcerpt(excerpt, "  ", text, {condition.error->range, {condition.error->range}});
    diagnostics_.Write(excerpt);
    return false;
  }
  Host::FilteredElements filtered = Host::FilterElements(scope.table, condition, locale);
  if (filtered.firstFailure) {
    const TW::UniString& message = filtered.firstFailure->message;
    diagnostics_.Warning(filtered.failedCount == 1
                             ? MakeText(CommandText::ConditionFailsOnce, message)
                             : MakeText(CommandText::ConditionFails, filtered.failedCount, message));
  }
  if (filtered.undefinedCount != 0) {
    diagnostics_.Warning(filtered.undefinedCount == 1
                             ? MakeText(CommandText::ConditionUndefinedOnce)
                             : MakeText(CommandText::ConditionUndefined, filtered.undefinedCount));
  }
  scope.elements = std::move(filtered.kept);
  return true;
}

bool ModelOutput::WriteFiles(const Host::ReportScope& scope, const Host::Summary& summary) const {
  bool written = true;
  for (const std::string& path : options_.outputs) written = WriteFile(scope, summary, path) && written;
  return written;
}

bool ModelOutput::WriteFile(const Host::ReportScope& scope, const Host::Summary& summary,
                            const std::string& path) const {
  TW::ErrCode error = TW::NoErr;
  if (HasEnding(path, ".ifc")) {
    error = Host::WriteIfcReport(scope, *input_.GetIfcModel(), path);
  } else if (HasEnding(path, ".json")) {
    error = WriteWhole(path, [&](const Host::ReportSink& sink) { Host::WriteJsonReport(scope, summary, sink); });
  } else {
    error = WriteWhole(path, [&](const Host::ReportSink& sink) { Host::WriteCsvReport(scope, sink); });
  }
  return diagnostics_.CheckWritten(path, error);
}

bool ModelOutput::WriteGraphs(const Host::ReportScope& scope) const {
  bool written = true;
  for (const std::string& path : options_.graphs) {
    const auto write = HasEnding(path, ".svg") ? &Host::WriteSvgGraph : &Host::WriteDotGraph;
    const TW::ErrCode error = WriteWhole(path, [&](const Host::ReportSink& sink) { write(scope, sink); });
    written = diagnostics_.CheckWritten(path, error) && written;
  }
  return written;
}

Status ModelOutput::Explain(const Host::ReportScope& scope) const {
  Status status = Status::Success;
  for (const auto& [element, name] : options_.explanations) {
    const auto property = input_.FindProperty(name);
    status = std::max(status, property ? Explain(scope, element, *property) : Status::Unusable);
  }
  return status;
}

Status ModelOutput::Explain(const Host::ReportScope& scope, std::string_view elementText,
                            Host::PropertyIndex property) const {
  const auto elements = Host::FindElements(scope.source, TW::UniString::FromUtf8(elementText).GetView());
  if (elements.empty()) {
    diagnostics_.Error(MakeText(CommandText::NoElement, elementText));
    return Status::Unusable;
  }
  const auto origin = [this](Host::PropertyIndex input, Host::ElementIndex element) {
    return input_.GetOrigin(input, element);
  };
  Status status = Status::Success;
  for (const Host::ElementIndex element : elements) {
    Host::WriteCellReport(scope, property, element, origin, ToResults());
    if (scope.table.GetStatus(property, element) == Host::CellStatus::Failed) status = Status::FormulaFailed;
  }
  return status;
}

Host::ReportSink ModelOutput::ToResults() const {
  return [this](std::string_view piece) {
    call_.results.GetBuffer() += piece;
    call_.results.FlushWhenLarge();
  };
}

}  // namespace Command
