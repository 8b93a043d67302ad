#pragma once

#include "CommonOptions.hpp"
#include "Host/Host.hpp"
#include "ModelDiagnostics.hpp"
#include "ModelOptions.hpp"
#include "Progress.hpp"
#include "Settings.hpp"
#include "TW/Optional.hpp"

#include <memory>
#include <string>
#include <string_view>

namespace Command {

/// The rules of a run, the elements and the table that they make.
class ModelInput {
 public:
  ModelInput(const ModelOptions& options, const CommonOptions& common, ModelDiagnostics& diagnostics)
      : options_(options), common_(common), diagnostics_(diagnostics) {}
  ModelInput(const ModelInput&) = delete;
  ModelInput& operator=(const ModelInput&) = delete;

  /// Reads everything and computes the table. Tells what is wrong, and gives false when nothing can be made of it.
  bool Read(const std::string& rulesPath, Progress& progress);

  const Host::PropertyTable& GetTable() const { return *table_; }
  const Host::ElementSource& GetSource() const { return *source_; }
  const Host::DisplayText& GetDisplay() const { return *display_; }
  const Settings& GetSettings() const { return settings_; }
  /// The model that the elements come from, or null when they come from a table.
  const Host::IfcModel* GetIfcModel() const { return ifc_.get(); }
  /// Where the value of an input comes from.
  TW::UniString GetOrigin(Host::PropertyIndex property, Host::ElementIndex element) const;

  /// The property that goes by a name or GUID; complains when there is none or several.
  TW::Optional<Host::PropertyIndex> FindProperty(std::string_view name) const;

 private:
  bool ReadRules(const std::string& path);
  bool ReadElements();
  void WarnOfMissingSources() const;
  bool SetProperties();
  bool SetProperty(Host::PropertyIndex property, std::string_view name, const QX::ExpressionValue& value);
  void Compute(Progress& progress);

  const ModelOptions& options_;
  const CommonOptions& common_;
  ModelDiagnostics& diagnostics_;
  TW::Optional<Host::RulesFile> rules_;
  Settings settings_;  ///< those of the rules, changed by the options
  std::unique_ptr<Host::IfcModel> ifc_;
  std::unique_ptr<Host::CsvFile> csv_;
  std::unique_ptr<Host::ElementSource> source_;
  std::unique_ptr<Host::PropertyTable> table_;
  std::unique_ptr<Host::DisplayText> display_;
};

}  // namespace Command
