#pragma once

#include "OptionTable.hpp"
#include "Output.hpp"
#include "TW/Optional.hpp"

#include <span>
#include <string_view>
#include <vector>

namespace Command {

/// The statuses with which the program ends.
enum class Status { Success = 0, FormulaFailed = 1, Unusable = 2 };

/// What a command works with: the arguments after its name, and where results and diagnostics go.
struct Call {
  std::span<const std::string_view> arguments;
  Output& results;
  Output& diagnostics;
};

/// A command of the program. A static object of this class in the command's file makes it known.
class CommandEntry {
 public:
  /// `run` may throw `UsageError`. Everything must last as long as the program.
  CommandEntry(std::string_view name, std::string_view operands, std::string_view summary, Status (*run)(const Call&));
  CommandEntry(const CommandEntry&) = delete;
  CommandEntry& operator=(const CommandEntry&) = delete;

  std::string_view GetName() const { return name_; }
  /// Its operands and what it does, in a line each.
  std::string_view GetOperands() const { return operands_; }
  std::string_view GetSummary() const { return summary_; }
  Status Run(const Call& call) const { return run_(call); }

  /// Takes the options of a call and gives the operands. When the call asks for help, writes it and gives nothing.
  TW::Optional<std::vector<std::string_view>> Take(const Call& call, OptionTable& options) const;

 private:
  std::string_view name_;
  std::string_view operands_;
  std::string_view summary_;
  Status (*run_)(const Call&);
};

/// Tells that standard input could not be read, for the system's reason.
Status RefuseInput(const Call& call, int error);

/// All commands by name.
std::vector<const CommandEntry*> GetCommands();

}  // namespace Command
