#pragma once

#include "Host/Texts/HostText.hpp"

namespace Host {

/// What is told of the files that people write, rules and tables, by its index in the list of texts.
enum class FileText : int {
  Unreadable = 1,
  TooLarge,  ///< %T: megabytes
  NotUtf8,
  JsonEmpty,  ///< in the order of `JsonFault`
  JsonMore,
  JsonValue,
  JsonName,
  JsonColon,
  JsonObject,
  JsonArray,
  JsonEscape,
  JsonText,
  JsonNumber,
  UnknownKey,          ///< %T: the key, %T: the keys that there are
  MisspelledKey,       ///< %T: the key, %T: the one like it, %T: the keys that there are
  DuplicateKey,        ///< %T: the key
  SeparatorsExpected,  ///< %T: the key, as in the following
  CharacterExpected,
  UnitsExpected,
  UnitExpected,
  UnitNameExpected,
  UnknownUnit,          ///< %T: the key, %T: the units that there are
  WholeNumberExpected,  ///< %T: the key, %T: the least, %T: the greatest
  TwoNumbersExpected,
  SwitchExpected,
  TextExpected,
  TextsExpected,
  TextOrTextsExpected,
  EqualSeparators,
  RulesExpected,
  NoProperties,
  PropertiesExpected,
  PropertyExpected,
  NoName,
  DuplicateName,  ///< %T: the name
  DuplicateId,    ///< %T: the name of the other
  InvalidId,
  NoKind,
  UnknownKind,  ///< %T: the kinds that there are
  NoOrigin,
  SeveralOrigins,
  UnknownAttribute,  ///< %T: the word, %T: those that there are
  WrongConstant,     ///< %T: the kind
  NotUtf16,
  NulByte,
  NoHeader,
  BadHeader,
  NamelessColumn,
  DuplicateColumn,  ///< %T: the name
  TooFewCells,      ///< %T: the cells, %T: the columns
  TooManyCells,     ///< %T: the columns
  TextAfterQuote,
  OpenQuote,
};

template <class... Arguments>
TW::UniString MakeText(FileText text, const Arguments&... arguments) {
  return MakeText(TextList::Files, static_cast<int>(text), arguments...);
}

}  // namespace Host
