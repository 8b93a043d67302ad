#include "Command/Program.hpp"
#include "Resources/TemporaryFolder.hpp"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <unistd.h>

// The command when the system refuses its streams.

namespace {

class Descriptor {
 public:
  Descriptor(const std::string& path, int flags) : descriptor_(::open(path.c_str(), flags | O_CLOEXEC, 0600)) {}
  ~Descriptor() { ::close(descriptor_); }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  int Get() const { return descriptor_; }

 private:
  int descriptor_;
};

struct CommandRun {
  int status;
  std::string complaint;
};

CommandRun RunWith(const std::vector<std::string>& arguments, const std::string& in, const std::string& out) {
  const TemporaryFolder folder;
  const std::string complaint = folder.GetFilePath("complaint");
  const Descriptor input(in, O_RDONLY);
  const Descriptor output(out, O_WRONLY);
  const Descriptor error(complaint, O_WRONLY | O_CREAT);
  const int status = WaitForProgram(StartProgram(arguments, input.Get(), output.Get(), error.Get()));
  return {status, ReadFile(complaint)};
}

TEST(CommandFault, ResultsThatNobodyCanTakeAreAFailure) {
  if (!std::filesystem::exists("/dev/full")) GTEST_SKIP() << "this system has no /dev/full";
  const TemporaryFolder folder;
  const std::string requests = folder.GetFilePath("requests");
  // More than is kept back before it is written.
  std::string lines;
  for (int i = 0; i < 5000; ++i) lines += "{\"formula\": \"1 + 2\"}\n";
  WriteFile(requests, lines);
  const std::vector<std::vector<std::string>> calls = {
      {"eval", "1 + 2"},           {"tree", "1 + 2"},       {"functions"}, {"batch"},
      {"functions", "SUBSTITUTE"}, {"functions", "--help"}, {"--version"},
  };
  for (const std::vector<std::string>& call : calls) {
    const CommandRun run = RunWith(call, requests, "/dev/full");
    EXPECT_EQ(run.status, 2) << call.front();
    EXPECT_NE(run.complaint.find("quorix: The results could not be written: No space left on device."),
              std::string::npos)
        << call.front() << ": " << run.complaint;
  }
}

TEST(CommandFault, RequestsThatCannotBeReadAreAFailure) {
  const CommandRun run = RunWith({"batch"}, TemporaryFolder().GetPath(), "/dev/null");
  EXPECT_EQ(run.status, 2);
  EXPECT_NE(run.complaint.find("quorix: Standard input could not be read: "), std::string::npos) << run.complaint;
}

}  // namespace
