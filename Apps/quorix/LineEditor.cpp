#include "LineEditor.hpp"

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <histedit.h>
#include <system_error>

namespace Command {
namespace {

constexpr int KeptLines = 1000;

// Where the lines of earlier times are; empty when the person has no place for such files.
std::filesystem::path GetHistoryFile() {
  const char* state = std::getenv("XDG_STATE_HOME");
  const char* home = std::getenv("HOME");
  std::filesystem::path folder;
  if (state != nullptr && *state == '/') {
    folder = state;
  } else if (home != nullptr && *home == '/') {
    folder = std::filesystem::path(home) / ".local" / "state";
  } else {
    return {};
  }
  return folder / "quorix" / "history";
}

char* GetPrompt(EditLine*) {
  static char prompt[] = "> ";
  return prompt;
}

// The editor counts characters, not bytes.
int CountCharacters(const std::string& text) {
  int count = 0;
  for (const char byte : text) count += (static_cast<unsigned char>(byte) & 0xC0) != 0x80;
  return count;
}

void List(const std::vector<TW::UniString>& words) {
  std::string list = "\n";
  for (const TW::UniString& word : words) list += word.ToUtf8() + "  ";
  std::fprintf(stdout, "%s\n", list.c_str());
  std::fflush(stdout);
}

}  // namespace

class LineEditor::Terminal {
 public:
  explicit Terminal(std::function<Completion(const TW::UniString&)> complete)
      : complete_(std::move(complete)), historyFile_(GetHistoryFile()) {
    // The editor learns from the locale how characters are encoded. This program reads and writes UTF-8 everywhere.
    if (std::setlocale(LC_CTYPE, "C.UTF-8") == nullptr) std::setlocale(LC_CTYPE, "");
    editor_ = el_init("quorix", stdin, stdout, stderr);
    el_set(editor_, EL_CLIENTDATA, this);
    el_set(editor_, EL_PROMPT, GetPrompt);
    el_set(editor_, EL_EDITOR, "emacs");
    el_set(editor_, EL_SIGNAL, 1);
    SetKeys();
    SetHistory();
    el_source(editor_, nullptr);
  }
  Terminal(const Terminal&) = delete;
  Terminal& operator=(const Terminal&) = delete;
  ~Terminal() {
    KeepHistory();
    el_end(editor_);
    history_end(history_);
  }

  bool Next(std::string_view& line) {
    int length = 0;
    const char* text = el_gets(editor_, &length);
    if (text == nullptr || length <= 0) {
      std::fputc('\n', stdout);
      std::fflush(stdout);
      return false;
    }
    line_.assign(text, static_cast<std::size_t>(length));
    while (line_.ends_with('\n') || line_.ends_with('\r')) line_.pop_back();
    HistEvent event;
    if (!line_.empty()) history(history_, &event, H_ENTER, line_.c_str());
    line = line_;
    return true;
  }

 private:
  void SetKeys() {
    // The wide call keeps its texts where they are; the narrow one copies them and never frees the copies.
    el_wset(editor_, EL_ADDFN, L"qx-complete", L"Complete the word before the cursor", &Terminal::OnComplete);
    el_set(editor_, EL_BIND, "^I", "qx-complete", nullptr);
    el_set(editor_, EL_BIND, "^R", "em-inc-search-prev", nullptr);
    // While a line is edited, an interrupt drops the line and not the program.
    el_set(editor_, EL_SETTY, "-d", "-isig", nullptr);
    el_set(editor_, EL_BIND, "^C", "em-kill-line", nullptr);
  }

  void SetHistory() {
    HistEvent event;
    history_ = history_init();
    history(history_, &event, H_SETSIZE, KeptLines);
    history(history_, &event, H_SETUNIQUE, 1);
    if (!historyFile_.empty()) history(history_, &event, H_LOAD, historyFile_.c_str());
    el_set(editor_, EL_HIST, history, history_);
  }

  // A history that cannot be kept is no reason to complain.
  void KeepHistory() {
    if (historyFile_.empty()) return;
    std::error_code error;
    std::filesystem::create_directories(historyFile_.parent_path(), error);
    HistEvent event;
    if (!error) history(history_, &event, H_SAVE, historyFile_.c_str());
  }

  static unsigned char OnComplete(EditLine* editor, int) {
    Terminal* terminal = nullptr;
    el_get(editor, EL_CLIENTDATA, &terminal);
    try {
      return terminal->Complete();
    } catch (...) {
      // Nothing may be thrown through the editor, which is written in C.
      return CC_ERROR;
    }
  }

  unsigned char Complete() {
    const LineInfo* info = el_line(editor_);
    const std::string_view before(info->buffer, static_cast<std::size_t>(info->cursor - info->buffer));
    const Completion completion = complete_(TW::UniString::FromUtf8(before));
    if (completion.words.empty()) return CC_ERROR;
    const TW::UniString common = GetCommonBeginning(completion.words);
    if (common.GetLength() < completion.typed.GetLength() || common == completion.typed) {
      if (completion.words.size() == 1) return CC_ERROR;
      List(completion.words);
      return CC_REDISPLAY;
    }
    Replace(completion.typed.ToUtf8(), common.ToUtf8());
    return CC_REFRESH;
  }

  void Replace(const std::string& typed, const std::string& word) {
    if (!typed.empty()) el_deletestr(editor_, CountCharacters(typed));
    el_insertstr(editor_, word.c_str());
  }

  std::function<Completion(const TW::UniString&)> complete_;
  std::filesystem::path historyFile_;
  EditLine* editor_ = nullptr;
  History* history_ = nullptr;
  std::string line_;
};

LineEditor::LineEditor(std::function<Completion(const TW::UniString&)> complete)
    : terminal_(std::make_unique<Terminal>(std::move(complete))) {}

LineEditor::~LineEditor() = default;

bool LineEditor::Next(std::string_view& line) { return terminal_->Next(line); }

}  // namespace Command
