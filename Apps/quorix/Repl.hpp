#pragma once

#include "CommandEntry.hpp"
#include "CommonOptions.hpp"
#include "Completion.hpp"
#include "PropertySheet.hpp"
#include "Session.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace Command {

/// A conversation: takes lines, which are formulas or begin with a colon, and answers each at once.
class Repl {
 public:
  /// Keeps references to all three. The options are those in `table`, with which the person began.
  Repl(CommonOptions& common, OptionTable& table, const Call& call);

  /// Answers a line; gives false when it ends the conversation.
  bool Take(std::string_view line);
  /// Tells that a line cannot be answered.
  void Refuse(std::string_view reason);
  /// What may be typed next.
  Completion Complete(const TW::UniString& beforeCursor);

  /// Whether every line so far could be answered.
  Status GetStatus() const { return status_; }

 private:
  struct CommandRow;
  static const CommandRow Commands[];
  static const CommandRow* FindCommand(std::string_view name);
  static std::vector<TW::UniString> GetCommandNames();

  void RunCommand(std::string_view name, std::string_view rest);
  void SetProperty(std::string_view assignment);
  void SetFormula(const TW::Guid& propertyId, std::string_view formula);
  void ListProperties();
  void SetUnits(std::string_view words);
  void SetLocale(std::string_view tag);
  void ChangeOptions(const std::vector<std::string_view>& arguments);
  void ShowFunctions(std::string_view name);
  void ShowTree(std::string_view formula);
  void ShowHelp(std::string_view);
  void Quit(std::string_view) { ended_ = true; }

  void NoteOutcome(const Session::Formula& formula);
  TW::UniString GetName(const TW::Guid& propertyId);
  std::string GetPath(const TW::Array<TW::Guid>& cycle);
  std::vector<TW::UniString> GetPropertyNames();

  CommonOptions& common_;
  OptionTable& table_;
  const Call& call_;
  Session session_;
  PropertySheet sheet_;
  Status status_ = Status::Success;
  bool ended_ = false;
};

}  // namespace Command
