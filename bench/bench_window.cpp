// The main window: a fresh process up to its first paint beside a program that shows one label, and repaints
// beside a repaint of everything.

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QApplication>
#include <filesystem>
#include <string>

#include "platform/program_folder.h"
#include "platform/qt/fonts.h"
#include "ratio_report.h"
#include "shell/main_frame_wnd.h"

namespace quorix {
namespace {

/// Runs a program beside this one to its end, its messages unseen; false when it cannot run or fails.
bool Run(const char* name) {
    std::string path = (ExecutableFolder() / name).string();
    char* const arguments[] = {path.data(), nullptr};
    posix_spawn_file_actions_t files;
    ::posix_spawn_file_actions_init(&files);
    ::posix_spawn_file_actions_addopen(&files, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    pid_t process = 0;
    const bool started = ::posix_spawn(&process, path.c_str(), &files, nullptr, arguments, environ) == 0;
    ::posix_spawn_file_actions_destroy(&files);
    int status = 0;
    return started && ::waitpid(process, &status, 0) == process && status == 0;
}

bench::Body ProcessOf(const char* name) {
    return [name](benchmark::State& state) {
        for (auto _ : state) {
            if (!Run(name)) {
                state.SkipWithError("the program does not run");
                return;
            }
        }
    };
}

void PaintNow(MainFrameWnd& window) {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::UpdateRequest);
    benchmark::DoNotOptimize(window);
}

/// Calls change(window, whether the count is odd) and paints what it marks.
template <class Change>
bench::Body RepaintAfter(MainFrameWnd& window, Change change) {
    return [&window, change](benchmark::State& state) {
        bool odd = false;
        for (auto _ : state) {
            change(window, odd);
            PaintNow(window);
            odd = !odd;
        }
        // Leaves the window as it was.
        if (odd) {
            change(window, odd);
            PaintNow(window);
        }
    };
}

void RegisterRepaints(MainFrameWnd& window) {
    const auto everything = RepaintAfter(window, [](MainFrameWnd& shown, bool) { shown.InvalidateAll(); });
    const Rect key = CellRect(Orientation::portrait, {Panel::upper, CELL_SHIFT}).Scaled(window.Scale());
    const Point inKey{key.left + key.Width() / 2, key.top + key.Height() / 2};
    const auto press = RepaintAfter(window, [inKey](MainFrameWnd& shown, bool odd) {
        // The press and the release of one key, each with its own repaint.
        odd ? shown.Frame().ButtonUp(inKey) : shown.Frame().ButtonDown(inKey);
    });
    const auto switchCategory = RepaintAfter(window, [](MainFrameWnd& shown, bool odd) {
        shown.Frame().SwitchCategory(odd ? CATEGORY_ARITHMETIC : CATEGORY_TRIGONOMETRY);
    });
    const auto switchWindow = RepaintAfter(window, [](MainFrameWnd& shown, bool odd) {
        shown.Frame().SwitchCategory(odd ? CATEGORY_ARITHMETIC : CATEGORY_MACROS);
    });
    const auto changeSkin = RepaintAfter(window, [](MainFrameWnd& shown, bool odd) {
        Preferences settings = shown.Frame().UserSettings();
        settings.skinFile = odd ? u"default.inf" : u"Black Skin.inf";
        shown.Frame().ApplyPreferences(settings);
    });
    bench::RegisterPair("key press : full repaint", press, everything, 0.2);
    bench::RegisterPair("category : full repaint", switchCategory, everything, 3.0);
    bench::RegisterPair("category with a window : full repaint", switchWindow, everything, 3.0);
    bench::RegisterPair("skin : full repaint", changeSkin, everything, 10.0);
}

}  // namespace
}  // namespace quorix

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    quorix::LoadShippedFonts(quorix::ExecutableFolder() / "fonts");
    quorix::MainFrameWnd window(quorix::ExecutableFolder());
    if (!window.Create()) {
        return 1;
    }
    window.show();
    QApplication::processEvents();
    quorix::bench::RegisterPair("first paint : one label", quorix::ProcessOf("first_paint_window"),
                                quorix::ProcessOf("first_paint_label"), 1.5);
    quorix::RegisterRepaints(window);
    return quorix::bench::RunPairs(argc, argv);
}
