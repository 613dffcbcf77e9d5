#include "platform/qt/qt_help_viewer.h"

#include <QProcess>
#include <QStandardPaths>
#include <system_error>

namespace quorix {

bool QtHelpViewer::Open(const std::filesystem::path& html, std::function<void()> failed) {
    const QString opener = QStandardPaths::findExecutable(QStringLiteral("xdg-open"));
    std::error_code error;
    if (opener.isEmpty() || !std::filesystem::is_regular_file(html, error)) {
        return false;
    }
    // QDesktopServices would not tell that no browser was found; the opener's exit code does. The process
    // object deletes itself; where the browser is still open at the program's end it is left alone with it.
    auto* process = new QProcess;
    process->setProgram(opener);
    process->setArguments({QString::fromStdString(std::filesystem::absolute(html, error).string())});
    process->setStandardInputFile(QProcess::nullDevice());
    process->setStandardOutputFile(QProcess::nullDevice());
    process->setStandardErrorFile(QProcess::nullDevice());
    const auto ended = [process, failed = std::move(failed)](bool opened) {
        process->deleteLater();
        if (!opened) {
            failed();
        }
    };
    QObject::connect(process, &QProcess::finished, [ended](int exitCode, QProcess::ExitStatus status) {
        ended(status == QProcess::NormalExit && exitCode == 0);
    });
    QObject::connect(process, &QProcess::errorOccurred, [ended](QProcess::ProcessError problem) {
        if (problem == QProcess::FailedToStart) {
            ended(false);
        }
    });
    process->start();
    return true;
}

}  // namespace quorix
