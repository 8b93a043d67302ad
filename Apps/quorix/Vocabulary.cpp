#include "Vocabulary.hpp"

#include "Host/Texts/EditDistance.hpp"
#include "Quorix/AcceptedUnits.hpp"
#include "Quorix/FunctionNodeRegistry.hpp"
#include "Quorix/IdentitiferNodeRegistry.hpp"
#include "Quorix/OperatorNodeRegistry.hpp"
#include "Quorix/QuorixResources.hpp"

#include <functional>

namespace Command {
namespace {

using QX::FunctionGroup;
using QX::UnitExponents;
using Visit = std::function<void(const TW::UniString&)>;

constexpr int HeadingList = 110;

struct FunctionRow {
  FunctionGroup group;
  std::string_view name;
  int heading;
};

constexpr FunctionRow FunctionRows[] = {
    {FunctionGroup::Logical, "logical", 1},
    {FunctionGroup::Arithmetic, "arithmetic", 2},
    {FunctionGroup::Trigonometric, "trigonometric", 3},
    {FunctionGroup::Statistical, "statistical", 4},
    {FunctionGroup::Text, "text", 5},
    {FunctionGroup::Conversion, "conversion", 6},
};

constexpr int OperatorHeading = 7;
constexpr int ConstantHeading = 8;

struct UnitRow {
  UnitExponents exponents;
  std::string_view name;
  int heading;
};

constexpr UnitRow UnitRows[] = {
    {UnitExponents::CreateLength(), "length", 9},
    {UnitExponents::CreateArea(), "area", 10},
    {UnitExponents::CreateVolume(), "volume", 11},
    {UnitExponents::CreateAngle(), "angle", 12},
};

constexpr int FirstPartHeading = 13;

void EnumerateFunctions(FunctionGroup group, const Visit& visit) {
  const QX::FunctionNodeRegistry& registry = QX::GetFunctionNodeRegistry();
  registry.EnumerateRegisteredFunctions([&](const TW::UniString& name) {
    if (registry.GetFunctionGroup(name) == group) visit(name);
  });
}

void EnumerateUnits(const UnitExponents& exponents, const Visit& visit) {
  QX::EnumerateAcceptedUnits([&](const TW::UniString& marker, const QX::AcceptedUnit& unit) {
    if (unit.exponents == exponents) visit(marker);
  });
}

template <class Enumerate>
WordGroup MakeGroup(WordKind kind, std::string_view name, int heading, Enumerate enumerate) {
  WordGroup group{kind, name, QX::GetResourceString(HeadingList, heading), {}};
  enumerate([&](const TW::UniString& word) { group.words.push_back(word); });
  return group;
}

bool IsUnit(const TW::UniString& word) {
  bool found = false;
  QX::EnumerateAcceptedUnits([&](const TW::UniString& marker, const QX::AcceptedUnit&) { found |= marker == word; });
  return found;
}

}  // namespace

std::vector<WordGroup> GetVocabulary() {
  std::vector<WordGroup> groups;
  for (const FunctionRow& row : FunctionRows) {
    groups.push_back(MakeGroup(WordKind::Function, row.name, row.heading,
                               [&](const Visit& visit) { EnumerateFunctions(row.group, visit); }));
  }
  groups.push_back(MakeGroup(WordKind::Operator, "operators", OperatorHeading,
                             [](const Visit& visit) { QX::GetOperatorNodeRegistry().EnumerateOperators(visit); }));
  groups.push_back(MakeGroup(WordKind::Constant, "constants", ConstantHeading,
                             [](const Visit& visit) { QX::GetIdentitiferNodeRegistry().EnumerateIdentifiers(visit); }));
  for (const UnitRow& row : UnitRows) {
    groups.push_back(MakeGroup(WordKind::Unit, row.name, row.heading,
                               [&](const Visit& visit) { EnumerateUnits(row.exponents, visit); }));
  }
  return groups;
}

TW::Optional<WordKind> FindWordKind(const TW::UniString& word) {
  if (QX::GetFunctionNodeRegistry().IsExistingFunction(word)) return WordKind::Function;
  if (QX::GetOperatorNodeRegistry().IsExistingOperator(word)) return WordKind::Operator;
  if (QX::GetIdentitiferNodeRegistry().IsExistingIdentifier(word)) return WordKind::Constant;
  if (IsUnit(word)) return WordKind::Unit;
  return {};
}

TW::UniString GetWordTitle(WordKind kind, const TW::UniString& word) {
  switch (kind) {
    case WordKind::Function:
      return QX::GetFunctionNodeRegistry().GetFunctionHelpString(word, QX::HelpType::Name, 0);
    case WordKind::Operator:
      return QX::GetOperatorNodeRegistry().GetOperatorUIName(word);
    case WordKind::Constant:
      return QX::GetIdentitiferNodeRegistry().GetIdentifierUIName(word);
    case WordKind::Unit:
      break;
  }
  return word;
}

std::string_view GetKindName(WordKind kind) {
  constexpr std::string_view Names[] = {"function", "operator", "constant", "unit"};
  return Names[static_cast<std::size_t>(kind)];
}

TW::UniString GetHeading(HelpPart part) {
  return QX::GetResourceString(HeadingList, FirstPartHeading + static_cast<int>(part));
}

std::vector<TW::UniString> FindSimilarWords(const TW::UniString& word) {
  const TW::UniString wanted = QX::NormalizeName(word);
  unsigned int fewest = wanted.GetLength() / 3 + 1;
  std::vector<TW::UniString> similar;
  for (const WordGroup& group : GetVocabulary()) {
    // Signs and units are too short to be like anything.
    if (group.kind != WordKind::Function && group.kind != WordKind::Constant) continue;
    for (const TW::UniString& candidate : group.words) {
      const unsigned int distance = Host::GetEditDistance(wanted, candidate, fewest);
      if (distance > fewest) continue;
      if (distance < fewest) similar.clear();
      fewest = distance;
      similar.push_back(candidate);
    }
  }
  return similar;
}

}  // namespace Command
