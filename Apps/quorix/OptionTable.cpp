#include "OptionTable.hpp"

#include "CommandText.hpp"
#include "Suggestion.hpp"

#include <algorithm>
#include <array>

namespace Command {
namespace {

constexpr std::string_view Prefix = "--";

bool IsLetter(char character) {
  return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}

bool IsOption(std::string_view argument) {
  if (argument == "-h") return true;
  return argument.starts_with(Prefix) && argument.size() > Prefix.size() && IsLetter(argument[Prefix.size()]);
}

std::string AddPrefix(std::string_view name) { return std::string(Prefix).append(name); }

std::string GetUsage(std::string_view name, std::string_view valueNames) {
  std::string usage = "  " + AddPrefix(name);
  if (!valueNames.empty()) usage += " " + std::string(valueNames);
  return usage;
}

}  // namespace

OptionTable::OptionTable() {
  AddFlag("help", "shows this help", [this] { helpAsked_ = true; });
}

void OptionTable::AddFlag(std::string_view name, std::string_view help, std::function<void()> take) {
  options_.push_back({name, {}, help, 0, [take = std::move(take)](const OptionValue&, std::string_view) { take(); }});
}

void OptionTable::AddValue(std::string_view name, std::string_view valueName, std::string_view help,
                           std::function<void(const OptionValue&)> take) {
  options_.push_back({name, valueName, help, 1,
                      [take = std::move(take)](const OptionValue& value, std::string_view) { take(value); }});
}

void OptionTable::AddPair(std::string_view name, std::string_view valueNames, std::string_view help,
                          std::function<void(std::string_view, std::string_view)> take) {
  options_.push_back(
      {name, valueNames, help, 2,
       [take = std::move(take)](const OptionValue& first, std::string_view second) { take(first.text, second); }});
}

const OptionTable::Option& OptionTable::Find(std::string_view name) const {
  const auto found =
      std::find_if(options_.begin(), options_.end(), [name](const Option& option) { return option.name == name; });
  if (found == options_.end()) {
    throw UsageError(MakeText(CommandText::NoOption, AddPrefix(name)) + SuggestOption(name));
  }
  return *found;
}

std::string OptionTable::SuggestOption(std::string_view name) const {
  std::vector<TW::UniString> names;
  names.reserve(options_.size());
  for (const Option& option : options_) names.push_back(TW::UniString::FromUtf8(AddPrefix(option.name)));
  return Suggest(TW::UniString::FromUtf8(AddPrefix(name)), names);
}

std::vector<std::string_view> OptionTable::Take(std::span<const std::string_view> arguments) {
  std::vector<std::string_view> operands;
  while (!arguments.empty()) {
    const std::string_view argument = arguments.front();
    if (IsOption(argument)) {
      arguments = arguments.subspan(TakeOption(arguments));
      continue;
    }
    arguments = arguments.subspan(1);
    if (argument == Prefix) {
      operands.insert(operands.end(), arguments.begin(), arguments.end());
      break;
    }
    operands.push_back(argument);
  }
  return operands;
}

std::size_t OptionTable::TakeOption(std::span<const std::string_view> arguments) const {
  std::string_view name = arguments.front() == "-h" ? "help" : arguments.front().substr(Prefix.size());
  const std::size_t equals = name.find('=');
  const bool hasValue = equals != name.npos;
  const std::string_view joined = hasValue ? name.substr(equals + 1) : std::string_view();
  name = name.substr(0, equals);
  const Option& option = Find(name);
  const std::string shown = AddPrefix(name);
  if (option.valueCount == 0 && hasValue) throw UsageError(MakeText(CommandText::NoValueWanted, shown));
  const std::size_t following = option.valueCount - (hasValue ? 1 : 0);
  if (arguments.size() <= following) {
    throw UsageError(
        MakeText(option.valueCount > 1 ? CommandText::TwoValuesMissing : CommandText::ValueMissing, shown));
  }
  std::array<std::string_view, 2> values{joined};
  std::copy_n(arguments.begin() + 1, following, values.begin() + (hasValue ? 1 : 0));
  option.take({shown, values[0]}, values[1]);
  return following + 1;
}

std::string OptionTable::GetHelp() const {
  std::size_t width = 0;
  for (const Option& option : options_) width = std::max(width, GetUsage(option.name, option.valueNames).size());
  std::string help;
  for (const Option& option : options_) {
    std::string usage = GetUsage(option.name, option.valueNames);
    usage.resize(width + 2, ' ');
    help += usage + std::string(option.help) + "\n";
  }
  return help;
}

}  // namespace Command
