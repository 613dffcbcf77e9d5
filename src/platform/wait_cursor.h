#pragma once

namespace quorix {

/// Shows that the interface is blocked by a calculation. Handles no messages.
class WaitCursor {
  public:
    virtual ~WaitCursor() = default;
    virtual void Show() = 0;
    virtual void Hide() = 0;
};

/// Shows the wait cursor for the life of a scope; a null cursor is allowed.
class WaitCursorScope {
  public:
    explicit WaitCursorScope(WaitCursor* cursor) : cursor_(cursor) {
        if (cursor_ != nullptr) {
            cursor_->Show();
        }
    }
    ~WaitCursorScope() {
        if (cursor_ != nullptr) {
            cursor_->Hide();
        }
    }
    WaitCursorScope(const WaitCursorScope&) = delete;
    WaitCursorScope& operator=(const WaitCursorScope&) = delete;

  private:
    WaitCursor* cursor_;
};

}  // namespace quorix
