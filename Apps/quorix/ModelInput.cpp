#include "ModelInput.hpp"

#include "CommandText.hpp"
#include "Suggestion.hpp"

#include <utility>

namespace Command {
namespace {

std::size_t CountFormulas(const Host::PropertyTable& table) {
  std::size_t count = 0;
  for (Host::PropertyIndex property = 0; property < table.GetCatalog().GetCount(); ++property) {
    if (table.HasFormula(property)) ++count;
  }
  return count;
}

}  // namespace

bool ModelInput::Read(const std::string& rulesPath, Progress& progress) {
  progress.Tell(CommandText::Reading);
  if (!ReadRules(rulesPath) || !ReadElements()) return false;
  progress.Tell(CommandText::Reading);
  Host::FillFromSource(*table_, rules_->GetRules(), *source_);
  WarnOfMissingSources();
  if (!SetProperties()) return false;
  Compute(progress);
  return true;
}

bool ModelInput::ReadRules(const std::string& path) {
  rules_ = Host::RulesFile::Read(path);
  const Host::Rules& rules = rules_->GetRules();
  settings_.locale = rules.locale;
  settings_.display = rules.display;
  settings_.propagateUndefined = rules.isUndefinedPropagationEnabled;
  settings_ = common_.GetSettingsOfLocale(settings_);
  display_ = std::make_unique<Host::DisplayText>(settings_.display, settings_.locale);
  table_ = std::make_unique<Host::PropertyTable>(Host::EvaluationSettings{
      Host::MakeUnitConverter(settings_.display.units), settings_.locale, settings_.propagateUndefined});
  Host::FileProblems problems = rules_->GetProblems();
  Host::DefineProperties(*rules_, *table_, problems);
  return diagnostics_.CheckFile(path, problems);
}

bool ModelInput::ReadElements() {
  const std::string& path = options_.ifcPath ? *options_.ifcPath : *options_.csvPath;
  if (options_.ifcPath) {
    ifc_ = std::make_unique<Host::IfcModel>(Host::IfcModel::Read(path));
    source_ = std::make_unique<Host::IfcElements>(*ifc_);
  } else {
    csv_ = std::make_unique<Host::CsvFile>(Host::CsvFile::Read(path));
    source_ = std::make_unique<Host::CsvElements>(*csv_, rules_->GetRules().locale);
  }
  return diagnostics_.CheckFile(path, source_->GetProblems());
}

// A name that was mistyped would otherwise show as undefined values only.
void ModelInput::WarnOfMissingSources() const {
  for (const Host::PropertyRule& rule : rules_->GetRules().properties) {
    if (rule.sources.empty() || Host::InputReader(rule, *source_).HasSources()) continue;
    std::string names;
    for (const TW::UniString& name : rule.sources) names += (names.empty() ? "" : ", ") + name.ToUtf8();
    diagnostics_.Warning(MakeText(CommandText::NoSource, rule.name, names));
  }
}

bool ModelInput::SetProperties() {
  for (const auto& [name, value] : common_.EvaluateProperties(settings_)) {
    const auto property = FindProperty(name);
    if (!property || !SetProperty(*property, name, value)) return false;
  }
  return true;
}

bool ModelInput::SetProperty(Host::PropertyIndex property, std::string_view name, const QX::ExpressionValue& value) {
  if (table_->HasFormula(property)) {
    diagnostics_.Error(MakeText(CommandText::HasFormula, name));
    return false;
  }
  for (Host::ElementIndex element = 0; element < table_->GetElementCount(); ++element) {
    if (table_->GetStatus(property, element) == Host::CellStatus::Absent) continue;
    if (table_->SetInput(property, element, value)) continue;
    diagnostics_.Error(MakeText(CommandText::OfAnotherKind, name));
    return false;
  }
  return true;
}

void ModelInput::Compute(Progress& progress) {
  const std::size_t total = CountFormulas(*table_) * table_->GetElementCount();
  table_->Recalculate(
      [&progress, total](std::size_t computed) { progress.Tell(CommandText::Computing, computed, total); });
  progress.Clear();
}

TW::UniString ModelInput::GetOrigin(Host::PropertyIndex property, Host::ElementIndex element) const {
  const Host::PropertyRule& rule = rules_->GetRules().properties[property];
  if (rule.constant.IsValid()) return u"value";
  const TW::UniString* origin = Host::InputReader(rule, *source_).FindOrigin(element);
  return origin != nullptr ? *origin : TW::UniString();
}

TW::Optional<Host::PropertyIndex> ModelInput::FindProperty(std::string_view name) const {
  const Host::PropertyCatalog& catalog = table_->GetCatalog();
  const TW::UniString text = TW::UniString::FromUtf8(name);
  const auto found = catalog.FindByName(text.GetView());
  if (found.size() == 1) return found.front();
  TW::Guid id;
  if (id.ConvertFromString(text) == TW::NoErr) {
    if (const Host::PropertyIndex* property = catalog.FindById(id)) return *property;
  }
  if (!found.empty()) {
    diagnostics_.Error(MakeText(CommandText::SeveralProperties, name));
  } else {
    std::vector<TW::UniString> names;
    names.reserve(catalog.GetCount());
    for (Host::PropertyIndex i = 0; i < catalog.GetCount(); ++i) names.push_back(catalog.Get(i).name);
    diagnostics_.Error(MakeText(CommandText::NoProperty, name) + Suggest(text, names));
  }
  return std::nullopt;
}

}  // namespace Command
