#pragma once

#include "FuzzInput.hpp"
#include "Host/Files/FileProblems.hpp"

#include <string_view>

/// What must hold of the problems that are told of a text file.
inline void CheckProblems(const Host::FileProblems& problems, std::string_view text) {
  Require(problems.GetList().size() <= problems.GetCount(), "problems that are kept count");
  for (const Host::FileProblem& problem : problems.GetList()) {
    Require(!problem.message.IsEmpty(), "a problem has a message");
    // A line has at least the byte that ends it, and a character at least one byte.
    Require(problem.line <= text.size() + 1, "a problem lies on a line of the text");
    Require(problem.column <= text.size() + 1, "a problem lies within its line");
    Require(!problem.isFatal || problems.HasFatal(), "a fatal problem is known to be there");
  }
}
