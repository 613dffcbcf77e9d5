#include "shell/about_dialog.h"

#include <QMessageBox>

#include "platform/qt/fonts.h"
#include "shell/version.h"

namespace quorix {

void ShowAbout(QWidget* parent, double pixelsPerUnit) {
    auto* const box = new QMessageBox(parent);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setFont(FormFont(pixelsPerUnit));
    box->setWindowTitle(QStringLiteral("About"));
    box->setText(QStringLiteral("<b>Quorix %1</b>").arg(QString::fromLatin1(kVersion)));
    box->setInformativeText(QStringLiteral(
        "A scientific calculator with 336-bit numbers, about 101 decimal digits, over the complex "
        "plane.<br><br>Texts are set in Roboto and DejaVu Sans; windows are drawn by Qt."));
    box->open();
}

}  // namespace quorix
