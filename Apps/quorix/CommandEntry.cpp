#include "CommandEntry.hpp"

#include "CommandText.hpp"

#include <algorithm>
#include <cstring>

namespace Command {
namespace {

std::vector<const CommandEntry*>& GetEntries() {
  static std::vector<const CommandEntry*> entries;
  return entries;
}

}  // namespace

CommandEntry::CommandEntry(std::string_view name, std::string_view operands, std::string_view summary,
                           Status (*run)(const Call&))
    : name_(name), operands_(operands), summary_(summary), run_(run) {
  GetEntries().push_back(this);
}

TW::Optional<std::vector<std::string_view>> CommandEntry::Take(const Call& call, OptionTable& options) const {
  std::vector<std::string_view> operands = options.Take(call.arguments);
  if (!options.IsHelpAsked()) return operands;
  std::string& out = call.results.GetBuffer();
  out.append("Usage: quorix ").append(name_).append(" [OPTION...]");
  if (!operands_.empty()) out.append(" ").append(operands_);
  out.append("\n").append(summary_).append(".\n\nOptions:\n").append(options.GetHelp());
  return {};
}

Status RefuseInput(const Call& call, int error) {
  const std::string_view reason = std::strerror(error);
  call.diagnostics.GetBuffer().append("quorix: ").append(MakeText(CommandText::InputNotRead, reason)).append("\n");
  return Status::Unusable;
}

std::vector<const CommandEntry*> GetCommands() {
  std::vector<const CommandEntry*> commands = GetEntries();
  std::sort(commands.begin(), commands.end(),
            [](const CommandEntry* a, const CommandEntry* b) { return a->GetName() < b->GetName(); });
  return commands;
}

}  // namespace Command
