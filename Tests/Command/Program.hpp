#pragma once

#include <string>
#include <sys/types.h>
#include <vector>

/// Starts the real program, in the locale "C".

struct Outcome {
  int status = -1;  ///< -1 when the program was ended by a signal
  std::string out;
  std::string err;
};

/// Runs the program to its end.
Outcome RunProgram(const std::vector<std::string>& arguments, const std::string& input = {});

/// Starts the program with these files as its three streams. Gives its process, or a number below 0.
pid_t StartProgram(const std::vector<std::string>& arguments, int in, int out, int err);
/// Waits for its end and gives its status.
int WaitForProgram(pid_t process);

/// The parts of a text between line ends; nothing follows the last one.
std::vector<std::string> SplitLines(const std::string& text);
