#include <gtest/gtest.h>

#include <QApplication>

#include "platform/program_folder.h"
#include "platform/qt/fonts.h"

// Window tests paint with the fonts and pictures that are staged beside them.
int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QApplication application(argc, argv);
    if (!quorix::LoadShippedFonts(quorix::ExecutableFolder() / "fonts")) {
        return 1;
    }
    return RUN_ALL_TESTS();
}
