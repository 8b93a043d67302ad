#pragma once

#include "Quorix/QuorixResources.hpp"
#include "TW/UniString.hpp"

#include <concepts>
#include <string>
#include <string_view>

namespace Command {

/// What the command says to people, by its index in the list of texts.
enum class CommandText : int {
  Error = 1,     ///< %T: the sentence
  Warning,       ///< %T: the sentence
  MoreProblems,  ///< %T: how many
  HowCalled,
  ResultsNotWritten,  ///< %T: why
  InputNotRead,       ///< %T: why
  Or,                 ///< between words
  WhichCommand,
  NoCommand,  ///< %T: its name, as in the following
  NoFormulaWanted,
  FormulaMissing,
  OneFormulaWanted,
  OneFunctionWanted,
  OneFileWanted,
  ElementsMissing,
  PropertiesInRequests,
  NoOption,  ///< %T: its name, as in the following
  NoValueWanted,
  ValueMissing,
  TwoValuesMissing,
  LanguageExpected,
  CharacterExpected,
  NumberExpected,  ///< %T: the greatest number
  UnitExpected,    ///< %T: the units that there are
  AssignmentExpected,
  EndingExpected,  ///< %T: the endings that there are
  NamesExpected,
  GivenTwice,
  WrongValue,         ///< %T: the value, %T: of which property
  WrongValueBecause,  ///< %T: the value, %T: of which property, %T: why
  OnlyFromIfc,
  NotWritten,  ///< %T: the file, %T: one of the next five
  DiskFull,
  NoFolder,
  NotAllowed,
  NoNumbersLeft,
  Refused,
  NoSource,    ///< %T: the property, %T: the sources
  HasFormula,  ///< %T: the property, as in the following
  OfAnotherKind,
  NoProperty,
  SeveralProperties,
  NoElement,           ///< %T: what was given
  WrongCondition,      ///< %T: why
  ConditionFailsOnce,  ///< %T: why
  ConditionFails,      ///< %T: the number of elements, %T: why
  ConditionUndefinedOnce,
  ConditionUndefined,  ///< %T: the number of elements
  Reading,
  Computing,
  NoResult,
  NoWord,        ///< %T: the word
  SimilarWords,  ///< %T: words like it
  Greeting,
  NoLineCommand,  ///< %T: its name
  SetForm,
  UnitsForm,
  LocaleForm,
  Cycle,  ///< %T: the properties on the way
  LineTooLong,
  NoValue,
  LongerThan,  ///< %T: how many bytes
  NoJson,      ///< %T: why
  NoRequest,
  NoFormula,
  TextExpected,  ///< %T: the key, as in the following
  ValuesExpected,
  StatusesExpected,
  NoGuid,
  ExponentsExpected,
  KindMissing,
  UndefinedExpected,
  LogicalExpected,
  TextValueExpected,
  IntegerExpected,
  FiniteNumberExpected,
  UnknownKind,
  WouldBeLost,  ///< %T: the file
};

inline TW::UniString ToTextArgument(const TW::UniString& text) { return text; }
inline TW::UniString ToTextArgument(std::string_view text) { return TW::UniString::FromUtf8(text); }
inline TW::UniString ToTextArgument(std::integral auto number) {
  return TW::UniString::FromInteger(static_cast<long long>(number));
}

/// A text in the user's language, filled with the arguments: texts, in UTF-8 or not, and whole numbers.
template <class... Arguments>
std::string MakeText(CommandText text, const Arguments&... arguments) {
  constexpr int List = 124;
  return TW::UniString::Printf(QX::GetResourceString(List, static_cast<int>(text)), ToTextArgument(arguments)...)
      .ToUtf8();
}

/// Words with "or" between them, in the user's language.
template <class Words>
std::string JoinWithOr(const Words& words) {
  std::string list;
  for (const std::string_view word : words) list.append(list.empty() ? "" : MakeText(CommandText::Or)).append(word);
  return list;
}

}  // namespace Command
