#pragma once

#include "platform/clipboard.h"

namespace quorix {

/// The desktop's clipboard through Qt; needs a running QApplication.
class QtClipboard : public Clipboard {
  public:
    void PutText(std::u16string_view text) override;
    std::u16string GetText() override;
    bool HasText() override;
};

}  // namespace quorix
