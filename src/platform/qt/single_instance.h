#pragma once

#include <QSocketNotifier>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>

namespace quorix {

/// Keeps one running program per program folder and user. Later starts ask the first one to show itself.
class SingleInstance {
  public:
    /// `raise` runs from the message loop of the first instance, once for each later start.
    SingleInstance(const std::filesystem::path& programFolder, std::function<void()> raise);
    ~SingleInstance();
    SingleInstance(const SingleInstance&) = delete;
    SingleInstance& operator=(const SingleInstance&) = delete;

    /// True when no other instance runs; this one then answers later starts as long as it lives. False when
    /// another one of the same user runs: it has been asked to show itself, and the caller ends. Where no
    /// socket can be made every instance is a first one. Needs a running QApplication; handles no messages.
    bool TryBecomeFirst();

  private:
    [[nodiscard]] bool AskOtherToRaise() const;
    void Accept();

    /// Of an abstract socket: no file, and the name is free again when the program ends, however it ends.
    std::string name_;
    std::function<void()> raise_;
    int listener_ = -1;
    std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace quorix
