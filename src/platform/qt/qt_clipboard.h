#pragma once

#include <QClipboard>

#include "platform/clipboard.h"

namespace quorix {

/// The desktop's clipboard through Qt; needs a running QApplication.
class QtClipboard : public Clipboard {
  public:
    /// The text marked with the mouse last, where the desktop keeps one: for the middle key.
    [[nodiscard]] static QtClipboard Selection() { return QtClipboard(QClipboard::Selection); }

    explicit QtClipboard(QClipboard::Mode mode = QClipboard::Clipboard) : mode_(mode) {}
    void PutText(std::u16string_view text) override;
    std::u16string GetText() override;
    bool HasText() override;

  private:
    QClipboard::Mode mode_;
};

}  // namespace quorix
