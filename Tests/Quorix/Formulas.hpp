#pragma once

#include "Quorix/FormulaSteps.hpp"
#include "Quorix/Values.hpp"

#include <gtest/gtest.h>

#include <ostream>

/// What tests do with formulas, and how their messages show it.

/// A new node with its operands.
template <class Node, class... Children>
TW::Ref<Node> MakeNode(const TW::Ref<Children>&... children) {
  TW::Ref<Node> node = TW::MakeRef<Node>();
  (node->AddChild(children), ...);
  return node;
}

inline void PrintTo(const Outcome& outcome, std::ostream* out) {
  outcome.failure.empty() ? PrintTo(outcome.value, out) : void(*out << outcome.failure);
}
