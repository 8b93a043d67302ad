#include "EightThreads.hpp"
#include "Host/Ifc/IfcModel.hpp"
#include "Host/Ifc/IfcText.hpp"
#include "Host/SmallModel.hpp"
#include "Localization/PoDictionary.hpp"
#include "Quorix/Formulas.hpp"
#include "Quorix/PropertyDirectReferenceCollector.hpp"
#include "Resources/Language.hpp"

#include <atomic>
#include <set>

// Threads that use the same objects get what one thread alone gets.

namespace {

using QX::Expression;

constexpr unsigned int Rounds = 40;

constexpr const char* Formulas[] = {
    "1 + 2 * 3 - 4 / 5 ^ 2 + {1}",
    "MROUND ( 12.34 m, 1 m ) + SUM ( 1 m, {2} * 1 m, 2 1/4\" )",
    "IF ( {1} > 1, CONCAT ( \"a \", STRCALCUNIT ( 5 m2 ), \" long text\" ), UPPER ( \"\u00E9t\u00E9\" ) )",
    "SUBSTITUTE ( REPT ( \"abc\", 20 ), \"b\", STR ( {3}, 3 ) )",
    "STRTONUM ( \"12.5\" ) + LEN ( \"\U0001F600 text\" )",
    "{undefined length} + 1 m",
    "1 / ( {1} - 1 )",
    "{failing} + 1",
};

// A host that may be asked by any thread.
class QuietHost final : public QX::IExpressionEvaluationEnv {
 public:
  QX::EvaluableStatus GetPropertyEvaluableStatus(const TW::Guid&) const override {
    return QX::EvaluableStatus::Evaluable;
  }
  QX::ExpressionValue GetPropertyValue(const TW::Guid& id) const override {
    if (id == FormulaWords::GetId("failing")) throw 42;
    for (const char* name : {"1", "2", "3", "undefined length"}) {
      if (id == FormulaWords::GetId(name)) return *FormulaWords::FindValue(name);
    }
    return {};
  }
  const QX::IExpressionUnitConverter& GetUnitConverter() const override { return settings_.converter; }
  const QX::IEvaluationLocaleSettings& GetLocaleSettings() const override { return settings_.locale; }
  bool IsUserUndefinedPropagationEnabled() const override { return false; }

