// Composition root of the windowed calculator.

#include <QApplication>
#include <QMessageBox>
#include <QTimer>
#include <iostream>
#include <optional>

#include "engine/busy_signal.h"
#include "engine/eval_matrix.h"
#include "matrix/matrix_operators.h"
#include "platform/program_folder.h"
#include "platform/qt/fonts.h"
#include "platform/qt/lazy_sound.h"
#include "platform/qt/qt_help_viewer.h"
#include "platform/qt/qt_wait_cursor.h"
#include "platform/qt/single_instance.h"
#include "platform/qt/termination.h"
#include "shell/main_frame_wnd.h"

namespace {

/// A start nobody watches must not hang on its message.
constexpr int kMessageMs = 15000;

int EndStart(const std::filesystem::path& skin) {
    const std::string message = "The skin file " + skin.string() + " cannot be read.";
    std::cerr << "quorix: " << message << std::endl;
    QMessageBox box(QMessageBox::Critical, QStringLiteral("Quorix"), QString::fromStdString(message));
    QTimer::singleShot(kMessageMs, &box, &QDialog::accept);
    box.exec();
    return 1;
}

}  // namespace

int main(int argc, char** argv) {
    quorix::SetMatrixOperators(quorix::MatrixOperatorTable());
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Quorix"));
    const std::filesystem::path installed = quorix::ExecutableFolder();
    quorix::LoadShippedFonts(installed / "fonts");
    QApplication::setFont(quorix::ScreenFont({}, 1));
    const std::filesystem::path folder = quorix::FindProgramFolder(installed, quorix::UserDataFolder());
    std::optional<quorix::MainFrameWnd> window;
    quorix::SingleInstance instance(folder, [&window] { window->Raise(); });
    if (!instance.TryBecomeFirst()) {
        return 0;
    }
    quorix::LazySound sound;
    quorix::QtHelpViewer helpViewer;
    window.emplace(folder, &sound, &helpViewer);
    if (!window->Create()) {
        return EndStart(window->SkinPathTried());
    }
    window->SetClosed([] { QApplication::quit(); });
    quorix::QtWaitCursor waitCursor;
    quorix::SetBusySignal([&waitCursor](bool busy) { busy ? waitCursor.Show() : waitCursor.Hide(); });
    const quorix::TerminationRequests termination([&window] { window->Quit(); });
    window->show();
    return QApplication::exec();
}
