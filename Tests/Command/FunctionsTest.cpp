#include "Program.hpp"

#include <gtest/gtest.h>

namespace {

struct Row {
  std::vector<std::string> arguments;
  std::string out;
};

void ExpectOutput(const std::vector<Row>& rows) {
  for (const Row& row : rows) {
    std::vector<std::string> arguments{"functions"};
    arguments.insert(arguments.end(), row.arguments.begin(), row.arguments.end());
    const Outcome outcome = RunProgram(arguments);
    EXPECT_EQ(outcome.out, row.out);
    EXPECT_EQ(outcome.err, "");
    EXPECT_EQ(outcome.status, 0);
  }
}

// The lines that begin a group.
std::vector<std::string> GetHeadings(const std::string& listing) {
  std::vector<std::string> headings;
  for (const std::string& line : SplitLines(listing)) {
    if (!line.empty() && line.front() != ' ') headings.push_back(line);
  }
  return headings;
}

TEST(Functions, ListsTheVocabularyByGroup) {
  const std::string listing = RunProgram({"functions"}).out;
  EXPECT_EQ(
      GetHeadings(listing),
      (std::vector<std::string>{"Logical functions", "Arithmetic functions", "Trigonometric functions",
                                "Statistical functions", "Text functions", "Conversion functions", "Operators",
                                "Constants", "Units of length", "Units of area", "Units of volume", "Units of angle"}));
  // 57 functions, 11 operators, 3 constants, 4 lines of units, 12 headings, 11 gaps.
  EXPECT_EQ(SplitLines(listing).size(), 98U);
  for (const char* part :
       {"\n  SUM – sum\n", "\n  Equal (=)\n", "\n  PI (", "\nUnits of area\n  m2 cm2 mm2 ft2 in2\n"}) {
    EXPECT_NE(listing.find(part), std::string::npos) << part;
  }
  const std::string german = RunProgram({"functions", "--locale", "de"}).out;
  EXPECT_EQ(GetHeadings(german).front(), "Logische Funktionen");
  EXPECT_NE(german.find("\n  SUM – Summe\n"), std::string::npos);
}

TEST(Functions, ExplainsAWord) {
  ExpectOutput({
      {{"left"},
       "LEFT – start of a text\n\n  LEFT ( text, count )\n\n"
       "Gives the first characters of a text, or all of it when it is shorter than that.\n\n"
       "Arguments\n  text: a text\n  count: a whole number of 0 or more\n\n"
       "Examples\n  LEFT ( \"window\", 3 ) = \"win\"\n  LEFT ( \"oak\", 10 ) = \"oak\"\n"},
      {{"Pi"}, "PI (3.14159…, half a turn in radians)\n\nExamples\n  PI = 3.14159265359\n"},
      {{"ft", "--length-unit=in", "--length-decimals=0"}, "ft\n\nExamples\n  1 ft = 12\u00A0in\n"},
      {{"\"", "--length-unit=mm"}, "\"\n\nExamples\n  1 \" = 25.40\u00A0mm\n"},
  });
}

TEST(Functions, EvaluatesExamplesInTheSettingsAskedFor) {
  const std::vector<std::pair<std::vector<std::string>, std::string>> rows = {
      {{"strcalcunit", "--length-unit=mm"}, "\n  STRCALCUNIT ( 150 cm ) = \"1,500.00 mm\"\n"},
      {{"STR", "--locale=de"}, "\n  STR ( 3,14159 ) = \"3,14\"\n"},
      {{"SUM", "--locale=de"}, "\n  SUM ( 1 m; 50 cm ) = 1,50\u00A0m\n"},
      {{"<>"}, "\n  left <> right\n"},
      {{"^"}, "\nOperands\n  left: "},
      {{"STRTONUM"}, "\n  STRTONUM ( \"12.5\" ) = 12.5\n"},
  };
  for (const auto& [arguments, part] : rows) {
    std::vector<std::string> all{"functions"};
    all.insert(all.end(), arguments.begin(), arguments.end());
    const Outcome outcome = RunProgram(all);
    EXPECT_NE(outcome.out.find(part), std::string::npos) << outcome.out;
    EXPECT_EQ(outcome.status, 0);
  }
  // This example is a text in other separators.
  EXPECT_EQ(RunProgram({"functions", "STRTONUM", "--locale=de"}).out.find("12.5"), std::string::npos);
}

TEST(Functions, SuggestsSimilarWords) {
  const std::vector<std::pair<std::string, std::string>> rows = {
      {"SMU", " Did you mean SUM?"},
      {"conct", " Did you mean CONCAT?"},
      {"iff", " Did you mean IF or IFS?"},
      {"FLAES", " Did you mean FALSE?"},
      {"zzzzzzzzzz", ""},
      {"", ""},
      {"==", ""},
  };
  for (const auto& [word, suggestion] : rows) {
    const Outcome outcome = RunProgram({"functions", "--", word});
    EXPECT_EQ(outcome.err, "quorix: There is no function, operator, constant or unit '" + word + "'." + suggestion +
                               "\nquorix --help shows how it is called.\n");
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.status, 2);
  }
  const Outcome two = RunProgram({"functions", "SUM", "MIN"});
  EXPECT_EQ(two.err.substr(0, 62), "quorix: The command 'functions' explains one function at a tim");
  EXPECT_EQ(two.status, 2);
}

TEST(Functions, AnswersInJson) {
  ExpectOutput({
      {{"--json", "left", "--list=;"},
       "{\"name\": \"LEFT\", \"kind\": \"function\", \"title\": \"LEFT – start of a text\", "
       "\"syntax\": \"LEFT ( text; count )\", \"description\": \"Gives the first characters of a text, or all of "
       "it when it is shorter than that.\", \"arguments\": [{\"name\": \"text\", \"meaning\": \"a text\"}, "
       "{\"name\": \"count\", \"meaning\": \"a whole number of 0 or more\"}], \"examples\": ["
       "{\"formula\": \"LEFT ( \\\"window\\\"; 3 )\", \"value\": {\"kind\": \"text\", \"value\": \"win\"}, "
       "\"display\": \"win\"}, "
       "{\"formula\": \"LEFT ( \\\"oak\\\"; 10 )\", \"value\": {\"kind\": \"text\", \"value\": \"oak\"}, "
       "\"display\": \"oak\"}]}\n"},
      {{"--json", "TRUE"},
       "{\"name\": \"TRUE\", \"kind\": \"constant\", \"title\": \"TRUE (the logical value true)\", "
       "\"syntax\": \"TRUE\", \"description\": \"\", \"arguments\": [], \"examples\": [{\"formula\": \"TRUE\", "
       "\"value\": {\"kind\": \"logical\", \"value\": true}, \"display\": \"TRUE\"}]}\n"},
  });
  const std::string all = RunProgram({"functions", "--json"}).out;
  EXPECT_EQ(SplitLines(all).size(), 1U);
  for (const char* part :
       {"{\"groups\": [{\"group\": \"logical\", \"kind\": \"function\", \"heading\": \"Logical "
        "functions\", \"words\": [",
        "{\"name\": \"<=\", \"title\": \"Less than or equal (<=)\"}", "{\"name\": \"gal\", \"title\": \"gal\"}]}, "}) {
    EXPECT_NE(all.find(part), std::string::npos) << part;
  }
}

}  // namespace
