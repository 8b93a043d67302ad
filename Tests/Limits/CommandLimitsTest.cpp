#include "Command/Program.hpp"

#include <gtest/gtest.h>

// The limits of the command, from both sides.

namespace {

std::string FirstLine(const std::string& text) { return text.substr(0, text.find('\n')); }

TEST(CommandLimits, OfTheLengthOfALine) {
  constexpr std::size_t LongestLine = std::size_t{64} << 20;
  const std::string head = "{\"formula\": \"1\"";
  const std::string longest = head + std::string(LongestLine - head.size() - 1, ' ') + "}";
  const std::vector<std::string> answers =
      SplitLines(RunProgram({"batch"}, longest + "\n " + longest + "\n{\"formula\": \"2\"}\n").out);
  ASSERT_EQ(answers.size(), 3U);
  EXPECT_NE(answers[0].find("\"display\": \"1\""), std::string::npos) << answers[0];
  EXPECT_NE(answers[1].find("\"name\": \"LineTooLong\""), std::string::npos) << answers[1];
  EXPECT_NE(answers[2].find("\"display\": \"2\""), std::string::npos) << answers[2];
}

TEST(CommandLimits, OfOptions) {
  EXPECT_EQ(RunProgram({"eval", "--length-decimals", "65535", "1 m"}).status, 0);
  EXPECT_EQ(RunProgram({"eval", "--length-decimals", "65536", "1 m"}).status, 2);
  EXPECT_EQ(RunProgram({"eval", "--max-memory", "17592186044415", "1"}).status, 0);
  EXPECT_EQ(RunProgram({"eval", "--max-memory", "17592186044416", "1"}).status, 2);
}

TEST(CommandLimits, OfFieldsOfRequests) {
  struct Row {
    const char* field;
    bool isWithin;
  };
  const Row rows[] = {
      {R"("units": {"length": {"unit": "ft-frac", "denominator": 128}})", true},
      {R"("units": {"length": {"unit": "ft-frac", "denominator": 129}})", false},
      {R"("units": {"area": {"decimals": 65535}})", true},
      {R"("units": {"area": {"decimals": 65536}})", false},
      {R"("decimals": [0, 4294967295])", true},
      {R"("decimals": [0, 4294967296])", false},
  };
  for (const Row& row : rows) {
    const std::string answer =
        FirstLine(RunProgram({"batch"}, R"({"formula": "1 m", )" + std::string(row.field) + "}\n").out);
    EXPECT_EQ(answer.find("\"error\"") == std::string::npos, row.isWithin) << answer;
  }
}

TEST(CommandLimits, JsonNestsToAnyDepth) {
  const std::string open(1'000'000, '[');
  for (const std::string& line : {open, open + std::string(open.size(), ']')}) {
    EXPECT_NE(RunProgram({"batch"}, line + "\n").out.find("\"error\""), std::string::npos);
  }
}

}  // namespace
