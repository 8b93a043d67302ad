#include "Program.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace {

namespace fs = std::filesystem;

const std::string house = QX_EXAMPLE_MODEL "/house.ifc";
const std::string houseTable = QX_EXAMPLE_MODEL "/house.csv";
const std::string takeoff = QX_EXAMPLE_MODEL "/takeoff.json";

constexpr const char* SmallRules = R"({"properties": [
  {"name": "Width", "kind": "length", "from": "Width"},
  {"name": "Height", "kind": "length", "from": ["Height", "Raw height"]},
  {"name": "Area", "group": "Takeoff", "formula": "[Width] * [Height]"},
  {"name": "Ratio", "kind": "number", "formula": "[Width] / [Height]"}
]})";

constexpr const char* SmallTable = "Name,Width,Height,Raw height\na,2 m,50 cm,\nb,,1 m,\nc,1 m,,0 m\nd,7,1 m,\n";

// Texts of quantities hold blanks at which lines do not break.
std::string WithPlainBlanks(std::string text) {
  for (std::size_t at = 0; (at = text.find("\u00A0", at)) != text.npos;) text.replace(at, 2, " ");
  return text;
}

class Model : public testing::Test {
 protected:
  Model() {
    std::string name = (fs::temp_directory_path() / "quorix_model_XXXXXX").string();
    folder_ = mkdtemp(name.data());
    rules = Write("rules.json", SmallRules);
    table = Write("elements.csv", SmallTable);
  }
  ~Model() override { fs::remove_all(folder_); }

  std::string Path(const std::string& name) const { return (folder_ / name).string(); }
  std::string Write(const std::string& name, const std::string& text) const {
    std::ofstream(folder_ / name) << text;
    return Path(name);
  }
  std::string Read(const std::string& name) const {
    std::ifstream file(folder_ / name);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
  }
  std::size_t CountFiles() const {
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder_), fs::directory_iterator()));
  }
  Outcome Run(std::vector<std::string> arguments) const {
    arguments.insert(arguments.begin(), {"model", rules, "--csv", table});
    return RunProgram(arguments);
  }

  std::string rules;
  std::string table;

 private:
  fs::path folder_;
};

TEST_F(Model, ShowsATableAndTellsWhyCellsHaveNoValue) {
  const Outcome outcome = Run({});
  EXPECT_EQ(WithPlainBlanks(outcome.out),
            "Element  Class       Area      Ratio\n"
            "────────────────────────────────────\n"
            "a                 1.00 m²          4\n"
            "b               undefined  undefined\n"
            "c                 0.00 m²         #1\n"
            "d                      #2         #2\n"
            "\n#1: no value; the error of this number tells why.\n");
  EXPECT_NE(outcome.err.find("#1 Ratio: The divisor is zero."), std::string::npos) << outcome.err;
  EXPECT_NE(outcome.err.find("#2 Width: The source holds no length."), std::string::npos) << outcome.err;
  EXPECT_NE(outcome.err.find("No value for this reason: Area, Ratio"), std::string::npos) << outcome.err;
  EXPECT_EQ(outcome.status, 1);
}

TEST_F(Model, TellsOfWhatIsAskedFor) {
  struct Row {
    std::vector<std::string> arguments;
    const char* out;
    int status;
  };
  const Row rows[] = {
      {{"--only", "Area", "--where", "[Area] > 0.5 m2"},
       "Element  Class     Area\n───────────────────────\na               1.00 m²\n",
       0},
      {{"--only=Takeoff.Area", "--where=[Width] = 2 m", "--length-unit=mm", "--area-unit", "cm2"},
       "Element  Class           Area\n─────────────────────────────\na               10,000.00 cm²\n",
       0},
      {{"--only", "Width,Height", "--where", "ISUNDEFINED([Width])"},
       "Element  Class      Width  Height\n─────────────────────────────────\nb               undefined  1.00 m\n",
       0},
      {{"--set", "Width=3 m", "--only", "Area", "--where", "[Height] = 1 m", "--locale", "de"},
       "Element  Klasse     Area\n────────────────────────\nb                3,00 m²\nd                3,00 m²\n",
       0},
      {{"--no-table"}, "", 1},
      {{"--no-table", "--where", "[Height] = 50 cm"}, "", 0},
  };
  for (const Row& row : rows) {
    const Outcome outcome = Run(row.arguments);
    EXPECT_EQ(WithPlainBlanks(outcome.out), row.out) << row.arguments.back();
    EXPECT_EQ(outcome.status, row.status) << row.arguments.back();
  }
}

