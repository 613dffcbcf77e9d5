// Linked into a windowed program it ends the program right behind its first painted window, so that the life
// of the process is the time to the first paint.

#include <QCoreApplication>
#include <QEvent>
#include <QObject>
#include <QTimer>
#include <QWidget>

namespace {

class FirstPaintFilter : public QObject {
  public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override {
        const auto* const widget = qobject_cast<QWidget*>(watched);
        if (!seen_ && event->type() == QEvent::Paint && widget != nullptr && widget->isWindow()) {
            seen_ = true;
            // Children are painted behind their window; the queue comes to this when all of it is done.
            QTimer::singleShot(0, [] { QCoreApplication::exit(0); });
        }
        return false;
    }

  private:
    bool seen_ = false;
};

void WatchForPaint() {
    auto* const application = QCoreApplication::instance();
    application->installEventFilter(new FirstPaintFilter(application));
}

}  // namespace

Q_COREAPP_STARTUP_FUNCTION(WatchForPaint)
