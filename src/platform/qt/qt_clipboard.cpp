#include "platform/qt/qt_clipboard.h"

#include <QGuiApplication>
#include <QMimeData>

#include "platform/qt/conversions.h"

namespace quorix {

void QtClipboard::PutText(std::u16string_view text) {
    QGuiApplication::clipboard()->setText(ToQString(text), mode_);
}

std::u16string QtClipboard::GetText() {
    return QGuiApplication::clipboard()->text(mode_).toStdU16String();
}

bool QtClipboard::HasText() {
    const QMimeData* data = QGuiApplication::clipboard()->mimeData(mode_);
    return data != nullptr && data->hasText();
}

}  // namespace quorix
