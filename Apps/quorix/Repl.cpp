#include "Repl.hpp"

#include "CommandText.hpp"
#include "Quorix/ExpressionReferenceFormatUtils.hpp"
#include "Resources/Language.hpp"
#include "Suggestion.hpp"
#include "UndefinedValue.hpp"
#include "VocabularyPrinter.hpp"

#include <algorithm>
#include <array>

namespace Command {
namespace {

constexpr std::string_view Blanks = " \t";
constexpr char Colon = ':';

std::string_view Trim(std::string_view text) {
  const std::size_t begin = std::min(text.find_first_not_of(Blanks), text.size());
  const std::size_t end = text.find_last_not_of(Blanks);
  return end == text.npos ? std::string_view() : text.substr(begin, end + 1 - begin);
}

// Cuts the first word off a trimmed text.
std::string_view TakeWord(std::string_view& text) {
  const std::size_t end = std::min(text.find_first_of(Blanks), text.size());
  const std::string_view word = text.substr(0, end);
  text = Trim(text.substr(end));
  return word;
}

TW::UniString AddColon(std::string_view name) { return TW::UniString::FromUtf8(Colon + std::string(name)); }

}  // namespace

struct Repl::CommandRow {
  std::string_view name;
  std::string_view operands;
  std::string_view summary;
  void (Repl::*run)(std::string_view);
  bool takesFormula;  ///< whether its operands are completed like a formula
};

const Repl::CommandRow Repl::Commands[] = {
    {"set", "NAME = FORMULA", "gives a property a formula; without operands lists the properties", &Repl::SetProperty,
     true},
    {"units", "KIND UNIT [DECIMALS]", "shows a kind of quantity so, as in :units length mm 1", &Repl::SetUnits, false},
    {"locale", "TAG", "changes the language and the separators, as in :locale de_DE", &Repl::SetLocale, false},
    {"functions", "[NAME]", "lists the functions, operators, constants and units, or explains one",
     &Repl::ShowFunctions, true},
    {"tree", "FORMULA", "shows the tree of a formula, with the value of each node", &Repl::ShowTree, true},
    {"help", "", "shows this help", &Repl::ShowHelp, false},
    {"quit", "", "ends the program", &Repl::Quit, false},
};

Repl::Repl(CommonOptions& common, OptionTable& table, const Call& call)
    : common_(common), table_(table), call_(call), session_(common, call), sheet_(session_.GetEnvironment()) {}

std::vector<TW::UniString> Repl::GetCommandNames() {
  std::vector<TW::UniString> names;
  for (const CommandRow& command : Commands) names.push_back(AddColon(command.name));
  return names;
}

const Repl::CommandRow* Repl::FindCommand(std::string_view name) {
  const auto found = std::ranges::find(Commands, name, &CommandRow::name);
  return found == std::end(Commands) ? nullptr : found;
}

bool Repl::Take(std::string_view line) {
  std::string_view text = Trim(line);
  if (text.empty()) return true;
  try {
    if (text.front() == Colon) {
      const std::string_view name = TakeWord(text).substr(1);
      RunCommand(name, text);
    } else {
      const Session::Formula formula = session_.Evaluate(line);
      NoteOutcome(formula);
      session_.Show(formula, common_.IsJson());
    }
  } catch (const UsageError& error) {
    Refuse(error.what());
  }
  return !ended_;
}

void Repl::Refuse(std::string_view reason) {
  status_ = Status::FormulaFailed;
  call_.results.Flush();
  call_.diagnostics.GetBuffer().append(MakeText(CommandText::Error, reason)).append("\n");
  call_.diagnostics.Flush();
}

void Repl::NoteOutcome(const Session::Formula& formula) {
  if (!formula.HasValue()) status_ = Status::FormulaFailed;
}

void Repl::RunCommand(std::string_view name, std::string_view rest) {
  const CommandRow* command = FindCommand(name);
  if (command == nullptr) {
    throw UsageError(MakeText(CommandText::NoLineCommand, name) + Suggest(AddColon(name), GetCommandNames()));
  }
  (this->*command->run)(rest);
}

void Repl::SetProperty(std::string_view assignment) {
  if (assignment.empty()) return ListProperties();
  const std::size_t equals = assignment.find('=');
  const std::string_view name = Trim(assignment.substr(0, equals));
  if (equals == assignment.npos || name.empty()) throw UsageError(MakeText(CommandText::SetForm));
  const TW::Guid propertyId = session_.GetNames().GetPropertyId(TW::UniString::FromUtf8(name));
  const std::string_view formula = Trim(assignment.substr(equals + 1));
  if (auto undefined = FindUndefinedValue(formula)) return sheet_.SetValue(propertyId, *std::move(undefined));
  SetFormula(propertyId, formula);
}

void Repl::SetFormula(const TW::Guid& propertyId, std::string_view text) {
  const Session::Formula formula = session_.Evaluate(text);
  const QX::Expression& expression = formula.evaluation.expression;
  if (expression.IsValid()) {
    const TW::Array<TW::Guid> cycle = sheet_.SetFormula(propertyId, expression);
    if (!cycle.empty()) throw UsageError(MakeText(CommandText::Cycle, GetPath(cycle)));
  }
  NoteOutcome(formula);
  session_.Show(formula, common_.IsJson());
}

TW::UniString Repl::GetName(const TW::Guid& propertyId) {
  return session_.GetNames().RestoreNames(QX::MakeExpressionPropertyReferenceString(propertyId)).GetText();
}

std::string Repl::GetPath(const TW::Array<TW::Guid>& cycle) {
  std::string path;
  for (const TW::Guid& propertyId : cycle) path += (path.empty() ? "" : " -> ") + GetName(propertyId).ToUtf8();
  return path;
}

void Repl::ListProperties() {
  const Environment& environment = session_.GetEnvironment();
  std::string& out = call_.results.GetBuffer();
  sheet_.Enumerate([&](const TW::Guid& propertyId, const QX::Expression* formula) {
    out += GetName(propertyId).ToUtf8();
    if (formula != nullptr) {
      const TW::UniString text = formula->GetExpressionString(environment.GetSettings().renderLocale).GetFullString();
      out += " = " + session_.GetNames().RestoreNames(text).GetText().ToUtf8();
    }
    const QX::ExpressionValue* value = environment.GetValues().Find(propertyId);
    out += ": " + (value == nullptr ? MakeText(CommandText::NoValue) : environment.GetDisplay().Make(*value).ToUtf8()) +
           "\n";
  });
}

void Repl::SetUnits(std::string_view words) {
  constexpr std::array<std::string_view, 4> Kinds = {"length", "area", "volume", "angle"};
  const std::string_view kind = TakeWord(words);
  const std::string_view unit = TakeWord(words);
  if (std::ranges::find(Kinds, kind) == Kinds.end() || unit.empty()) {
    throw UsageError(MakeText(CommandText::UnitsForm));
  }
  const std::string unitOption = "--" + std::string(kind) + "-unit";
  const std::string decimalsOption = "--" + std::string(kind) + "-decimals";
  std::vector<std::string_view> arguments{unitOption, unit};
  if (!words.empty()) arguments.insert(arguments.end(), {decimalsOption, words});
  ChangeOptions(arguments);
}

void Repl::SetLocale(std::string_view tag) {
  if (tag.empty()) throw UsageError(MakeText(CommandText::LocaleForm));
  ChangeOptions({"--locale", tag});
}

void Repl::ChangeOptions(const std::vector<std::string_view>& arguments) {
  const CommonOptions before = common_;
  const std::string language = Resources::GetLanguage();
  try {
    table_.Take(arguments);
  } catch (const UsageError&) {
    common_ = before;
    Resources::SetLanguage(language);
    throw;
  }
  session_.GetEnvironment().SetSettings(common_.GetUserSettings());
  sheet_.Reevaluate();
}

void Repl::ShowFunctions(std::string_view name) {
  std::string& out = call_.results.GetBuffer();
  if (name.empty()) return AppendVocabulary(out, common_.IsJson());
  AppendWordHelp(out, name, common_.IsJson(), session_.GetEnvironment());
}

void Repl::ShowTree(std::string_view text) {
  const Session::Formula formula = session_.Evaluate(text);
  NoteOutcome(formula);
  session_.ShowTree(formula, common_.IsJson());
}

void Repl::ShowHelp(std::string_view) {
  constexpr std::size_t Width = 32;
  std::string& out = call_.results.GetBuffer();
  out += "A line is a formula, or one of these:\n";
  for (const CommandRow& command : Commands) {
    std::string usage = "  :" + std::string(command.name) + " " + std::string(command.operands);
    usage.resize(Width, ' ');
    out += usage + std::string(command.summary) + "\n";
  }
}

Completion Repl::Complete(const TW::UniString& beforeCursor) {
  const std::string line = beforeCursor.ToUtf8();
  std::string_view rest = line;
  const bool isCommand = line.starts_with(Colon);
  const std::size_t blank = line.find_first_of(Blanks);
  if (isCommand && blank == line.npos) {
    return CompleteWord(beforeCursor, GetCommandNames());
  }
  if (isCommand) {
    const CommandRow* command = FindCommand(rest.substr(1, blank - 1));
    if (command == nullptr || !command->takesFormula) return {};
    rest = rest.substr(blank);
  }
  const EP::IParsingLocaleSettings& settings = session_.GetEnvironment().GetLocaleSettings();
  return CompleteFormula(TW::UniString::FromUtf8(rest), settings, GetPropertyNames());
}

std::vector<TW::UniString> Repl::GetPropertyNames() {
  std::vector<TW::UniString> names;
  sheet_.Enumerate([&](const TW::Guid& propertyId, const QX::Expression*) { names.push_back(GetName(propertyId)); });
  return names;
}

}  // namespace Command
