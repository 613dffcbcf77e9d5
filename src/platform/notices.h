#pragma once

#include <string>
#include <vector>

namespace quorix {

/// A notice that lies over the window until it is answered or its time is over.
struct Notice {
    struct Action {
        int command = 0;
        std::u16string label;
    };
    std::u16string title;
    std::u16string text;
    std::vector<Action> actions;
    int seconds = 0;
};

/// Shows notices that stop nothing. A tapped action reaches the owner as its command, through the message
/// loop.
class Notices {
  public:
    virtual ~Notices() = default;
    /// Returns at once and handles no messages; a notice that is still shown is replaced.
    virtual void Show(const Notice& notice) = 0;
};

}  // namespace quorix
