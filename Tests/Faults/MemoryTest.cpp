#include "Localization/MoBuilder.hpp"
#include "Localization/PoDictionary.hpp"
#include "Quorix/Formulas.hpp"
#include "Quorix/KeywordFinder.hpp"
#include "Quorix/ReferenceGraph.hpp"
#include "Resources/Language.hpp"
#include "Resources/ResourceModule.hpp"
#include "Shortage.hpp"
#include "TW/ObjectState.hpp"

#include <memory>

namespace {

using QX::Expression;

// Numbers, quantities, every function of texts, long chains, references, and what fails.
constexpr const char* Formulas[] = {
    "1 + 2 * 3 - 4 / 5 ^ 2",
    "MROUND ( 12.34 m * 2 m, 1 m2 ) + ROUND ( 3.5, 0 ) * 1 m2 - {1} * 1 m2",
    "1 + 2 + 3 + 4 + 5 + 6 + 7 + 8 + 9 + 10 + 11 + 12 = 1",
    "SUM ( 1, 2, 3, 4, 5, 6, 7, 8, 9 ) + AVG ( 1, 2 ) + MAX ( {2}, {3} )",
    "IF ( 2 1/4\" > 1 m, \"a long text of one branch\", \"a long text of the other\" )",
    "CONCAT ( \"a text longer than seven\", \"\\\"and\\\" another one\", UPPER ( \"stra\u00DFe und wege\" ) )",
    "TEXTJOIN ( \" and then \", TRUE, \"first of them\", \"\", \"second of them\" )",
    "LOWER ( TRIM ( \"   \u00C4 TEXT   with   SPACES  \" ) )",
    "LEFT ( \"a rather long text\", 12 )",
    "MID ( REPT ( \"abcdefgh\", 5 ), 3, 20 )",
    "SUBSTITUTE ( \"aXbXcX and so on\", \"X\", \"a longer replacement\" )",
    "REPLACE ( \"the whole of a text\", 3, 6, \"nothing much, really\" )",
    "SPLIT ( \"first part;second part;third\", \";\", 2 )",
    "FIND ( \"B\", \"aaaaaaaaaaaab\", 1, FALSE )",
    "STR ( 12345.678, 2 )",
    "STRCALCUNIT ( 12.5 m )",
    "STRTONUM ( \"1234567.5\" )",
    "IFS ( FALSE, \"never to be seen\", ISUNDEFINED ( {undefined text} ), \"always to be seen\" )",
    "{undefined length} + 1 m",
    "1 / ( 5 - 5 )",
    "1 m + 1 m2",
    "UPPER ( 5 )",
    "{failing} + 1",
    "SQRT ( -1 )",
};

TW::UniString TextOf(const char* formula) { return FormulaWords::Replace(formula); }

// The value, or the name and the message of what was thrown.
std::string ShowOutcome(const Expression& expression, const QX::IExpressionEvaluationEnv& host) {
  try {
    return ShowValue(expression.Evaluate(host));
  } catch (const QX::ExpressionSemanticException& error) {
    return error.GetName().ToUtf8() + ": " + error.ToString().ToUtf8();
  }
}

std::shared_ptr<TestHost> MakeHost() {
  auto host = std::make_shared<TestHost>();
  FormulaWords::AddPropertiesTo(*host);
  return host;
}

// A row for each formula; `make(text, expression)` makes the operation.
template <class Make>
std::vector<OperationRow> MakeRows(const std::string& name, const Make& make) {
  std::vector<OperationRow> rows;
  for (const char* formula : Formulas) {
    const TW::UniString text = TextOf(formula);
    rows.push_back(
        {name + " " + formula, [=] { return make(text, std::make_shared<const Expression>(ParseFormula(text))); }});
  }
  return rows;
}

using Shared = std::shared_ptr<const Expression>;

TEST(Memory, TextsAreParsed) {
  ExpectToSurviveShortage(MakeRows("parse", [](const TW::UniString& text, const Shared&) {
    return Operation{[=] { return Render(ParseFormula(text)).ToUtf8(); }};
  }));
  for (const char16_t* broken : {u"1 + ", u"SUM ( 1, UNKNOWN ( 2 ) )", u"\"an open text", u"( ( ( 1 )", u"1 bananas",
                                 u"[Property:no guid at all]", u"\u00E9\u00E8 + 1"}) {
    ExpectToSurviveShortage({{"parse a broken text", [=] {
                                return Operation{[=]() -> std::string {
                                  try {
                                    ParseFormula(broken);
                                  } catch (const EP::SyntaxErrorException& error) {
                                    return error.ToString().ToUtf8();
                                  }
                                  return "a formula";
                                }};
                              }}});
  }
}

TEST(Memory, FormulasAreEvaluated) {
  const std::string hostFailed = ShowOutcome(ParseFormula(TextOf("{failing}")), *MakeHost());
  std::vector<OperationRow> rows = MakeRows("evaluate", [](const TW::UniString&, const Shared& expression) {
    const auto host = MakeHost();
    return Operation{[=] { return ShowOutcome(*expression, *host); }};
  });
  // A host that lacks memory has no value to give.
  for (OperationRow& row : rows) row.declared = {hostFailed};
  ExpectToSurviveShortage(rows);
}

TEST(Memory, FormulasAreRenderedCopiedStoredAndRead) {
  ExpectToSurviveShortage(MakeRows("render", [](const TW::UniString&, const Shared& expression) {
    return Operation{[=] { return Render(*expression).ToUtf8(); }};
  }));
  ExpectToSurviveShortage(MakeRows("copy", [](const TW::UniString&, const Shared& expression) {
    const auto target = std::make_shared<Expression>(ParseFormula(u"\"what was there before\""));
    return Operation{[=] {
                       *target = *expression;
                       FailingMemory::Allow();
                       return Render(*target).ToUtf8();
                     },
                     [=] { return Render(*target).ToUtf8(); }};
  }));
  ExpectToSurviveShortage(MakeRows("store", [](const TW::UniString&, const Shared& expression) {
    return Operation{[=] {
      TW::ObjectState state;
      if (expression->Store(state) != TW::NoErr) return std::string("refused");
      return std::string(reinterpret_cast<const char*>(state.bytes.data()), state.bytes.size());
    }};
  }));
  ExpectToSurviveShortage(MakeRows("read", [](const TW::UniString&, const Shared& expression) {
    const StoredBytes bytes = Store(*expression);
    const auto target = std::make_shared<Expression>(ParseFormula(u"\"what was there before\""));
    return Operation{[=] {
                       if (ReadStored(bytes, *target) != TW::NoErr) return std::string("refused");
                       FailingMemory::Allow();
                       return Render(*target).ToUtf8();
                     },
                     [=] { return Render(*target).ToUtf8(); }};
  }));
  ExpectToSurviveShortage(MakeRows("clone", [](const TW::UniString&, const Shared& expression) {
    return Operation{[=] { return expression->Clone() ? std::string("cloned") : std::string("nothing"); }};
  }));
}

TEST(Memory, FormulasAreSearched) {
  ExpectToSurviveShortage(MakeRows("collect", [](const TW::UniString&, const Shared& expression) {
    const auto host = MakeHost();
    return Operation{[=] { return std::to_string(static_cast<int>(expression->GetEvaluableStatus(*host))); }};
  }));

  class Ring final : public QX::IExpressionReferenceResolver {
   public:
    TW::HashSet<TW::Guid> GetDirectReferences(const TW::Guid& id) const override {
      TW::HashSet<TW::Guid> next;
      for (unsigned int i = 1; i < 4; ++i) {
        TW::Guid::Bytes bytes = id.GetBytes();
        bytes[15] = static_cast<std::uint8_t>((bytes[15] + i) % 40);
        next.Add(TW::Guid(bytes));
      }
      return next;
    }
  };
  ExpectToSurviveShortage({{"search for a cycle", [] {
                              const auto formula = std::make_shared<Expression>(ParseFormula(TextOf("{1} + {2}")));
                              return Operation{[=] {
                                TW::Array<TW::Guid> path;
                                const bool found = formula->ContainsCycle(Ring(), &path);
                                return std::to_string(found) + " " + std::to_string(path.size());
                              }};
                            }}});
}

TEST(Memory, KeywordsAreFound) {
  for (const char16_t* text : {u"a very long name of nothing", u"SUBSTITUTE ( 1 )", u"TRUE", u"1 + 2", u"splitleft"}) {
    ExpectToSurviveShortage({{"find a keyword", [=] {
                                return Operation{[=] {
                                  const auto found = QX::FindKeywordAroundCharPosition(text, 2);
                                  return found ? found->keyword.ToUtf8() : std::string("none");
                                }};
                              }}});
  }
}

TEST(Memory, CatalogsAreReadWholeOrNotAtAll) {
  const std::string po =
      "msgid \"\"\nmsgstr \"Content-Type: text/plain; charset=ISO-8859-1\\n\"\n\n"
      "msgctxt \"a context of some length\"\nmsgid \"a text of some length\"\nmsgstr \"\xE9 une traduction\"\n\n"
      "msgid \"another text of some length\"\nmsgid_plural \"texts\"\nmsgstr[0] \"zwei\" \"te Zeile\"\n";
  const std::string mo = BuildMo({{"", "Content-Type: text/plain; charset=UTF-8\n"},
                                  {"a context of some length\4a text of some length", "eine \u00DCbersetzung"},
                                  {"another text of some length", "noch eine \u00DCbersetzung"}},
                                 MoOrder::Big);
  struct Catalog {
    std::string name;
    std::string bytes;
    TW::ErrCode (Localization::PoDictionary::*read)(std::string_view);
  };
  const auto show = [](const Localization::PoDictionary& dictionary) {
    return std::to_string(dictionary.GetCount()) + " " +
           dictionary.Translate(u"a text of some length", u"a context of some length").ToUtf8() + " " +
           dictionary.Translate(u"another text of some length", u"").ToUtf8();
  };
  for (const Catalog& catalog : {Catalog{"read PO", po, &Localization::PoDictionary::ReadPo},
                                 Catalog{"read MO", mo, &Localization::PoDictionary::ReadMo}}) {
    ExpectToSurviveShortage({{catalog.name, [=] {
                                const auto dictionary = std::make_shared<Localization::PoDictionary>();
                                EXPECT_EQ(dictionary->ReadPo("msgid \"another text of some length\"\nmsgstr \"old\"\n"),
                                          TW::NoErr);
                                return Operation{[=] {
                                                   if (((*dictionary).*catalog.read)(catalog.bytes) != TW::NoErr)
                                                     return std::string("refused");
                                                   FailingMemory::Allow();
                                                   return show(*dictionary);
                                                 },
                                                 [=] { return show(*dictionary); }};
                              }}});
  }
}

// What is read when memory is short must not be taken for all there is.
TEST(Memory, MessagesAreRead) {
  std::vector<OperationRow> rows;
  for (const char* language : {"root", "de", "fr_CA"}) {
    rows.push_back({std::string("texts of ") + language, [=] {
                      const std::shared_ptr<int> module(new int(Resources::OpenResourceFile(QX_BUILT_ARCHIVE)),
                                                        [](int* handle) {
                                                          Resources::CloseResourceFile(*handle);
                                                          delete handle;
                                                        });
                      EXPECT_GT(*module, 0);
                      return Operation{[=] { return Resources::GetIndString(106, 1, *module, language).ToUtf8(); }};
                    }});
  }
  ExpectToSurviveShortage(rows);
}

}  // namespace