TEST_F(Model, SaysWhatIsWrongWithTheCall) {
  const std::pair<std::vector<std::string>, const char*> rows[] = {
      {{"model", rules}, "quorix: The command 'model' needs elements, either by --ifc FILE or by --csv FILE.\n"},
      {{"model", rules, "--csv", table, "--ifc", house}, "quorix: The command 'model' needs elements"},
      {{"model", "--csv", table}, "quorix: The command 'model' needs one file of rules.\n"},
      {{"model", rules, "--csv", table, "--csv", table}, "quorix: The option '--csv' may be given once only.\n"},
      {{"model", rules, "--csv", table, "--out", "x.txt"},
       "quorix: The option '--out' must name a file that ends in .json or .csv or .ifc.\n"},
      {{"model", rules, "--csv", table, "--out", Path("x.ifc")}, "quorix: Only a model that was read by --ifc can"},
      {{"model", rules, "--csv", table, "--explain", "a"}, "quorix: The option '--explain' needs two values.\n"},
      {{"model", rules, "--csv", table, "--only", "Area,,Ratio"}, "quorix: The option '--only' must look like"},
      {{"model", rules, "--csv", table, "--only", "Depth"}, "error: The rules have no property 'Depth'.\n"},
      {{"model", rules, "--csv", table, "--only", "Heigth"},
       "error: The rules have no property 'Heigth'. Did you mean Height?\n"},
      {{"model", rules, "--csv", table, "--explain", "z", "Area"}, "error: There is no element 'z'."},
      {{"model", rules, "--csv", table, "--set", "Area=1 m2"}, "error: The property 'Area' has a formula"},
      {{"model", rules, "--csv", table, "--set", "Width=1 m2"}, "error: The value that --set gives"},
      {{"model", rules, "--csv", table, "--where", "[Width] >"}, "error: The condition of --where cannot be used."},
      {{"model", rules, "--csv", table, "--where", "[Depth] > 1 m"}, "error: The condition of --where cannot be used."},
      {{"model", Path("none.json"), "--csv", table}, nullptr},
      {{"model", rules, "--csv", Path("none.csv")}, nullptr},
      {{"model", rules, "--ifc", table}, nullptr},
  };
  for (const auto& [arguments, err] : rows) {
    const Outcome outcome = RunProgram(arguments);
    EXPECT_EQ(outcome.out, "") << arguments.back();
    EXPECT_EQ(outcome.err.substr(0, err != nullptr ? std::string(err).size() : 0), err != nullptr ? err : "");
    EXPECT_NE(outcome.err, "") << arguments.back();
    EXPECT_EQ(outcome.status, 2) << arguments.back();
  }
}

TEST_F(Model, WarnsOfWhatNoElementHas) {
  table = Write("elements.csv", "Name,width,Height\na,1 m,2 m,3 m\n");
  const std::vector<std::string> lines = SplitLines(Run({"--no-table"}).err);
  ASSERT_GE(lines.size(), 2U);
  EXPECT_EQ(lines[0].substr(0, table.size() + 13), table + ":2:11: warnin");
  EXPECT_EQ(lines[1], "warning: No element has a source of the property 'Width': Width.");
  EXPECT_EQ(Run({"--no-table", "--quiet"}).err, "");
}

TEST_F(Model, ReportsEveryMistakeInTheRulesAtOnce) {
  rules = Write("bad.json",
                "{\"properties\": [\n"
                "  {\"name\": \"A\", \"kind\": \"lenght\", \"from\": \"A\"},\n"
                "  {\"name\": \"B\", \"formula\": \"\\\"\\u00e4\\\" + [Nope]\"},\n"
                "  {\"name\": \"C\", \"formula\": \"1 +\"},\n"
                "  {\"name\": \"C\", \"formula\": \"2\", \"colour\": 1}\n]}");
  const Outcome outcome = Run({});
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(outcome.status, 2);
  const std::vector<std::string> lines = SplitLines(outcome.err);
  const char* const places[] = {":2:25: error: ", ":3:42: error: ", ":4:", ":5:12: error: ", ":5:33: error: "};
  ASSERT_EQ(lines.size(), std::size(places)) << outcome.err;
  for (std::size_t i = 0; i < std::size(places); ++i) {
    EXPECT_EQ(lines[i].substr(0, rules.size() + std::string(places[i]).size()), rules + places[i]) << outcome.err;
  }
}

