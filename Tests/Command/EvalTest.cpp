#include "Program.hpp"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <unistd.h>

namespace {

struct Row {
  std::vector<std::string> arguments;
  std::string out;
  std::string err;
  int status;
};

void ExpectRows(const std::vector<Row>& rows) {
  for (const Row& row : rows) {
    const Outcome outcome = RunProgram(row.arguments);
    EXPECT_EQ(outcome.out, row.out) << row.arguments.back();
    EXPECT_EQ(outcome.err, row.err) << row.arguments.back();
    EXPECT_EQ(outcome.status, row.status) << row.arguments.back();
  }
}

// What stands below the message of a diagnostic.
struct ExcerptRow {
  std::vector<std::string> arguments;
  std::string excerpt;
};

void ExpectExcerpts(const std::vector<ExcerptRow>& rows) {
  for (const ExcerptRow& row : rows) {
    std::vector<std::string> arguments{"eval"};
    arguments.insert(arguments.end(), row.arguments.begin(), row.arguments.end());
    const Outcome outcome = RunProgram(arguments);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.err.substr(0, 7), "error: ");
    EXPECT_EQ(outcome.err.substr(outcome.err.find('\n') + 1), row.excerpt);
    EXPECT_EQ(outcome.status, 1);
  }
}

std::string Repeat(const std::string& text, int count) {
  std::string repeated;
  for (int i = 0; i < count; ++i) repeated += text;
  return repeated;
}

TEST(Eval, ShowsValuesInTheUnitsAndSeparatorsAskedFor) {
  ExpectRows({
      {{"eval", "1 + 2 * 3", "-2 ^ 2", "--5", "\"a b\"", "1 m < 2 m"}, "7\n-4\n5\na b\nTRUE\n", "", 0},
      {{"eval", "1234.5 m", "--thousand", "", "--length-decimals=0"}, "1235\u00A0m\n", "", 0},
      {{"eval", "--length-unit", "mm", "--area-unit=cm2", "--area-decimals", "1", "1 m", "1 m * 1 m"},
       "1,000.00\u00A0mm\n10,000.0\u00A0cm²\n",
       "",
       0},
      {{"eval", "--volume-unit=l", "--angle-unit=gon", "1 m ^ 3", "90 D"}, "1,000.00\u00A0l\n100.00\u00A0gon\n", "", 0},
      {{"eval", "--locale", "de", "1234,5 m", "SUM(1;2,5)"}, "1.234,50\u00A0m\n3,5\n", "", 0},
      {{"eval", "--locale", "de-AT", "--decimal", ".", "1.5"}, "1.5\n", "", 0},
      {{"eval", "--list", "|", "SUM(1| 2)"}, "3\n", "", 0},
      // Dimensions without units are shown in base units.
      {{"eval", "2 m ^ 4", "1 / 1 m", "1 m * 180 D / PI", "1e300 m * 1 m * 1 m * 1 m"},
       "16 m^4\n1 m^-1\n1 m rad\n1e+300 m^4\n",
       "",
       0},
      {{"eval", "--", "--5"}, "5\n", "", 0},
  });
}

