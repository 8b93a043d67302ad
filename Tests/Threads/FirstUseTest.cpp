#include "EightThreads.hpp"
#include "Host/Ifc/IfcModel.hpp"
#include "Host/Ifc/IfcText.hpp"
#include "Quorix/ExpressionNodeRegistry.hpp"
#include "Quorix/ExpressionNodes/ExpressionIdentifierNode.hpp"
#include "Quorix/ExpressionNodes/ExpressionReferenceNode.hpp"
#include "Quorix/Formulas.hpp"
#include "Quorix/KeywordFinder.hpp"
#include "Resources/Language.hpp"
#include "Resources/ResourceModule.hpp"
#include "TW/ClassManager.hpp"
#include "TW/SystemSymbols.hpp"

// Each of these runs in a process of its own, in which nothing was used before.

namespace {

using QX::Expression;

TEST(FirstUse, OfRegistries) {
  ExpectOneAnswer([] {
    std::string answer;
    for (const char16_t* name : {u"SUM", u"SUBSTITUTE", u"NOSUCHFUNCTION", u"AND"}) {
      answer += QX::GetFunctionNodeRegistry().IsExistingFunction(name) ? "+" : "-";
      answer += QX::GetOperatorNodeRegistry().IsExistingOperator(name) ? "+" : "-";
      answer += QX::ExpressionIdentifierNode::IsValidName(name) ? "+" : "-";
    }
    return answer;
  });
}

TEST(FirstUse, OfClasses) {
  ExpectOneAnswer([] {
    std::string answer;
    for (const TW::ClassInfo* info : {&QX::ExpressionPropertyReferenceNode::classInfo, &Expression::classInfo}) {
      const TW::ClassInfo* found = TW::ClassManager::Find(info->GetGuid());
      answer += found != nullptr ? found->GetName() : "none";
    }
    return answer;
  });
}

TEST(FirstUse, OfKeywords) {
  ExpectOneAnswer([] {
    std::string answer;
    for (const char16_t* text : {u"splitleft ( 1 )", u"true", u"1 + 2", u"nothing"}) {
      const auto found = QX::FindKeywordAroundCharPosition(text, 1);
      answer += found ? found->keyword.ToUtf8() : "none";
    }
    return answer;
  });
}

TEST(FirstUse, OfTextsInSeveralLanguages) {
  ExpectOneAnswer([] {
    std::string answer;
    for (const char* language : {"fr", "de_AT", "root", "xx"}) {
      for (int index = 1; index < 18; ++index) {
        answer += Resources::GetIndString(106, index, Resources::GetProcessModule(), language).ToUtf8();
      }
    }
    return answer;
  });
}

TEST(FirstUse, OfTheLanguageOfTheProcess) {
  ExpectOneAnswer([] { return Resources::GetLanguage() + QX::ExpressionDivisionByZero(nullptr).ToString().ToUtf8(); });
}

TEST(FirstUse, OfSeparators) {
  ExpectOneAnswer([] {
    const TW::SystemSymbols symbols = TW::ReadSystemSymbols("de_CH");
    return std::to_string(symbols.decimal) + " " + std::to_string(symbols.digitGrouping);
  });
}

TEST(FirstUse, OfFormulas) {
  ExpectOneAnswer([] {
    const Expression formula = ParseFormula(u"UPPER ( CONCAT ( STRCALCUNIT ( 12345.678 m ), \" stra\u00DFe\" ) )");
    const Expression copy = formula;
    return Render(copy).ToUtf8() + copy.Evaluate(TestHost()).GetAsString().ToUtf8();
  });
}

TEST(FirstUse, OfBrokenFormulas) {
  ExpectOneAnswer([] {
    std::string answer;
    for (const char16_t* text : {u"1 +", u"NOSUCH ( 1 )", u"1 bananas"}) {
      try {
        ParseFormula(text);
      } catch (const EP::SyntaxErrorException& error) {
        answer += error.ToString().ToUtf8();
      }
    }
    return answer;
  });
}

TEST(FirstUse, OfBuildingModels) {
  const std::string text = IfcText::Wrap(
      "#1=IFCWALL('1',$,'Wall \\PE\\\\S\\D \\X\\E9',$,$,$,$,$,$);\n"
      "#2=IFCPROPERTYSINGLEVALUE('P',$,IFCREAL(1.),$);\n#3=IFCPROPERTYSET('3',$,'S',$,(#2));\n"
      "#4=IFCRELDEFINESBYPROPERTIES('4',$,$,$,(#1),#3);\n");
  ExpectOneAnswer([&text] {
    const Host::IfcModel model(Host::StepFile::FromText(text));
    return model.GetElementCount() == 1 ? model.GetName(0).ToUtf8() : std::string();
  });
}

}  // namespace
