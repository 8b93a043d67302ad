#pragma once

#include "Quorix/Export.hpp"
#include "TW/Array.hpp"
#include "TW/ClassInfo.hpp"
#include "TW/HashTable.hpp"
#include "TW/UniString.hpp"

#include <functional>

namespace QX {

/// The groups in which functions are shown to people.
enum class FunctionGroup {
  None = 0,
  Logical = 1,
  Arithmetic = 2,
  Trigonometric = 3,
  Statistical = 4,
  Text = 5,
  Conversion = 6,
};

/// The help texts of a function or operator.
enum class HelpType {
  Name = 0,         ///< the name, as it is shown in lists
  Description = 1,  ///< what it does, in a sentence
  Syntax = 2,       ///< how a call is written
  Arguments = 3,    ///< what the arguments mean
  Example = 4,
};

/// What is known of a function.
struct FunctionImplementionData {
  const TW::ClassInfo* classInfo;
  FunctionGroup group;
  short helpResId;  ///< the string list of its help texts
};

/// The functions of the language by keyword. It is filled while the library is loaded and only read after that. Names
/// are found in any case.
class QX_EXPORT FunctionNodeRegistry {
 public:
  /// Adds a function. A keyword that is there already keeps what it stands for, and is listed once more.
  void RegisterFunctionName(const TW::UniString& name, const TW::ClassInfo* classInfo, FunctionGroup group,
                            short helpResId);

  /// Calls `visit` for every keyword in the order of registration.
  void EnumerateRegisteredFunctions(const std::function<void(const TW::UniString&)>& visit) const;
  bool IsExistingFunction(const TW::UniString& name) const;
  /// The class that implements the function, or null.
  const TW::ClassInfo* GetFunctionNodeClassInfo(const TW::UniString& name) const;
  /// Throws `TW::IllegalReferenceException` for a name that is no function.
  const FunctionImplementionData& GetImplementationData(const TW::UniString& name) const;
  FunctionGroup GetFunctionGroup(const TW::UniString& name) const;
  /// The string list of the help texts, or 0.
  short GetFunctionHelpResId(const TW::UniString& name) const;
  /// The keyword in upper case, or the empty text.
  TW::UniString GetFunctionNormalizedName(const TW::UniString& name) const;
  /// A help text in the user's language, with the function's name as it is given here; empty for a name that is no
  /// function. `listSeparator` stands between the arguments of the syntax line.
  TW::UniString GetFunctionHelpString(const TW::UniString& name, HelpType type, unsigned short listSeparator) const;

 private:
  const FunctionImplementionData* Find(const TW::UniString& name) const;

  TW::HashTable<TW::UniString, FunctionImplementionData> functions_;
  TW::Array<TW::UniString> inOrder_;
};

/// The one registry of functions.
QX_EXPORT FunctionNodeRegistry& GetFunctionNodeRegistry();

/// The text in upper case, as names are compared.
QX_EXPORT TW::UniString NormalizeName(const TW::UniString& name);

}  // namespace QX
