#include "console/prompt.h"

#include <histedit.h>

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>

#include "platform/trim.h"

namespace quorix {
namespace {

constexpr int kHistoryLength = 1000;

struct EditLineCloser {
    void operator()(EditLine* editor) const { el_end(editor); }
};
struct HistoryCloser {
    void operator()(History* lines) const { history_end(lines); }
};

char* PromptText(EditLine* /*editor*/) {
    static char text[] = "> ";
    return text;
}

// The lines of earlier sessions. A history that cannot be read or written is no reason to stop.
class LineHistory {
  public:
    LineHistory() : lines_(history_init()), path_(HistoryPath()) {
        HistEvent event;
        history(lines_.get(), &event, H_SETSIZE, kHistoryLength);
        history(lines_.get(), &event, H_SETUNIQUE, 1);
        if (!path_.empty()) history(lines_.get(), &event, H_LOAD, path_.c_str());
    }
    ~LineHistory() {
        if (!path_.empty()) Save();
    }
    LineHistory(const LineHistory&) = delete;
    LineHistory& operator=(const LineHistory&) = delete;

    void Add(const char* line) {
        HistEvent event;
        history(lines_.get(), &event, H_ENTER, line);
    }
    [[nodiscard]] History* Lines() const { return lines_.get(); }

  private:
    // Written beside and renamed into place, so that a crash leaves the old file.
    void Save() {
        std::error_code ignored;
        std::filesystem::create_directories(std::filesystem::path(path_).parent_path(), ignored);
        const std::string fresh = path_ + ".new";
        HistEvent event;
        if (history(lines_.get(), &event, H_SAVE, fresh.c_str()) >= 0) {
            std::filesystem::rename(fresh, path_, ignored);
        }
    }

    std::unique_ptr<History, HistoryCloser> lines_;
    std::string path_;
};

}  // namespace

std::string HistoryPath() {
    const char* dataHome = std::getenv("XDG_DATA_HOME");
    if (dataHome != nullptr && *dataHome == '/') return std::string(dataHome) + "/quorix/history";
    const char* home = std::getenv("HOME");
    if (home == nullptr || *home == '\0') return {};
    return std::string(home) + "/.local/share/quorix/history";
}

void RunPrompt(ConsoleSession& session) {
    std::setlocale(LC_CTYPE, "");  // For the editor's UTF-8; numbers do not depend on it.
    LineHistory lines;
    const std::unique_ptr<EditLine, EditLineCloser> editor(el_init("quorix-calc", stdin, stdout, stderr));
    if (!editor) return;
    el_set(editor.get(), EL_PROMPT, PromptText);
    el_set(editor.get(), EL_EDITOR, "emacs");
    el_set(editor.get(), EL_SIGNAL, 1);
    el_set(editor.get(), EL_HIST, history, lines.Lines());
    el_source(editor.get(), nullptr);
    int length = 0;
    while (const char* text = el_gets(editor.get(), &length)) {
        const std::string_view line = Trimmed(std::string_view(text, static_cast<std::size_t>(length)));
        if (line == "exit" || line == "quit") break;
        if (line.empty()) continue;
        lines.Add(std::string(line).c_str());
        std::string answer;
        std::FILE* stream = session.Evaluate(line, answer) ? stdout : stderr;
        answer.push_back('\n');
        std::fputs(answer.c_str(), stream);
        std::fflush(stream);
    }
    if (length <= 0) std::fputs("\n", stdout);
}

}  // namespace quorix
