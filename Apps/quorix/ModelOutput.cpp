#include "ModelOutput.hpp"

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

std::string Quote(std::string_view name) { return "'" + std::string(name) + "'"; }

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
  const Host::Summary summary = Host::MakeSummary(scope);
  Host::FailureGroups failures(scope);
  if (json) {
    Host::WriteJsonReport(scope, summary, ToResults());
  } else if (options_.IsTableShown()) {
    ShowTable(scope, failures);
  }
  // What fails is told even when a file or an explanation cannot be given.
  const bool explained = Explain(scope);
  const bool written = WriteFiles(scope, summary);
  const Host::ReportSink toDiagnostics = [this](std::string_view piece) { diagnostics_.Write(piece); };
  Host::WriteFailureList(scope, failures, toDiagnostics);
  if (!diagnostics_.IsQuiet()) Host::WriteSummary(summary, toDiagnostics);
  if (!explained || !written) return Status::Unusable;
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
    diagnostics_.Error("The condition of --where cannot be used. " + condition.error->message.ToUtf8());
    std::string excerpt;
    Host::AppendExcerpt(excerpt, "  ", text, {condition.error->range, {condition.error->range}});
    diagnostics_.Write(excerpt);
    return false;
  }
  Host::FilteredElements filtered = Host::FilterElements(scope.table, condition, locale);
  if (filtered.firstFailure) {
    diagnostics_.Warning("The condition of --where has no value for " + std::to_string(filtered.failedCount) +
                         " elements, which are left out. " + filtered.firstFailure->message.ToUtf8());
  }
  if (filtered.undefinedCount != 0) {
    diagnostics_.Warning("The condition of --where is undefined for " + std::to_string(filtered.undefinedCount) +
                         " elements, which are left out.");
  }
  scope.elements = std::move(filtered.kept);
  return true;
}

bool ModelOutput::WriteFiles(const Host::ReportScope& scope, const Host::Summary& summary) const {
  bool written = true;
  for (const std::string& path : options_.outputs) written = WriteFile(scope, summary, path) && written;
  for (const std::string& path : options_.graphs) written = WriteGraph(scope, path) && written;
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

bool ModelOutput::WriteGraph(const Host::ReportScope& scope, const std::string& path) const {
  const auto write = HasEnding(path, ".svg") ? &Host::WriteSvgGraph : &Host::WriteDotGraph;
  return diagnostics_.CheckWritten(path, WriteWhole(path, [&](const Host::ReportSink& sink) { write(scope, sink); }));
}

bool ModelOutput::Explain(const Host::ReportScope& scope) const {
  bool explained = true;
  for (const auto& [element, name] : options_.explanations) {
    const auto property = input_.FindProperty(name);
    explained = property && Explain(scope, element, *property) && explained;
  }
  return explained;
}

bool ModelOutput::Explain(const Host::ReportScope& scope, std::string_view elementText,
                          Host::PropertyIndex property) const {
  const auto elements = Host::FindElements(scope.source, TW::UniString::FromUtf8(elementText).GetView());
  if (elements.empty()) {
    diagnostics_.Error("There is no element " + Quote(elementText) + ". Give its GlobalId, name or tag.");
    return false;
  }
  const auto origin = [this](Host::PropertyIndex input, Host::ElementIndex element) {
    return input_.GetOrigin(input, element);
  };
  for (const Host::ElementIndex element : elements) {
    Host::WriteCellReport(scope, property, element, origin, ToResults());
  }
  return true;
}

void ModelOutput::ShowTable(const Host::ReportScope& scope, Host::FailureGroups& failures) const {
  Host::WriteTable(scope, failures, GetTableLimits(), ToResults());
}

Host::ReportSink ModelOutput::ToResults() const {
  return [this](std::string_view piece) {
    call_.results.GetBuffer() += piece;
    call_.results.FlushWhenLarge();
  };
}

}  // namespace Command
