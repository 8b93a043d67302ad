#include "Program.hpp"

#include <gtest/gtest.h>

namespace {

// A conversation through pipes: what is typed, and what comes back on either side.
struct Row {
  std::string typed;
  std::string out;
  std::string err;
  int status;
};

void ExpectRows(const std::vector<Row>& rows, const std::vector<std::string>& options = {}) {
  std::vector<std::string> arguments{"repl"};
  arguments.insert(arguments.end(), options.begin(), options.end());
  for (const Row& row : rows) {
    const Outcome outcome = RunProgram(arguments, row.typed);
    EXPECT_EQ(outcome.out, row.out) << row.typed;
    EXPECT_EQ(outcome.err, row.err) << row.typed;
    EXPECT_EQ(outcome.status, row.status) << row.typed;
  }
}

constexpr const char* NoValue =
    "error: The value of a property in this formula is not available. Check that property, or remove it from the "
    "formula.\n";
constexpr const char* DivisorIsZero =
    "error: The divisor is zero. Change the formula or the value that it divides by.\n";

TEST(Repl, AnswersEachLine) {
  ExpectRows({
      {"", "", "", 0},
      {"1 + 2\n\n  \t\n\"a\"", "3\na\n", "", 0},
      {"1 + 1\r\n2 m\r\n", "2\n2.00\u00A0m\n", "", 0},
      {"1+1/0\n2\n", "2\n", std::string(DivisorIsZero) + "  1 + 1 / 0\n      ~^^^~\n", 1},
      {"1 ?\n", "",
       "error: This cannot stand here. Remove it, or add the operator or the separator that is missing before it.\n"
       "  1 ?\n    ^\n",
       1},
      {"1\n:quit\n2\n", "1\n", "", 0},
      {":quit now\n2\n", "", "", 0},
      {":foo\n1\n", "1\n", "error: There is no command ':foo'. :help lists them.\n", 1},
      {":\n", "", "error: There is no command ':'. :help lists them.\n", 1},
      {":unit\n", "", "error: There is no command ':unit'. :help lists them. Did you mean :units?\n", 1},
  });
  ExpectRows({{"1.5\n1/0\n",
               "{\"text\": \"1.5\", \"value\": {\"kind\": \"number\", \"value\": 1.5, \"length\": 0, \"angle\": 0}, "
               "\"display\": \"1.5\", \"references\": [], \"evaluable\": 2, \"version\": 1}\n"
               "{\"text\": \"1 / 0\", \"error\": {\"stage\": \"evaluation\", \"name\": \"ExpressionDivisionByZero\", "
               "\"index\": 13, \"message\": \"The divisor is zero. Change the formula or the value that it divides "
               "by.\", \"begin\": 1, \"end\": 4, \"span\": [0, 5]}, \"references\": [], \"evaluable\": 2, "
               "\"version\": 1}\n",
               "", 1}},
             {"--json"});
}

TEST(Repl, KeepsPropertiesThatFollowEachOther) {
  ExpectRows({
      {":set Width = 2\n[Width] * 3\n:set Width=3\n[Width] * 3\n", "2\n6\n3\n9\n", "", 0},
      // What a formula refers to may come later, and change.
      {":set Area = [W] * [H]\n:set W = 2 m\n:set H = 3 m\n[Area]\n:set W = [H]\n[Area]\n",
       "2.00\u00A0m\n3.00\u00A0m\n6.00\u00A0m²\n3.00\u00A0m\n9.00\u00A0m²\n",
       std::string(NoValue) + "  [W] * [H]\n  ^^^\n", 1},
      {":set A = 1\n:set B = [A]\n:set C = [B]\n:set A = 1 / 0\n[C]\n:set A = 7\n[C]\n", "1\n1\n1\n7\n7\n",
       std::string(DivisorIsZero) + "  1 / 0\n  ~^^^~\n" + NoValue + "  [C]\n  ^^^\n", 1},
      {":set A = 1\n:set B = [A] + 1\n:set A = [B]\n[B]\n", "1\n2\n2\n",
       "error: This formula makes properties refer to themselves: [A] -> [B] -> [A].\n", 1},
      {":set A = [A]\n:set\n", "", "error: This formula makes properties refer to themselves: [A] -> [A].\n", 1},
      {":set U = undefined area\n[U] + 1 m2\nISUNDEFINED([U])\n", "Undefined\nTRUE\n", "", 0},
      {":set [a\\]b] = 1\n[a\\]b] + 1\n:set 1AF5C228-7607-4175-9B78-A1779295614E = 4\n"
       "[Property:1AF5C228-7607-4175-9B78-A1779295614E]\n",
       "1\n2\n4\n4\n", "", 0},
      {":set A = 1 +\n:set\n", "",
       "error: The formula ends too early. Add the value that is missing at its end.\n  1 +\n     ^\n", 1},
      {":set A\n", "", "error: A property is set as in :set Width = 2.5 m.\n", 1},
      {":set = 1\n", "", "error: A property is set as in :set Width = 2.5 m.\n", 1},
  });
  ExpectRows(
      {{":set B = [A] * 2\n:set\n:set A = 2 m\n:set\n",
        "6\n[A]: 3\n[B] = [A] * 2: 6\n2.00\u00A0m\n[A] = 2 m: 2.00\u00A0m\n[B] = [A] * 2: 4.00\u00A0m\n", "", 0}},
      {"--set", "A=3"});
}

TEST(Repl, FollowsALongWayOfProperties) {
  std::string typed = ":set P0 = 1\n";
  constexpr int Count = 500;
  for (int i = 1; i < Count; ++i) {
    typed += ":set P" + std::to_string(i) + " = [P" + std::to_string(i - 1) + "] + 1\n";
  }
  typed += ":set P0 = 10\n[P" + std::to_string(Count - 1) + "]\n";
  const Outcome outcome = RunProgram({"repl"}, typed);
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(SplitLines(outcome.out).back(), std::to_string(10 + Count - 1));
}

TEST(Repl, ChangesUnitsAndLocale) {
  ExpectRows({
      {":units length mm 1\n1.5 m\n:units angle gon\n90 D\n", "1,500.0\u00A0mm\n100.00\u00A0gon\n", "", 0},
      // Texts of quantities follow the units.
      {":set T = STRCALCUNIT(1 m)\n:units length cm 0\n[T]\n", "1.00 m\n100 cm\n", "", 0},
      {":units length m2\n1 m\n", "1.00\u00A0m\n",
       "error: The option '--length-unit' must be one of m, dm, cm, mm, ft-frac, ft-dec, ft, in-frac, in.\n", 1},
      // Half a change is none.
      {":units length mm 1000000\n1 m\n", "1.00\u00A0m\n",
       "error: The option '--length-decimals' must be a whole number from 0 to 65535.\n", 1},
      {":units weight kg\n", "",
       "error: Units are set as in :units length mm 1; there are length, area, volume and angle.\n", 1},
      {":set A = 1.5\n:locale de_DE\nSUM([A]; 1,5)\n:functions pi\n",
       "1.5\n3\nPI (3,14159…, eine halbe Drehung im Bogenmaß)\n\nBeispiele\n  PI = 3,14159265359\n", "", 0},
      {":locale x!\n1.5 / 0\n:locale\n", "",
       "error: The option '--locale' must be a language such as de or de_AT.\n" + std::string(DivisorIsZero) +
           "  1.5 / 0\n  ~~~^^^~\nerror: The locale is set as in :locale de_DE.\n",
       1},
  });
}

TEST(Repl, ShowsTreesAndHelp) {
  ExpectRows({
      {":set W = 2\n:tree [W] * 2\n",
       "2\n[W] * 2\n\n"
       "Node                               Version  Range  Value\n"
       "ExpressionMultiplicationNode       1        3..6   4\n"
       "  ExpressionPropertyReferenceNode  1        0..3   2\n"
       "  ExpressionIntegerNode            1        6..7   2\n",
       "", 0},
      {":tree (1\n", "",
       "error: A closing parenthesis is missing. Add it, or remove the opening parenthesis that it belongs to.\n"
       "  (1\n    ^\n",
       1},
      {":functions SMU\n", "", "error: There is no function, operator, constant or unit 'SMU'. Did you mean SUM?\n", 1},
  });
  EXPECT_EQ(RunProgram({"repl"}, ":functions\n").out, RunProgram({"functions"}).out);
  const Outcome help = RunProgram({"repl"}, ":help\n");
  for (const char* command : {":set", ":units", ":locale", ":functions", ":tree", ":help", ":quit"}) {
    EXPECT_NE(help.out.find(std::string("\n  ") + command), std::string::npos) << command;
  }
}

TEST(Repl, TakesNoFormulasAsArguments) {
  const Outcome outcome = RunProgram({"repl", "1"});
  EXPECT_EQ(outcome.err.substr(0, 68), "quorix: The command 'repl' reads standard input and takes no formula");
  EXPECT_EQ(outcome.status, 2);
}

}  // namespace
