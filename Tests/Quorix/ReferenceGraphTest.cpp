#include "Quorix/ExpressionReferenceFormatUtils.hpp"
#include "Quorix/Formulas.hpp"
#include "Quorix/PropertyDirectReferenceCollector.hpp"
#include "Quorix/ReferenceGraph.hpp"
#include "Quorix/SmallStack.hpp"

#include <map>
#include <sstream>

namespace {

using Guids = TW::HashSet<TW::Guid>;

// Properties of graphs are named by capital letters.
TW::Guid GuidOf(char letter) { return TW::Guid(TW::Guid::Bytes{static_cast<std::uint8_t>(letter)}); }

char LetterOf(const TW::Guid& guid) { return static_cast<char>(guid.GetBytes()[0]); }

Guids GuidsOf(const std::string& letters) {
  Guids guids;
  for (const char letter : letters) guids.Add(GuidOf(letter));
  return guids;
}

// A graph written as `A>BC D>A`: A refers to B and to C, D to A. It remembers who was asked for.
class TextGraph final : public QX::IExpressionReferenceResolver {
 public:
  explicit TextGraph(const std::string& text) {
    std::istringstream words(text);
    for (std::string word; words >> word;) edges_[word.at(0)] = word.substr(2);
  }

  TW::HashSet<TW::Guid> GetDirectReferences(const TW::Guid& propertyId) const override {
    asked_ += LetterOf(propertyId);
    const auto edges = edges_.find(LetterOf(propertyId));
    return edges != edges_.end() ? GuidsOf(edges->second) : Guids();
  }
  const std::string& GetAsked() const { return asked_; }

 private:
  std::map<char, std::string> edges_;
  mutable std::string asked_;
};

std::string TextOf(const TW::Array<TW::Guid>& path) {
  std::string text;
  for (const TW::Guid& guid : path) text += LetterOf(guid);
  return text;
}

TEST(ReferenceGraph, FindsTheFirstCycleDepthFirst) {
  struct Row {
    const char* graph;
    const char* starts;
    const char* path;   // empty when there is no cycle
    const char* asked;  // each once, in order
  };
  const Row rows[] = {
      {"", "", "", ""},
      {"A>A", "", "", ""},
      {"", "A", "", "A"},
      {"A>A", "A", "AA", "A"},
      {"A>B B>C C>A", "A", "ABCA", "ABC"},
      {"A>B B>C C>A", "B", "BCAB", "BCA"},
      // A start outside the cycle stays in front.
      {"S>A A>B B>A", "S", "SABA", "SAB"},
      {"S>T T>A A>A", "S", "STAA", "STA"},
      // Diamonds hold no cycle, and nobody is asked twice.
      {"A>BC B>D C>D", "A", "", "ABDC"},
      {"A>BCD B>CD C>D D>E", "A", "", "ABCDE"},
      {"A>BC B>D C>DA", "A", "ACA", "ABDC"},
      // The order of the references decides which cycle is first.
      {"A>BC B>A C>A", "A", "ABA", "AB"},
      {"A>CB B>A C>A", "A", "ACA", "AC"},
      {"A>BC B>D C>A D>B", "A", "ABDB", "ABD"},
      {"A>BC C>C", "A", "ACC", "ABC"},
      // Several starts: what is finished is not searched again.
      {"A>B B>C D>B", "AD", "", "ABCD"},
      {"A>B B>C", "ABC", "", "ABC"},
      {"A>B C>D D>C", "AC", "CDC", "ABCD"},
      {"A>B C>D D>C", "CA", "CDC", "CD"},
      {"A>B B>C D>BE E>D", "AD", "DED", "ABCDE"},
      {"A>B B>A", "BA", "BAB", "BA"},
  };
  for (const Row& row : rows) {
    const TextGraph graph(row.graph);
    const std::string label = std::string(row.graph) + " from " + row.starts;
    TW::Array<TW::Guid> path;
    EXPECT_EQ(FindCycleInReferenceGraph(graph, GuidsOf(row.starts), &path), *row.path != '\0') << label;
    EXPECT_EQ(TextOf(path), row.path) << label;
    EXPECT_EQ(graph.GetAsked(), row.asked) << label;
    EXPECT_EQ(FindCycleInReferenceGraph(TextGraph(row.graph), GuidsOf(row.starts), nullptr), *row.path != '\0')
        << label;
  }
}

TEST(ReferenceGraph, TurnsRoundWhatThePathHeldBefore) {
  TW::Array<TW::Guid> path{GuidOf('X'), GuidOf('Y')};
  EXPECT_FALSE(FindCycleInReferenceGraph(TextGraph("A>B"), GuidsOf("A"), &path));
  EXPECT_EQ(TextOf(path), "XY");
  EXPECT_TRUE(FindCycleInReferenceGraph(TextGraph("A>B B>A"), GuidsOf("A"), &path));
  EXPECT_EQ(TextOf(path), "ABAYX");
}

// Properties 0, 1, 2 and so on; each refers to the next, the last to the first or to none.
class LongChain final : public QX::IExpressionReferenceResolver {
 public:
  LongChain(std::uint32_t count, bool closed) : count_(count), closed_(closed) {}

