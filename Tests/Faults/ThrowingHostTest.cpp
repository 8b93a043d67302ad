#include "FailingMemory.hpp"
#include "Host/Ifc/IfcModel.hpp"
#include "Host/Ifc/IfcText.hpp"
#include "Host/SmallModel.hpp"
#include "Quorix/Formulas.hpp"
#include "Shortage.hpp"
#include "ThrowingHost.hpp"

#include <functional>

// What a host throws, from any of its calls, reaches the caller; formulas and tables stay usable and nothing leaks.

namespace {

using QX::Expression;

// Together they make the host speak through each of its calls.
constexpr const char* Formulas[] = {
    "CONCAT ( {1}, \" and \", {2}, STRCALCUNIT ( 12345.6 m ) )",
    "STRCALCUNIT ( 5 m2 )",
    "TEXTJOIN ( {1}, TRUE, STRCALCUNIT ( 5 m3 ), STRCALCUNIT ( 1 R ), STR ( 1234.5, 2 ) )",
    "IF ( 1 < 2, STRTONUM ( \"1 234.5\" ), 2 )",
    "IFS ( {1} = \"x\", 1, AND ( TRUE, NOT ( FALSE ) ), 2 )",
    "LEN ( {1} ) + 3 * LEN ( {2} )",
    "{1}",
};

struct Use {
  std::string name;
  std::function<std::string(Expression& formula, ThrowingHost& host)> use;
};

const Use Uses[] = {
    {"evaluate", [](Expression& formula, ThrowingHost& host) { return ShowValue(formula.Evaluate(host)); }},
    {"ask for the status",
     [](Expression& formula, ThrowingHost& host) {
       return std::to_string(static_cast<int>(formula.GetEvaluableStatus(host)));
     }},
    {"collect",
     [](Expression& formula, ThrowingHost& host) {
       formula.CollectReferencedProperties(host);
       return std::string("collected");
     }},
    {"search for a cycle",
     [](Expression& formula, ThrowingHost& host) {
       TW::Array<TW::Guid> path;
       return std::to_string(formula.ContainsCycle(host, &path)) + std::to_string(path.size());
     }},
    {"map",
     [](Expression& formula, ThrowingHost& host) {
       Expression mapped = formula;
       mapped.RestorePropertyReferences(host);
       return Render(mapped).ToUtf8();
     }},
    {"render",
     [](Expression& formula, ThrowingHost& host) { return Render(formula, host.GetLocaleSettings()).ToUtf8(); }},
    {"render piece by piece",
     [](Expression& formula, ThrowingHost& host) {
       ThrowingStringBuilder builder(host.trap);
       formula.GetRoot()->BuildExpressionString(builder);
       return builder.GetText().ToUtf8();
     }},
    {"visit",
     [](Expression& formula, ThrowingHost& host) {
       std::size_t count = 0;
       formula.GetRoot()->EnumerateRecursive([&](const QX::ExpressionNode*) {
         host.trap.Pass("visitor");
         ++count;
       });
       return std::to_string(count);
     }},
    {"parse",
     [](Expression& formula, ThrowingHost& host) {
       return Render(ParseFormula(Render(formula), host.GetLocaleSettings())).ToUtf8();
     }},
};

// What a formula only learns of a property that has no value.
const std::string NoValue = "threw ExpressionPropertyEvaluationFailed";

// Gives whether the trap sprang.
bool SurvivesThrow(const Use& use, const char* text, std::size_t call, unsigned int kind) {
  Expression formula = ParseFormula(FormulaWords::Replace(text));
  ThrowingHost host;
  const std::string expected = use.use(formula, host);
  host.trap.Set(call, kind);
  const std::string outcome = NameOutcome([&] { return use.use(formula, host); });
  const std::string sprung = host.trap.GetSprung();
  host.trap.Set(Trap::Never, 0);
  if (sprung.empty()) {
    EXPECT_EQ(outcome, expected);
  } else {
    EXPECT_EQ(outcome, sprung == "value" ? NoValue : NameKind(kind)) << sprung;
  }
  EXPECT_EQ(use.use(formula, host), expected) << "after " << sprung;
  return !sprung.empty();
}

TEST(ThrowingHost, MayThrowAnythingAtAnyCall) {
  for (const Use& use : Uses) {
    for (const char* text : Formulas) {
      for (unsigned int kind = 0; kind < ThrownKinds; ++kind) {
        std::size_t call = 0;
        std::ptrdiff_t live = FailingMemory::GetLiveCount();
        while (SurvivesThrow(use, text, call, kind) && !HasFailure()) {
          // The first time may fill caches.
          if (call > 0 || kind > 0) {
            EXPECT_EQ(FailingMemory::GetLiveCount() - live, 0) << "leaked";
          }
          live = FailingMemory::GetLiveCount();
          ++call;
        }
        ASSERT_FALSE(HasFailure()) << use.name << " " << text << ", call " << call << ", kind " << kind;
      }
    }
  }
}

TEST(ThrowingHost, SeparatorsThatThrowLeaveTheTableAsItWas) {
  SmallModel model;
  model.table.AddElements(2);
  const Host::PropertyIndex width = model.Define("Width", Host::PropertyKind::Number);
  const Host::PropertyIndex area = model.DefineFormula("Area", "[Width] + 1");
  model.SetNumber(width, 3);
  model.table.Recalculate();
  for (unsigned int kind = 0; kind < ThrownKinds; ++kind) {
    for (std::size_t call = 1;; ++call) {
      ThrowingHost host;
      const QX::IEvaluationLocaleSettings& separators = host.GetLocaleSettings();
      host.trap.Set(call, kind);
      const std::string outcome = NameOutcome([&] {
        model.table.SetFormula(area, u"SUM([Width], 2.5)", separators);
        return model.table.GetFormulaText(area, separators).ToUtf8();
      });
      if (host.trap.GetSprung().empty()) break;
      EXPECT_EQ(outcome, NameKind(kind));
    }
    EXPECT_EQ(model.GetFormula(area), "SUM ( [Width], 2.5 )");
    ASSERT_FALSE(model.SetFormula(area, "[Width] + 1"));
    EXPECT_EQ(model.table.Recalculate(), 2U);
    EXPECT_EQ(model.GetNumber(area), 4);
  }
}

TEST(ThrowingHost, VisitorsOfBuildingModelsMayThrow) {
  const Host::IfcModel model(Host::StepFile::FromText(IfcText::Wrap(IfcText::House)));
  for (unsigned int kind = 0; kind < ThrownKinds; ++kind) {
    EXPECT_EQ(NameOutcome([&]() -> std::string {
                model.ForEachProperty(0, [&](Host::IfcModel::Key, Host::IfcModel::Place) { ThrowKind(kind); });
                return "nothing";
              }),
              NameKind(kind));
  }
}

}  // namespace
