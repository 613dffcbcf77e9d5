#include "platform/qt/qt_clipboard.h"

#include <QGuiApplication>
#include <QMimeData>

namespace quorix {

void QtClipboard::PutText(std::u16string_view text) {
    QGuiApplication::clipboard()->setText(
        QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size())), mode_);
}

std::u16string QtClipboard::GetText() {
    return QGuiApplication::clipboard()->text(mode_).toStdU16String();
}

bool QtClipboard::HasText() {
    const QMimeData* data = QGuiApplication::clipboard()->mimeData(mode_);
    return data != nullptr && data->hasText();
}

}  // namespace quorix