  static TW::Guid GuidOfNumber(std::uint32_t number) {
    TW::Guid::Bytes bytes{};
    for (unsigned int i = 0; i < 4; ++i) bytes[i] = static_cast<std::uint8_t>(number >> (8 * i));
    return TW::Guid(bytes);
  }
  TW::HashSet<TW::Guid> GetDirectReferences(const TW::Guid& propertyId) const override {
    std::uint32_t number = 0;
    for (unsigned int i = 4; i-- > 0;) number = number << 8 | propertyId.GetBytes()[i];
    Guids next;
    if (number + 1 < count_) {
      next.Add(GuidOfNumber(number + 1));
    } else if (closed_) {
      next.Add(GuidOfNumber(0));
    }
    return next;
  }

 private:
  std::uint32_t count_;
  bool closed_;
};

TEST(ReferenceGraph, NeedsNoStackForAMillionProperties) {
  RunOnSmallStack([] {
    constexpr std::uint32_t Count = 1'000'000;
    Guids start;
    start.Add(LongChain::GuidOfNumber(0));
    TW::Array<TW::Guid> path;
    EXPECT_FALSE(FindCycleInReferenceGraph(LongChain(Count, false), start, &path));
    EXPECT_TRUE(path.empty());
    EXPECT_TRUE(FindCycleInReferenceGraph(LongChain(Count, true), start, &path));
    ASSERT_EQ(path.size(), Count + 1);
    EXPECT_EQ(path.front(), LongChain::GuidOfNumber(0));
    EXPECT_EQ(path[Count - 1], LongChain::GuidOfNumber(Count - 1));
    EXPECT_EQ(path.back(), LongChain::GuidOfNumber(0));
  });
}

// A formula with one reference after the other.
QX::Expression FormulaOver(const std::string& letters) {
  TW::UniString text(u"1");
  for (const char letter : letters) {
    text += u" + ( 2 * ";
    text += QX::MakeExpressionPropertyReferenceString(GuidOf(letter));
    text += u" )";
  }
  return ParseFormula(text);
}

TEST(ReferenceGraph, StartsAtTheReferencesOfAFormula) {
  TW::Array<TW::Guid> path;
  const TextGraph unasked("A>A");
  EXPECT_FALSE(FormulaOver("").ContainsCycle(unasked, &path));
  EXPECT_FALSE(QX::Expression().ContainsCycle(unasked, &path));
  EXPECT_EQ(unasked.GetAsked(), "");
  EXPECT_FALSE(FormulaOver("AB").ContainsCycle(TextGraph("A>C B>C"), &path));
  EXPECT_TRUE(path.empty());
  EXPECT_TRUE(FormulaOver("BA").ContainsCycle(TextGraph("A>A B>C C>B"), &path));
  EXPECT_EQ(TextOf(path), "BCB");
  EXPECT_TRUE(FormulaOver("BA").ContainsCycle(TextGraph("A>A"), nullptr));
}

TEST(PropertyDirectReferenceCollector, KeepsEachReferenceOnceInOrder) {
  QX::PropertyDirectReferenceCollector own;
  FormulaOver("CABAC").CollectReferencedProperties(own);
  EXPECT_EQ(own.GetReferencedProperties(), GuidsOf("CAB"));
  Guids shared = GuidsOf("B");
  QX::PropertyDirectReferenceCollector first(&shared);
  FormulaOver("CB").CollectReferencedProperties(first);
  QX::PropertyDirectReferenceCollector second(&shared);
  FormulaOver("A").CollectReferencedProperties(second);
  EXPECT_EQ(shared, GuidsOf("BCA"));
}

TEST(EvaluableStatus, IsTheHostsFirstObjection) {
  using QX::EvaluableStatus;
  struct Row {
    const char* references;
    EvaluableStatus statuses[3];  // of A, B and C
    EvaluableStatus answer;
    const char* asked;
  };
  constexpr EvaluableStatus No = EvaluableStatus::NotEvaluable;
  constexpr EvaluableStatus NotYet = EvaluableStatus::NotYetEvaluable;
  constexpr EvaluableStatus Yes = EvaluableStatus::Evaluable;
  const Row rows[] = {
      {"", {No, No, No}, Yes, ""},          {"ABC", {Yes, Yes, Yes}, Yes, "ABC"},
      {"ABC", {Yes, No, NotYet}, No, "AB"}, {"ACB", {Yes, No, NotYet}, NotYet, "AC"},
      {"CABC", {Yes, Yes, No}, No, "C"},    {"AABAC", {Yes, Yes, NotYet}, NotYet, "ABC"},
  };
  for (const Row& row : rows) {
    TestHost host;
    for (int i = 0; i < 3; ++i) host.SetStatus(GuidOf(static_cast<char>('A' + i)), row.statuses[i]);
    EXPECT_EQ(FormulaOver(row.references).GetEvaluableStatus(host), row.answer) << row.references;
    std::string asked;
    for (const TW::Guid& guid : host.GetStatusQuestions()) asked += LetterOf(guid);
    EXPECT_EQ(asked, row.asked);
    EXPECT_TRUE(host.GetValueQuestions().empty());
  }
  EXPECT_EQ(QX::Expression().GetEvaluableStatus(TestHost()), Yes);
}

}  // namespace
