#include "Program.hpp"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <poll.h>
#include <regex>
#include <sys/resource.h>
#include <unistd.h>

namespace {

struct Case {
  std::string request;
  std::string answer;
};

std::vector<Case> ReadCases() {
  std::ifstream file(QX_BATCH_CASES);
  std::vector<Case> cases;
  for (std::string line; std::getline(file, line);) {
    if (line.starts_with("> ")) cases.push_back({line.substr(2), {}});
    if (line.starts_with("< ")) cases.back().answer = line.substr(2);
  }
  return cases;
}

std::string JoinRequests(const std::vector<Case>& cases, const std::string& lineEnd) {
  std::string input;
  for (const Case& row : cases) input += row.request + lineEnd;
  return input;
}

// Messages change; answers whose message the file of cases leaves open are compared without.
std::string HideMessage(const std::string& answer, const std::string& expected) {
  static const std::regex message(R"("message": "(?:[^"\\]|\\.)+")");
  if (expected.find(R"("message": "...")") == std::string::npos) return answer;
  return std::regex_replace(answer, message, R"("message": "...")");
}

void ExpectAnswers(const std::vector<Case>& cases, const Outcome& outcome) {
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(outcome.status, 1);
  const std::vector<std::string> answers = SplitLines(outcome.out);
  ASSERT_EQ(answers.size(), cases.size());
  for (std::size_t i = 0; i < cases.size(); ++i) {
    EXPECT_EQ(HideMessage(answers[i], cases[i].answer), cases[i].answer) << cases[i].request;
  }
}

bool HasError(const std::string& answer, const std::string& stage, const std::string& name) {
  return answer.find("\"stage\": \"" + stage + "\", \"name\": \"" + name + "\"") != std::string::npos;
}

// A pipe whose ends the tests close one by one.
struct Pipe {
  Pipe() { EXPECT_EQ(::pipe2(ends, O_CLOEXEC), 0); }
  ~Pipe() {
    CloseReader();
    CloseWriter();
  }
  void CloseReader() { Close(ends[0]); }
  void CloseWriter() { Close(ends[1]); }
  static void Close(int& end) {
    if (end >= 0) ::close(end);
    end = -1;
  }

  int ends[2] = {-1, -1};
};

std::string ReadLine(int descriptor) {
  std::string line;
  for (char next = 0; next != '\n'; line += next) {
    pollfd poll{descriptor, POLLIN, 0};
    if (::poll(&poll, 1, 20'000) <= 0 || ::read(descriptor, &next, 1) != 1) return "no answer came";
  }
  return line;
}

TEST(Batch, AnswersEachRequestAsTheFileOfCasesSays) {
  const std::vector<Case> cases = ReadCases();
  ASSERT_GT(cases.size(), 80U);
  ExpectAnswers(cases, RunProgram({"batch"}, JoinRequests(cases, "\n")));
  ExpectAnswers(cases, RunProgram({"batch", "--json"}, JoinRequests(cases, "\r\n")));
}

TEST(Batch, TakesALastLineWithoutEndAndNoLineAtAll) {
  EXPECT_EQ(SplitLines(RunProgram({"batch"}, "{\"formula\":\"1\"}\n{\"formula\":\"2\"}").out).size(), 2U);
  const Outcome empty = RunProgram({"batch"});
  EXPECT_EQ(empty.out, "");
  EXPECT_EQ(empty.status, 0);
}

TEST(Batch, RefusesBrokenEncodings) {
  const char* const lines[] = {
      "{\"formula\":\"\xFF\"}",         "{\"formula\":\"\xC0\xAF\"}",
      "{\"formula\":\"\xED\xA0\x80\"}", "{\"formula\":\"\xF4\x90\x80\x80\"}",
      "{\"formula\":\"\xE2\x82\"}",     "\xEF\xBB\xBF{\"formula\":\"1\"}",
      "{\"formula\":\"a\tb\"}",         "{\"id\":\"\x80\",\"formula\":\"1\"}",
  };
  for (const char* line : lines) {
    EXPECT_TRUE(HasError(RunProgram({"batch"}, line).out, "request", "InvalidJson")) << line;
  }
  const std::string zeros[] = {std::string("{\"formula\":\"1\"}\0", 16), std::string("\0{\"formula\":\"1\"}", 16),
                               std::string("{\"formula\":\"\0\"}", 15)};
  for (const std::string& line : zeros) {
    EXPECT_TRUE(HasError(RunProgram({"batch"}, line).out, "request", "InvalidJson")) << line.c_str();
  }
}

TEST(Batch, RefusesALineWithoutEndAndGoesOn) {
  constexpr std::size_t LongestLine = std::size_t{64} * 1024 * 1024;
  const std::string request = "{\"formula\":\"1\"}";
  const std::string blanks(LongestLine - request.size(), ' ');
  const std::string input = request + blanks + "\n" + request + blanks + " \n" + request + "\n" +
                            std::string(3 * LongestLine, 'x') + "\n" + request + "\n" +
                            std::string(2 * LongestLine, '[');
  const std::vector<std::string> answers = SplitLines(RunProgram({"batch"}, input).out);
  ASSERT_EQ(answers.size(), 6U);
  for (const std::size_t good : {0U, 2U, 4U}) EXPECT_NE(answers[good].find("\"value\""), std::string::npos) << good;
  for (const std::size_t bad : {1U, 3U, 5U}) EXPECT_TRUE(HasError(answers[bad], "request", "LineTooLong")) << bad;
}

TEST(Batch, TakesNestingOfAnyDepthInWhatItIgnores) {
  const std::string deep = std::string(500'000, '[') + std::string(500'000, ']');
  const Outcome outcome = RunProgram({"batch"}, "{\"id\": 1, \"x\": " + deep + ", \"formula\": \"1\"}\n");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.out.substr(0, 7), "{\"id\": ");
}

TEST(Batch, AnswersBeforeItWaitsForMore) {
  Pipe in;
  Pipe out;
  const pid_t process = StartProgram({"batch"}, in.ends[0], out.ends[1], STDERR_FILENO);
  ASSERT_GT(process, 0);
  in.CloseReader();
  out.CloseWriter();
  for (const std::string id : {"1", "2"}) {
    const std::string request = "{\"id\": " + id + ", \"formula\": \"1\"}\n{";
    // The second line is not complete yet.
    ASSERT_GT(::write(in.ends[1], request.data(), request.size()), 0);
    EXPECT_EQ(ReadLine(out.ends[0]).substr(0, 8), "{\"id\": " + id);
    ASSERT_EQ(::write(in.ends[1], "}\n", 2), 2);
    EXPECT_TRUE(HasError(ReadLine(out.ends[0]), "request", "FormulaMissing"));
  }
  in.CloseWriter();
  EXPECT_EQ(WaitForProgram(process), 1);
}

TEST(Batch, EndsWhenNobodyReadsItsAnswers) {
  Pipe in;
  Pipe out;
  Pipe err;
  out.CloseReader();
  // The program must not find the reading end open on its own side.
  const pid_t process = StartProgram({"batch"}, in.ends[0], out.ends[1], err.ends[1]);
  ASSERT_GT(process, 0);
  err.CloseWriter();
  ASSERT_GT(::write(in.ends[1], "{\"formula\":\"1\"}\n", 16), 0);
  in.CloseWriter();
  EXPECT_EQ(WaitForProgram(process), 2);
  EXPECT_EQ(ReadLine(err.ends[0]), "quorix: The results could not be written: Broken pipe.\n");
}

TEST(Batch, TellsWhatItCannotRead) {
  const int folder = ::open("/", O_RDONLY | O_CLOEXEC);
  Pipe err;
  const pid_t process = StartProgram({"batch"}, folder, STDOUT_FILENO, err.ends[1]);
  ::close(folder);
  EXPECT_EQ(WaitForProgram(process), 2);
  EXPECT_EQ(ReadLine(err.ends[0]), "quorix: Standard input could not be read: Is a directory.\n");
}

TEST(Batch, SpeaksTheLanguageAskedForAndKeepsItsSeparators) {
  const Outcome outcome = RunProgram({"batch", "--locale", "de"}, "{\"formula\": \"1.5 / 0\"}\n");
  EXPECT_NE(outcome.out.find("Der Divisor ist null."), std::string::npos) << outcome.out;
  const Outcome units = RunProgram({"batch", "--length-unit=mm", "--list=;"}, "{\"formula\": \"SUM(1 m; 2 m)\"}\n");
  EXPECT_NE(units.out.find("3,000.00\u00A0mm"), std::string::npos) << units.out;
}

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define QX_SKIP_UNDER_SANITIZERS() GTEST_SKIP() << "sanitizers take address space for themselves"
#else
#define QX_SKIP_UNDER_SANITIZERS() static_cast<void>(0)
#endif

TEST(Batch, AnswersAFormulaThatAsksForTooMuchMemory) {
  QX_SKIP_UNDER_SANITIZERS();
  const std::string text = R"(REPT(REPT(\"abcdefghij\", 1000), 10000))";
  const std::string input = "{\"id\": 1, \"formula\": \"REPT(" + text + ", 2000000000)\"}\n" +
                            // The text itself fits, its two copies in the answer do not.
                            "{\"id\": 2, \"formula\": \"" + text + "\"}\n" + "{\"id\": 3, \"formula\": \"LEN(" + text +
                            ")\"}\n" + "{\"id\": 4, \"formula\": \"1" + std::string(10'000'000, '+') + "\"}\n" +
                            "{\"id\": 5, \"formula\": \"1\"}\n";
  const Outcome outcome = RunProgram({"batch", "--max-memory", "400"}, input);
  const std::vector<std::string> answers = SplitLines(outcome.out);
  ASSERT_EQ(answers.size(), 5U) << outcome.err;
  EXPECT_TRUE(HasError(answers[0], "evaluation", "OutOfMemory"));
  EXPECT_NE(answers[0].find("\"evaluable\": 2, \"version\": 1"), std::string::npos);
  EXPECT_TRUE(HasError(answers[1], "evaluation", "OutOfMemory")) << answers[1].substr(0, 200);
  EXPECT_NE(answers[2].find("\"value\": 100000000"), std::string::npos) << answers[2];
  EXPECT_NE(answers[4].find("\"value\": 1"), std::string::npos);
  EXPECT_EQ(outcome.status, 1);
}

TEST(Batch, NeedsNoMoreMemoryForMoreRequests) {
  QX_SKIP_UNDER_SANITIZERS();
  std::string input;
  for (int i = 0; i < 200'000; ++i) {
    input += "{\"id\": " + std::to_string(i) + ", \"formula\": \"\\\"" + std::string(100, 'x') + "\\\"\"}\n";
  }
  // All the answers together are longer than the memory that there is.
  EXPECT_EQ(RunProgram({"batch", "--max-memory", "64"}, input).status, 0);
}

}  // namespace
