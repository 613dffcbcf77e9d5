#pragma once

#include <QLocalServer>
#include <QString>
#include <filesystem>
#include <functional>

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
    /// another one runs: it has been asked to show itself, and the caller ends. The socket of an instance
    /// that was killed is taken over. Where no socket can be made every instance is a first one. Needs a
    /// running QApplication; may take a second when another start does the same just now; handles no
    /// messages.
    bool TryBecomeFirst();

    /// Name of the socket.
    [[nodiscard]] const QString& Name() const { return name_; }

  private:
    [[nodiscard]] bool AskOtherToRaise() const;

    QString name_;
    std::function<void()> raise_;
    QLocalServer server_;
};

}  // namespace quorix