TEST(Eval, TakesPropertiesByNameAndByGuid) {
  const std::string guid = "1AF5C228-7607-4175-9B78-A1779295614E";
  ExpectRows({
      {{"eval", "--set", "Width=2.5 m", "[Width] * 2"}, "5.00\u00A0m\n", "", 0},
      {{"eval", "--set", guid + "=TRUE", "[Property:" + guid + "]", "[Property:" + guid + "] = FALSE"},
       "TRUE\nFALSE\n",
       "",
       0},
      {{"eval", "--set", "A]\\=1", "--set", "A: b=\"x\"", "[A\\]\\\\] + 1", "[A: b] = \"[A: b]\""},
       "2\nFALSE\n",
       "",
       0},
      {{"eval", "--set", "X=undefined length", "[X] + 1 m", "ISUNDEFINED([X])"}, "Undefined\nTRUE\n", "", 0},
      {{"eval", "--set", "L=undefined logical", "OR([L], TRUE)", "--propagate-undefined"}, "TRUE\n", "", 0},
      {{"eval", "--set", "A=1,5", "--locale=de", "[A] * 2"}, "3\n", "", 0},
      // A name is one whether its letters are composed or not.
      {{"eval", "--set", "H\u00F6he=3", "[Ho\u0308he] + 1"}, "4\n", "", 0},
      {{"eval", "--set", "A=1 +", "1"},
       "",
       "quorix: The option '--set' needs a value that can be evaluated; '1 +' of 'A' cannot: The formula ends too "
       "early. Add "
       "the value that is missing at its end.\nquorix --help shows how it is called.\n",
       2},
      {{"eval", "2 * SUMM(1)"},
       "",
       "error: There is no function of this name. Check the spelling, or choose a function from the list. Did you mean "
       "SUM?\n  2 * SUMM(1)\n      ^^^^\n",
       1},
  });
}

TEST(Eval, UnderlinesThePlaceOfAnError) {
  ExpectExcerpts({
      {{"1+10/(5-5)"}, "  1 + 10 / ( 5 - 5 )\n      ~~^^^~~~~~~~~~\n"},
      {{"1 + SQRT(-4)"}, "  1 + SQRT ( - 4 )\n      ^^^^^^^~~~^^\n"},
      {{"-\"a\""}, "  - \"a\"\n  ^^~~~\n"},
      {{"1 +"}, "  1 +\n     ^\n"},
      {{""}, "  \n  ^\n"},
      {{"1 + FOO(2)"}, "  1 + FOO(2)\n      ^^^\n"},
      {{"(1"}, "  (1\n    ^\n"},
      {{"\"abc"}, "  \"abc\n  ^\n"},
      {{"1e308 * 10"}, "  1e308 * 10\n"},
      // Names count as they were written.
      {{"[Width] + [High\\]er] * 2", "--set=Width=1 m"}, "  [Width] + [High\\]er] * 2\n            ^^^^^^^^^^\n"},
      {{"[Width] + 1 / 0", "--set=Width=1"}, "  [Width] + 1 / 0\n            ~^^^~\n"},
      {{"[Width] + \"[Width]\" ?", "--set=Width=1"}, "  [Width] + \"[Width]\" ?\n                      ^\n"},
      {{"[Width"}, "  [Width\n  ^\n"},
      {{"[]"}, "  []\n  ^\n"},
      // Wide characters take two columns, accents and joiners none; what would move the cursor is a blank.
      {{"\"日本語\" * 2"}, "  \"日本語\" * 2\n  ~~~~~~~~^^^~\n"},
      {{"\"\U0001F600\" ?"}, "  \"\U0001F600\" ?\n       ^\n"},
      {{"\"e\u0301\u200D\" ?"}, "  \"e\u0301\u200D\" ?\n      ^\n"},
      {{"1 +\n\t?"}, "  1 +  ?\n       ^\n"},
      {{"1\u0301"}, "  1\u0301\n  ^\n"},
      {{"\xFF"}, "  \uFFFD\n  ^\n"},
  });
}

TEST(Eval, ShowsTheSurroundingsOfThePlaceInALongFormula) {
  const std::string sum = Repeat("1 + ", 100);
  ExpectExcerpts({
      {{sum + "? + " + sum + "1"},
       "  ..." + Repeat("+ 1 ", 7) + "+ ? + " + Repeat("1 + ", 16) + "1 ...\n" + std::string(35, ' ') + "^\n"},
      {{"? + " + sum + "1"}, "  ? + " + Repeat("1 + ", 24) + "...\n  ^\n"},
      {{sum + "?"}, "  ..." + Repeat("+ 1 ", 24) + "+ ?\n" + std::string(103, ' ') + "^\n"},
  });
}

