#pragma once

// The main window in a program folder of its own with the shipped content.

#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <memory>
#include <string>

#include "platform/program_folder.h"
#include "platform/utf8.h"
#include "shell/main_frame_wnd.h"
#include "support/temporary_folder.h"
#include "windows/pointer.h"

namespace quorix::testing {

class FrameWindowTest : public ::testing::Test {
  protected:
    FrameWindowTest() { SeedFolder(ExecutableFolder(), folder_.Path()); }

    std::unique_ptr<MainFrameWnd> Open() {
        auto window = std::make_unique<MainFrameWnd>(folder_.Path());
        EXPECT_TRUE(window->Create());
        window->show();
        return window;
    }
    static void Press(MainFrameWnd& window, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
                      const QString& text = {}) {
        QKeyEvent down(QEvent::KeyPress, key, modifiers, text);
        QKeyEvent up(QEvent::KeyRelease, key, modifiers, text);
        QApplication::sendEvent(&window, &down);
        QApplication::sendEvent(&window, &up);
    }
    static void TypeText(MainFrameWnd& window, const QString& text) {
        for (const QChar character : text) {
            Press(window, 0, Qt::NoModifier, QString(character));
        }
    }
    static std::string Row(MainFrameWnd& window) { return ToUtf8(window.Frame().Display().GetLine()); }
    static std::string Result(MainFrameWnd& window) {
        return ToUtf8(window.Frame().Display().GetResultText());
    }

    TemporaryFolder folder_;
};

}  // namespace quorix::testing
