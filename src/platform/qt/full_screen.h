#pragma once

#include <QWidget>
#include <functional>

namespace quorix {

/// The whole screen as a ground for one window in its middle.
class FullScreenGround : public QWidget {
  public:
    /// `left` runs when the ground is closed by the desktop.
    FullScreenGround(const QColor& colour, std::function<void()> left);

    /// Takes the window in and covers its screen.
    void Take(QWidget& window);
    /// Gives the window back as one of its own and hides.
    void GiveBack(QWidget& window);
    /// The largest factor by which a window of this size could grow here.
    [[nodiscard]] double RoomFor(QSize size) const;

  protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Centre();

    std::function<void()> left_;
    QWidget* window_ = nullptr;
};

}  // namespace quorix