TEST_F(Model, WritesFilesWhole) {
  EXPECT_EQ(
      Run({"--out", Path("a.json"), "--out", Path("b.CSV"), "--graph", Path("c.dot"), "--graph", Path("d.svg")}).out,
      "");
  EXPECT_EQ(Read("b.CSV"),
            "GlobalId,Class,Name,Area,Ratio\n,,a,1.00\u00A0m²,4\n,,b,,\n,,c,0.00\u00A0m²,#ExpressionDivisionByZero\n"
            ",,d,#ExpressionPropertyEvaluationFailed,#ExpressionPropertyEvaluationFailed\n");
  EXPECT_NE(Read("a.json").find("\"Area\": {\"kind\": \"number\", \"value\": 1, \"length\": 2, \"angle\": 0}"),
            std::string::npos);
  EXPECT_EQ(Read("c.dot").substr(0, 8), "digraph ");
  EXPECT_NE(Read("d.svg").find("</svg>"), std::string::npos);
  EXPECT_EQ(CountFiles(), 6U);

  // One that cannot be written hinders no other, and leaves nothing.
  const Outcome outcome = Run({"--out", Path("nowhere/a.json"), "--out", Path("e.csv")});
  EXPECT_EQ(outcome.err.substr(0, 15), "error: The file");
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(Read("e.csv"), Read("b.CSV"));
  EXPECT_EQ(CountFiles(), 7U);
}

TEST_F(Model, WritesOverNothingThatItReads) {
  fs::create_symlink(table, Path("link.csv"));
  const std::string ifc = Write("house.ifc", "ISO-10303-21;");
  const std::pair<std::vector<std::string>, std::string> rows[] = {
      {{"--csv", table, "--out", rules}, rules},
      {{"--csv", table, "--out", Path("./elements.csv")}, Path("./elements.csv")},
      {{"--csv", table, "--out", Path("link.csv")}, Path("link.csv")},
      {{"--ifc", ifc, "--out", Path("other.ifc"), "--out", ifc}, ifc},
  };
  for (const auto& [arguments, path] : rows) {
    std::vector<std::string> all{"model", rules};
    all.insert(all.end(), arguments.begin(), arguments.end());
    const std::string sentence = "quorix: '" + path + "' is read here and would be lost. Write to another file.\n";
    EXPECT_EQ(RunProgram(all).err.substr(0, sentence.size()), sentence);
  }
  EXPECT_EQ(Read("rules.json") + Read("elements.csv") + Read("house.ifc"),
            std::string(SmallRules) + SmallTable + "ISO-10303-21;");
}

TEST_F(Model, AnswersInJson) {
  const Outcome outcome = Run({"--json", "--where", "[Ratio] = 4", "--quiet"});
  EXPECT_EQ(outcome.out.substr(0, 1), "{");
  EXPECT_NE(outcome.out.find("\"summary\": {\"elements\": 1, \"values\": 2"), std::string::npos) << outcome.out;
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(outcome.status, 0);
}

TEST_F(Model, TakesTheSameFromAModelAndItsTable) {
  rules = takeoff;
  std::string csv[2];
  const std::vector<std::string> sources[] = {{"--ifc", house}, {"--csv", houseTable}};
  for (int i = 0; i < 2; ++i) {
    std::vector<std::string> arguments{"model", takeoff, "--out", Path("out.csv"), "--quiet"};
    arguments.insert(arguments.end(), sources[i].begin(), sources[i].end());
    EXPECT_EQ(RunProgram(arguments).status, 1);
    csv[i] = Read("out.csv");
  }
  for (std::size_t at = 0; (at = csv[1].find(",Ifc", at)) != std::string::npos;) {
    for (++at; csv[1][at] != ','; ++at) csv[1][at] = static_cast<char>(std::toupper(csv[1][at]));
  }
  EXPECT_EQ(SplitLines(csv[0]), SplitLines(csv[1]));
}

TEST_F(Model, WritesTheSameModelTwice) {
  const std::vector<std::string> first{"model", takeoff, "--ifc", house, "--out", Path("first.ifc"), "--quiet"};
  EXPECT_EQ(RunProgram(first).status, 1);
  const std::vector<std::string> second{"model",  takeoff, "--ifc", Path("first.ifc"), "--out", Path("second.ifc"),
                                        "--quiet"};
  EXPECT_EQ(RunProgram(second).status, 1);
  EXPECT_NE(Read("first.ifc").find("'Net volume',$,IFCVOLUMEMEASURE(5.4093)"), std::string::npos);
  EXPECT_EQ(Read("first.ifc"), Read("second.ifc"));
}

TEST_F(Model, ExplainsAValue) {
  const Outcome outcome = Run({"--explain", "c", "Ratio"});
  for (const char* line : {"Element   c\n", "Value     failed\n", "[Width] / [Height]", "Width   1.00\u00A0m  Width\n",
                           "Height  0.00\u00A0m  Raw height\n"}) {
    EXPECT_NE(outcome.out.find(line), std::string::npos) << line << outcome.out;
  }
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(outcome.status, 1);
}

}  // namespace
