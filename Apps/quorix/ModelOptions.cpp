#include "ModelOptions.hpp"

#include "CommandText.hpp"

#include <algorithm>
#include <filesystem>
#include <initializer_list>
#include <system_error>

namespace Command {
namespace {

char ToLower(char character) {
  return character >= 'A' && character <= 'Z' ? static_cast<char>(character + ('a' - 'A')) : character;
}

std::string TakePath(const OptionValue& path, std::initializer_list<std::string_view> endings) {
  const bool isKnown =
      std::ranges::any_of(endings, [&path](std::string_view ending) { return HasEnding(path.text, ending); });
  if (isKnown) return std::string(path.text);
  throw UsageError(MakeText(CommandText::EndingExpected, path.option, JoinWithOr(endings)));
}

// Names stand between commas; a backslash makes a comma part of a name.
std::vector<std::string> SplitNames(const OptionValue& value) {
  const std::string_view list = value.text;
  std::vector<std::string> names(1);
  for (std::size_t i = 0; i < list.size(); ++i) {
    const bool isEscape = list[i] == '\\' && i + 1 < list.size() && (list[i + 1] == ',' || list[i + 1] == '\\');
    if (list[i] == ',') {
      names.emplace_back();
    } else {
      names.back() += list[isEscape ? ++i : i];
    }
  }
  if (std::ranges::any_of(names, &std::string::empty)) {
    throw UsageError(MakeText(CommandText::NamesExpected, value.option));
  }
  return names;
}

bool IsSameFile(const std::string& a, const std::string& b) {
  std::error_code none;
  return std::filesystem::equivalent(a, b, none);
}

void TakeOnce(TW::Optional<std::string>& taken, const OptionValue& value) {
  if (taken) throw UsageError(MakeText(CommandText::GivenTwice, value.option));
  taken = std::string(value.text);
}

}  // namespace

bool HasEnding(std::string_view path, std::string_view ending) {
  return path.size() >= ending.size() &&
         std::equal(ending.begin(), ending.end(), path.end() - static_cast<std::ptrdiff_t>(ending.size()),
                    [](char expected, char character) { return expected == ToLower(character); });
}

void ModelOptions::AddTo(OptionTable& options) {
  options.AddValue("ifc", "FILE", "a building model (IFC2X3, IFC4, IFC4X3)",
                   [this](const OptionValue& path) { TakeOnce(ifcPath, path); });
  options.AddValue("csv", "FILE", "a table of elements, with a line of names first",
                   [this](const OptionValue& path) { TakeOnce(csvPath, path); });
  options.AddValue("out", "FILE", "writes the values to FILE, by its ending: .json, .csv, .ifc; may be repeated",
                   [this](const OptionValue& path) { outputs.push_back(TakePath(path, {".json", ".csv", ".ifc"})); });
  options.AddValue("graph", "FILE", "draws which property depends on which to FILE: .dot, .svg",
                   [this](const OptionValue& path) { graphs.push_back(TakePath(path, {".dot", ".svg"})); });
  options.AddValue("only", "NAME,...", "properties to tell of (default: all formulas)",
                   [this](const OptionValue& names) { only = SplitNames(names); });
  options.AddValue("where", "FORMULA", "elements to tell of: those for which it is true",
                   [this](const OptionValue& formula) { TakeOnce(where, formula); });
  options.AddPair(
      "explain", "ELEMENT PROPERTY", "how a value came about; the element by GlobalId, name or tag",
      [this](std::string_view element, std::string_view property) { explanations.emplace_back(element, property); });
  options.AddFlag("table", "shows the table, whatever else is asked for", [this] { table = true; });
  options.AddFlag("no-table", "shows no table", [this] { table = false; });
  options.AddFlag("quiet", "shows neither warnings, nor progress, nor the summary", [this] { quiet = true; });
}

void ModelOptions::Check(const std::string& rulesPath) const {
  if (ifcPath.has_value() == csvPath.has_value()) {
    throw UsageError(MakeText(CommandText::ElementsMissing, "model"));
  }
  const auto isIfc = [](const std::string& path) { return HasEnding(path, ".ifc"); };
  if (!ifcPath && std::ranges::any_of(outputs, isIfc)) {
    throw UsageError(MakeText(CommandText::OnlyFromIfc));
  }
  const std::string& elementsPath = ifcPath ? *ifcPath : *csvPath;
  const auto isInput = [&](const std::string& path) {
    return IsSameFile(path, rulesPath) || IsSameFile(path, elementsPath);
  };
  for (const auto* paths : {&outputs, &graphs}) {
    const auto found = std::ranges::find_if(*paths, isInput);
    if (found != paths->end()) throw UsageError(MakeText(CommandText::WouldBeLost, *found));
  }
}

bool ModelOptions::IsTableShown() const {
  return table.value_or(outputs.empty() && graphs.empty() && explanations.empty());
}

}  // namespace Command
