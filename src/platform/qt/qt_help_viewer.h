#pragma once

#include "platform/help_viewer.h"

namespace quorix {

/// Asks the desktop's opener, "xdg-open". What it starts outlives the program.
class QtHelpViewer : public HelpViewer {
  public:
    bool Open(const std::filesystem::path& html, std::function<void()> failed) override;
};

}  // namespace quorix
