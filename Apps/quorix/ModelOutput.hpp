#pragma once

#include "CommandEntry.hpp"
#include "Host/Host.hpp"
#include "ModelInput.hpp"
#include "ModelOptions.hpp"

#include <string>
#include <string_view>

namespace Command {

/// Gives what a run over a model is asked for. Keeps references.
class ModelOutput {
 public:
  ModelOutput(const ModelInput& input, const ModelOptions& options, ModelDiagnostics& diagnostics, const Call& call)
      : input_(input), options_(options), diagnostics_(diagnostics), call_(call) {}

  /// Chooses elements and properties, and gives everything. `json` asks for JSON in place of the table.
  Status Give(bool json);

 private:
  /// Gives the values, tells why cells have none, and sums up.
  Status GiveValues(const Host::ReportScope& scope, bool json) const;
  bool ChooseProperties(Host::ReportScope& scope) const;
  bool ChooseElements(Host::ReportScope& scope) const;
  bool WriteFiles(const Host::ReportScope& scope, const Host::Summary& summary) const;
  bool WriteFile(const Host::ReportScope& scope, const Host::Summary& summary, const std::string& path) const;
  bool WriteGraphs(const Host::ReportScope& scope) const;
  Status Explain(const Host::ReportScope& scope) const;
  Status Explain(const Host::ReportScope& scope, std::string_view elementText, Host::PropertyIndex property) const;
  Host::ReportSink ToResults() const;

  const ModelInput& input_;
  const ModelOptions& options_;
  ModelDiagnostics& diagnostics_;
  const Call& call_;
};

}  // namespace Command
