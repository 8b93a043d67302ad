#include "Program.hpp"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <memory>
#include <spawn.h>
#include <string_view>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace {

using File = std::unique_ptr<FILE, int (*)(FILE*)>;

File MakeFile(const std::string& content = {}) {
  File file(std::tmpfile(), std::fclose);
  std::fwrite(content.data(), 1, content.size(), file.get());
  std::rewind(file.get());
  return file;
}

std::string ReadFile(FILE* file) {
  std::string content;
  std::rewind(file);
  char part[65536];
  for (std::size_t count = 0; (count = std::fread(part, 1, sizeof(part), file)) > 0;) content.append(part, count);
  return content;
}

bool IsOfLocale(std::string_view variable) { return variable.starts_with("LC_") || variable.starts_with("LANG"); }

std::vector<char*> MakeEnvironment() {
  static char locale[] = "LC_ALL=C";
  std::vector<char*> variables{locale};
  for (char** variable = environ; *variable != nullptr; ++variable) {
    if (!IsOfLocale(*variable)) variables.push_back(*variable);
  }
  variables.push_back(nullptr);
  return variables;
}

}  // namespace

pid_t StartProgram(const std::vector<std::string>& arguments, int in, int out, int err) {
  std::vector<std::string> all{QX_COMMAND_PROGRAM};
  all.insert(all.end(), arguments.begin(), arguments.end());
  std::vector<char*> pointers;
  for (std::string& argument : all) pointers.push_back(argument.data());
  pointers.push_back(nullptr);
  std::vector<char*> variables = MakeEnvironment();

  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, in, STDIN_FILENO);
  posix_spawn_file_actions_adddup2(&actions, out, STDOUT_FILENO);
  posix_spawn_file_actions_adddup2(&actions, err, STDERR_FILENO);
  pid_t process = -1;
  const int error = posix_spawn(&process, pointers.front(), &actions, nullptr, pointers.data(), variables.data());
  posix_spawn_file_actions_destroy(&actions);
  return error == 0 ? process : -1;
}

int WaitForProgram(pid_t process) {
  int status = 0;
  while (::waitpid(process, &status, 0) < 0) {
    if (errno != EINTR) return -1;
  }
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

Outcome RunProgram(const std::vector<std::string>& arguments, const std::string& input) {
  const File in = MakeFile(input);
  const File out = MakeFile();
  const File err = MakeFile();
  const pid_t process = StartProgram(arguments, fileno(in.get()), fileno(out.get()), fileno(err.get()));
  if (process < 0) return {};
  const int status = WaitForProgram(process);
  return {status, ReadFile(out.get()), ReadFile(err.get())};
}

std::vector<std::string> SplitLines(const std::string& text) {
  std::vector<std::string> lines;
  for (std::size_t begin = 0; begin < text.size();) {
    const std::size_t end = std::min(text.find('\n', begin), text.size());
    lines.push_back(text.substr(begin, end - begin));
    begin = end + 1;
  }
  return lines;
}
