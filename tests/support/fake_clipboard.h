#pragma once

#include <string>

#include "platform/clipboard.h"

namespace quorix::testing {

/// A clipboard that the test reads and fills.
class FakeClipboard : public Clipboard {
  public:
    void PutText(std::u16string_view text) override { content = text; }
    std::u16string GetText() override { return content; }
    bool HasText() override { return !content.empty(); }
    std::u16string content;
};

}  // namespace quorix::testing
