#pragma once

#include <functional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace Command {

/// The arguments make no sense; the message is a sentence for whoever typed them.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// A value that was given to an option.
struct OptionValue {
  std::string_view option;  ///< the name of the option, as people write it
  std::string_view text;
};

/// The options of a command. They begin with two hyphens and a letter and may stand anywhere, as `--name VALUE` or
/// `--name=VALUE`; after `--` there are none. Everything else is an operand, so that formulas may begin with a sign.
class OptionTable {
 public:
  OptionTable();
  OptionTable(const OptionTable&) = delete;
  OptionTable& operator=(const OptionTable&) = delete;

  /// Both names and texts must last as long as the table. `take` may throw `UsageError`.
  void AddFlag(std::string_view name, std::string_view help, std::function<void()> take);
  void AddValue(std::string_view name, std::string_view valueName, std::string_view help,
                std::function<void(const OptionValue&)> take);
  /// An option of two values, `--name FIRST SECOND`, or `--name=FIRST SECOND`.
  void AddPair(std::string_view name, std::string_view valueNames, std::string_view help,
               std::function<void(std::string_view, std::string_view)> take);

  /// Takes the options and gives the operands. Throws `UsageError`.
  std::vector<std::string_view> Take(std::span<const std::string_view> arguments);
  /// Whether `--help` or `-h` was among the arguments taken.
  bool IsHelpAsked() const { return helpAsked_; }
  /// One line for each option.
  std::string GetHelp() const;

 private:
  struct Option {
    std::string_view name;
    std::string_view valueNames;  ///< empty for a flag
    std::string_view help;
    std::size_t valueCount;  ///< at most two
    std::function<void(const OptionValue& first, std::string_view second)> take;
  };

  const Option& Find(std::string_view name) const;
  std::string SuggestOption(std::string_view name) const;
  /// Gives how many of the arguments it took.
  std::size_t TakeOption(std::span<const std::string_view> arguments) const;

  std::vector<Option> options_;
  bool helpAsked_ = false;
};

}  // namespace Command
