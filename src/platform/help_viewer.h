#pragma once

#include <filesystem>
#include <functional>

namespace quorix {

/// Shows a help file with what the desktop has for it.
class HelpViewer {
  public:
    virtual ~HelpViewer() = default;
    /// Hands a local HTML file to the desktop and returns at once, without handling messages. False when the
    /// file is absent or the machine has nothing that opens files: the caller then shows it in a window of
    /// its own. The desktop may also give up later; `failed` then runs once, from the message loop.
    virtual bool Open(const std::filesystem::path& html, std::function<void()> failed) = 0;
};

}  // namespace quorix
