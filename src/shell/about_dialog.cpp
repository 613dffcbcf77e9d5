#include "shell/about_dialog.h"

#include <QMessageBox>

#include "shell/version.h"

namespace quorix {

void ShowAbout(QWidget* parent) {
    auto* const box = new QMessageBox(parent);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowTitle(QStringLiteral("About"));
    box->setText(QStringLiteral("<b>Quorix %1</b>").arg(QString::fromLatin1(kVersion)));
    box->setInformativeText(QStringLiteral(
        "A scientific calculator with 336-bit numbers, about 101 decimal digits, over the complex "
        "plane.<br><br>Texts are set in Roboto and DejaVu Sans; windows are drawn by Qt."));
    box->open();
}

}  // namespace quorix
