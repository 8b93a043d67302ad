#pragma once

#include "Host/PropertyKind.hpp"
#include "Host/Texts/HostText.hpp"

namespace Host {

/// What is told of the formulas and values of a table, by its index in the list of texts.
enum class TableText : int {
  NoSuchProperty = 1,
  Cycle,          ///< %T: the way around it
  UnknownName,    ///< %T: the name
  AmbiguousName,  ///< %T: the name
  ResultTooLarge,
  WrongResult,  ///< %T: the kind that was declared
  WrongInput,   ///< %T: the kind that was declared
  FirstKind,    ///< the name of the first kind; the others follow
};

template <class... Arguments>
TW::UniString MakeText(TableText text, const Arguments&... arguments) {
  return MakeText(TextList::Table, static_cast<int>(text), arguments...);
}

/// The name of a kind for people.
inline TW::UniString MakeKindText(PropertyKind kind) {
  return MakeText(TextList::Table, static_cast<int>(TableText::FirstKind) + static_cast<int>(kind));
}

}  // namespace Host