TEST(Eval, WritesAnswersInJson) {
  ExpectRows({
      {{"eval", "--json", "--set", "W=2", "[W] * 1.5", "1e308 * 10"},
       "{\"text\": \"[Property:D873F639-151A-3723-9825-7600653C00B8] * 1.5\", \"value\": {\"kind\": \"number\", "
       "\"value\": 3, "
       "\"length\": 0, \"angle\": 0}, \"display\": \"3\", \"references\": [\"D873F639-151A-3723-9825-7600653C00B8\"], "
       "\"evaluable\": 2, \"version\": 1}\n"
       "{\"text\": \"1e308 * 10\", \"value\": {\"kind\": \"invalid\"}, \"display\": null, \"references\": [], "
       "\"evaluable\": 2, \"version\": 1}\n",
       "",
       1},
      {{"eval", "--json", "[W] + ?"},
       "{\"error\": {\"stage\": \"syntax\", \"name\": \"UnexpectedCharacter\", \"message\": \"This cannot stand here. "
       "Remove "
       "it, or add the operator or the separator that is missing before it.\", \"begin\": 6, \"end\": 7}}\n",
       "",
       1},
  });
}

TEST(Eval, KeepsResultsAndDiagnosticsApart) {
  const Outcome outcome = RunProgram({"eval", "1", "1/0", "2", "--locale=fr"});
  EXPECT_EQ(outcome.out, "1\n2\n");
  EXPECT_EQ(SplitLines(outcome.err).size(), 3U);
  EXPECT_EQ(outcome.err.find("error: The"), std::string::npos) << outcome.err;
  EXPECT_EQ(outcome.status, 1);
}

TEST(Eval, FailsAloneWhenAFormulaAsksForTooMuchMemory) {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
  GTEST_SKIP() << "sanitizers take address space for themselves";
#endif
  const Outcome outcome = RunProgram({"eval", "REPT(REPT(\"abcdefghij\", 1000), 2000000000)", "1", "--max-memory=500"});
  EXPECT_EQ(outcome.out, "1\n");
  EXPECT_EQ(outcome.err.substr(0, 36), "error: There is not enough memory fo");
  EXPECT_EQ(outcome.status, 1);
}

TEST(Tree, ShowsEveryNodeWithItsValue) {
  ExpectRows({
      {{"tree", "[W]*(2 + 1) = 10", "--set", "W=2"},
       "[W] * ( 2 + 1 ) = 10\n\n"
       "Node                                 Version  Range   Value\n"
       "ExpressionEqualNode                  1        15..18  FALSE\n"
       "  ExpressionMultiplicationNode       1        3..6    6\n"
       "    ExpressionPropertyReferenceNode  1        0..3    2\n"
       "    ExpressionParenthesizedNode      1        6..15   3\n"
       "      ExpressionAdditionNode         1        9..12   3\n"
       "        ExpressionIntegerNode        1        8..9    2\n"
       "        ExpressionIntegerNode        1        12..13  1\n"
       "  ExpressionIntegerNode              1        18..20  10\n",
       "",
       0},
      {{"tree", "1 + 1 / 0"},
       "1 + 1 / 0\n\n"
       "Node                       Version  Range  Value\n"
       "ExpressionAdditionNode     1        1..4   ExpressionDivisionByZero at 5..8\n"
       "  ExpressionIntegerNode    1        0..1   1\n"
       "  ExpressionDivisionNode   1        5..8   ExpressionDivisionByZero\n"
       "    ExpressionIntegerNode  1        4..5   1\n"
       "    ExpressionIntegerNode  1        8..9   0\n",
       "error: The divisor is zero. Change the formula or the value that it divides by.\n"
       "  1 + 1 / 0\n      ~^^^~\n",
       1},
      {{"tree", "--json", "1 / 0"},
       "{\"text\": \"1 / 0\", \"nodes\": [{\"class\": \"ExpressionDivisionNode\", \"depth\": 0, \"version\": 1, "
       "\"begin\": 1, "
       "\"end\": 4, \"span\": [0, 5], \"error\": {\"stage\": \"evaluation\", \"name\": \"ExpressionDivisionByZero\", "
       "\"index\": 13, \"message\": \"The divisor is zero. Change the formula or the value that it divides by.\", "
       "\"begin\": "
       "1, \"end\": 4, \"span\": [0, 5]}}, {\"class\": \"ExpressionIntegerNode\", \"depth\": 1, \"version\": 1, "
       "\"begin\": 0, "
       "\"end\": 1, \"span\": [0, 1], \"value\": {\"kind\": \"integer\", \"value\": 1}, \"display\": \"1\"}, "
       "{\"class\": "
       "\"ExpressionIntegerNode\", \"depth\": 1, \"version\": 1, \"begin\": 4, \"end\": 5, \"span\": [4, 5], "
       "\"value\": "
       "{\"kind\": \"integer\", \"value\": 0}, \"display\": \"0\"}]}\n",
       "",
       1},
  });
}

