#pragma once

#include <string>
#include <string_view>

namespace quorix {

/// The desktop's text clipboard. Calls may take long when another program owns it, but handle no messages of
/// ours.
class Clipboard {
  public:
    virtual ~Clipboard() = default;
    virtual void PutText(std::u16string_view text) = 0;
    /// Empty when there is no text.
    virtual std::u16string GetText() = 0;
    virtual bool HasText() = 0;
};

}  // namespace quorix
