#pragma once

#include "Host/Files/FileProblems.hpp"
#include "Resources/Language.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

/// The problems of a file as lines `line:column message`.
inline std::vector<std::string> ShowProblems(const Host::FileProblems& problems) {
  std::vector<std::string> lines;
  for (const Host::FileProblem& problem : problems.GetList()) {
    lines.push_back(std::to_string(problem.line) + ":" + std::to_string(problem.column) + " " +
                    problem.message.ToUtf8());
  }
  return lines;
}

/// Expects the problems to be these, of which each is only the beginning.
inline void ExpectProblems(const Host::FileProblems& problems, const std::vector<std::string>& expected,
                           const std::string& of) {
  const std::vector<std::string> found = ShowProblems(problems);
  for (std::size_t i = 0; i < std::max(found.size(), expected.size()); ++i) {
    const std::string actual = i < found.size() ? found[i] : "nothing";
    const std::string wanted = i < expected.size() ? expected[i] : "nothing";
    EXPECT_EQ(actual.substr(0, wanted.size()), wanted) << of << "\nin full: " << actual;
  }
}