TEST(Tree, TakesLongChainsAndDeepNesting) {
  const Outcome chain = RunProgram({"tree", "--json", "1/0" + Repeat("+1", 20'000)});
  EXPECT_EQ(chain.status, 1);
  EXPECT_NE(chain.out.find("\"depth\": 20001"), std::string::npos);
  const Outcome nested = RunProgram({"tree", Repeat("(", 250) + "1" + Repeat(")", 250)});
  EXPECT_EQ(nested.status, 0);
  EXPECT_NE(nested.out.find("\n" + Repeat(" ", 40) + "(250) ExpressionIntegerNode"), std::string::npos);
}

TEST(Tree, ShowsWhichPartMakesAnImpossibleText) {
  const Outcome outcome = RunProgram({"tree", "LEN(REPT(\"abc\",2147483647)) + 1"});
  EXPECT_NE(outcome.out.find("    ExpressionRepeatFunctionNode  1        6..32   OutOfMemory\n"), std::string::npos)
      << outcome.out;
  EXPECT_EQ(outcome.status, 1);
}

TEST(CommandLine, SpeaksTheLanguageThatIsAskedFor) {
  const std::pair<std::vector<std::string>, std::string> rows[] = {
      {{"eval", "--locale=de", "1/0"}, "Fehler: Der Divisor ist null."},
      {{"eval", "--locale=fr", "1e308*10"}, "erreur\u00A0: Le résultat n’est pas un nombre"},
      {{"eval", "--locale=de", "--length-unit=x", "1"},
       "quorix: Die Option „--length-unit“ muss eines von m, dm, cm, mm, ft-frac, ft-dec, ft, in-frac, in sein.\n"
       "quorix --help zeigt, wie es aufgerufen wird.\n"},
      {{"functions", "--locale=fr", "LEFR"},
       "quorix: Il n’y a ni fonction, ni opérateur, ni constante, ni unité «\u00A0LEFR\u00A0». "
       "Vouliez-vous dire LEFT\u202F?\n"},
      {{"model", "--locale=de", "none.json", "--ifc=x", "--csv=x"},
       "quorix: Der Befehl „model“ braucht Elemente, entweder mit --ifc DATEI oder mit --csv DATEI.\n"},
      {{"model", "--locale=fr", "none.json", "--csv=x"}, "none.json: erreur\u00A0: Le fichier ne peut pas être lu."},
      {{"model", "--locale=de", "r", "--csv=x", "--out=x.pdf"},
       "quorix: Die Option „--out“ muss eine Datei nennen, die auf .json oder .csv oder .ifc endet.\n"},
  };
  for (const auto& [arguments, beginning] : rows) {
    EXPECT_EQ(RunProgram(arguments).err.substr(0, beginning.size()), beginning);
  }
  const std::string answer = RunProgram({"batch", "--locale=de"}, "{}\n").out;
  EXPECT_NE(answer.find("Eine Anfrage muss eine „formula“ haben."), std::string::npos) << answer;
}

TEST(CommandLine, RefusesArgumentsInASentence) {
  const std::vector<std::pair<std::vector<std::string>, std::string>> rows = {
      {{}, "Which command?"},
      {{"foo"}, "There is no command 'foo'."},
      {{"tre", "1"}, "There is no command 'tre'. Did you mean tree?"},
      {{"eval"}, "The command 'eval' needs a formula."},
      {{"tree", "1", "2"}, "The command 'tree' needs one formula."},
      {{"batch", "x"}, "The command 'batch' reads standard input and takes no formulas."},
      {{"batch", "--set", "A=1"}, "The command 'batch' takes properties from its requests, not by --set."},
      {{"eval", "--foo=1", "1"}, "There is no option '--foo'. A formula that looks like one goes after '--'."},
      {{"eval", "--lenght-unit=mm", "1"},
       "There is no option '--lenght-unit'. A formula that looks like one goes after '--'. Did you mean "
       "--length-unit?"},
      {{"eval", "1", "--locale"}, "The option '--locale' needs a value."},
      {{"eval", "--json=1", "1"}, "The option '--json' takes no value."},
      {{"eval", "--locale", "x!", "1"}, "The option '--locale' must be a language such as de or de_AT."},
      {{"eval", "--decimal", "", "1"}, "The option '--decimal' must be one character."},
      {{"eval", "--thousand", "\U0001F600", "1"}, "The option '--thousand' must be one character."},
      {{"eval", "--area-unit", "m", "1"}, "The option '--area-unit' must be one of m2, cm2, mm2, ft2, in2."},
      {{"eval", "--length-decimals", "-1", "1"},
       "The option '--length-decimals' must be a whole number from 0 to 65535."},
      {{"eval", "--length-decimals", "65536", "1"},
       "The option '--length-decimals' must be a whole number from 0 to 65535."},
      {{"eval", "--max-memory", "1G", "1"},
       "The option '--max-memory' must be a whole number from 0 to 17592186044415."},
      {{"eval", "--set", "A", "1"}, "The option '--set' must look like Width=2.5 m."},
      {{"eval", "--set", "=1", "1"}, "The option '--set' must look like Width=2.5 m."},
  };
  for (const auto& [arguments, sentence] : rows) {
    const Outcome outcome = RunProgram(arguments);
    EXPECT_EQ(outcome.err, "quorix: " + sentence + "\nquorix --help shows how it is called.\n");
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.status, 2) << sentence;
  }
}

TEST(CommandLine, HelpsAndTellsItsVersion) {
  const Outcome help = RunProgram({"--help"});
  EXPECT_EQ(help.status, 0);
  for (const char* command : {"\n  batch ", "\n  eval FORMULA...", "\n  tree FORMULA "}) {
    EXPECT_NE(help.out.find(command), std::string::npos) << command;
  }
  for (const char* command : {"batch", "eval", "tree"}) {
    const Outcome own = RunProgram({command, "-h"});
    EXPECT_EQ(own.status, 0);
    EXPECT_NE(own.out.find("--angle-decimals N"), std::string::npos);
  }
  EXPECT_EQ(RunProgram({"--version"}).out.substr(0, 7), "quorix ");
}

TEST(CommandLine, CountsResultsThatNobodyReceivesAsAFailure) {
  const int full = ::open("/dev/full", O_WRONLY | O_CLOEXEC);
  ASSERT_GE(full, 0);
  const int nothing = ::open("/dev/null", O_RDWR | O_CLOEXEC);
  EXPECT_EQ(WaitForProgram(StartProgram({"eval", "1"}, nothing, full, nothing)), 2);
  EXPECT_EQ(WaitForProgram(StartProgram({"--help"}, nothing, full, nothing)), 2);
  ::close(full);
  ::close(nothing);
}

}  // namespace