 private:
  Host::EvaluationSettings settings_;
};

std::string ShowValue(const Expression& formula, const QX::IExpressionEvaluationEnv& host) {
  try {
    return testing::PrintToString(formula.Evaluate(host));
  } catch (const QX::ExpressionSemanticException& error) {
    return error.GetName().ToUtf8() + " " + error.ToString().ToUtf8();
  }
}

// Everything that can be done with an expression without changing it.
std::string UseFormula(const Expression& formula, const QX::IExpressionEvaluationEnv& host) {
  const Expression copy = formula;
  std::string text = ShowValue(formula, host) + ShowValue(copy, host) + Render(formula).ToUtf8();
  const StoredBytes bytes = Store(formula);
  text.append(reinterpret_cast<const char*>(bytes.data()), bytes.size());
  QX::PropertyDirectReferenceCollector collector;
  formula.CollectReferencedProperties(collector);
  for (const TW::Guid& id : collector.GetReferencedProperties()) text += id.ToUniString().ToUtf8();
  text += std::to_string(static_cast<int>(formula.GetEvaluableStatus(host)));
  text += formula.IsEqual(copy) && formula.IsValidInVersion(2) ? "equal" : "not equal";
  return text;
}

TEST(SharedUse, OfFormulas) {
  const QuietHost host;
  std::vector<Expression> formulas;
  std::vector<std::string> expected;
  for (const char* text : Formulas) {
    formulas.push_back(ParseFormula(FormulaWords::Replace(text)));
    expected.push_back(UseFormula(formulas.back(), host));
  }
  std::atomic<unsigned int> differences = 0;
  RunOnEightThreads([&](std::size_t thread) {
    for (std::size_t i = 0; i < Rounds * formulas.size(); ++i) {
      const std::size_t which = (i + thread) % formulas.size();
      if (UseFormula(formulas[which], host) != expected[which]) ++differences;
    }
  });
  EXPECT_EQ(differences, 0U);
}

TEST(SharedUse, OfCopiesThatThreadsEnd) {
  // The last owner of a tree ends it, whichever thread that is.
  QX::SyntaxTreeBuilder builder;
  const TW::Ref<QX::ExpressionNode> root =
      EP::BoostGenerateSyntaxTree(u"1 + ( 2 * SUM ( 3, 4 ) )", EP::IOLocaleSettings(), builder);
  const QuietHost host;
  std::atomic<unsigned int> differences = 0;
  RunOnEightThreads([&](std::size_t) {
    for (unsigned int i = 0; i < Rounds; ++i) {
      const Expression shared(root);
      if (shared.Evaluate(host).GetIntOrNumVariantValue() != 15) ++differences;
    }
  });
  EXPECT_EQ(differences, 0U);
  EXPECT_EQ(root->GetReferenceCount(), 1U);
}

TEST(SharedUse, OfMessagesWhileTheLanguageChanges) {
  const std::string before = Resources::GetLanguage();
  const auto message = [] { return QX::ExpressionDivisionByZero(nullptr).ToString().ToUtf8(); };
  std::set<std::string> known;
  constexpr const char* Languages[] = {"en", "de", "fr"};
  for (const char* language : Languages) {
    Resources::SetLanguage(language);
    known.insert(message());
  }
  ASSERT_EQ(known.size(), 3U);
  std::atomic<unsigned int> strange = 0;
  RunOnEightThreads([&](std::size_t thread) {
    for (unsigned int i = 0; i < 50 * Rounds; ++i) {
      if (thread < 3) {
        Resources::SetLanguage(Languages[(thread + i) % 3]);
      } else if (!known.contains(message())) {
        ++strange;
      }
    }
  });
  EXPECT_EQ(strange, 0U);
  Resources::SetLanguage(before);
}

TEST(SharedUse, OfDictionaries) {
  Localization::PoDictionary dictionary;
  ASSERT_EQ(dictionary.ReadPo("msgid \"a text of some length\"\nmsgstr \"ein Text einer L\u00E4nge\"\n"), TW::NoErr);
  ExpectOneAnswer([&] { return dictionary.Translate(u"a text of some length", u"a context").ToUtf8(); });
}

TEST(SharedUse, OfTables) {
  SmallModel model;
  model.table.AddElements(20);
  const Host::PropertyIndex width = model.Define("Sizes/Width", Host::PropertyKind::Number);
  model.DefineFormula("Half", "1 / [Width]");
  model.DefineFormula("Label", "CONCAT(\"a rather long label with \", STR([Half]))");
  model.DefineFormula("Mixed", "IF([Width] > 5, [Width], 1 m)");
  for (Host::ElementIndex element = 0; element < 20; ++element) model.SetNumber(width, element, element);
  model.table.Recalculate();
  ExpectOneAnswer([&] {
    std::string answer;
    for (Host::PropertyIndex property = 0; property < model.table.GetCatalog().GetCount(); ++property) {
      answer += model.GetFormula(property);
      answer += std::to_string(model.table.GetDirectReferences(SmallModel::MakeId(property + 1)).GetSize());
      for (Host::ElementIndex element = 0; element < 20; ++element) {
        answer += testing::PrintToString(model.table.GetValue(property, element));
        const auto report = model.table.GetFailureReport(property, element, model.settings);
        if (report) answer += report->message.ToUtf8();
      }
    }
    return answer;
  });
}

TEST(SharedUse, OfBuildingModels) {
  const Host::IfcModel model(Host::StepFile::FromText(IfcText::Wrap(IfcText::House)));
  ExpectOneAnswer([&] {
    std::string answer;
    for (Host::IfcModel::Element i = 0; i < model.GetElementCount(); ++i) {
      answer += model.GetName(i).ToUtf8() + model.GetStorey(i).ToUtf8() + model.GetTypeName(i).ToUtf8();
      model.ForEachProperty(i, [&](Host::IfcModel::Key key, Host::IfcModel::Place place) {
        answer += model.GetPropertyName(key).ToUtf8() + testing::PrintToString(model.ReadValue(place).value);
        if (model.FindProperty(i, key) != place) answer += "!";
      });
    }
    return answer;
  });
}

}  // namespace
