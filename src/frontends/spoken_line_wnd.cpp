#include "frontends/spoken_line_wnd.h"

#include <QAccessibleWidget>

namespace quorix {

namespace {

class AccessibleLine : public QAccessibleWidget {
  public:
    AccessibleLine(QWidget* window, const SpokenLine& line)
        : QAccessibleWidget(window, line.IsEditable() ? QAccessible::EditableText : QAccessible::StaticText),
          line_(line) {}

    [[nodiscard]] QString text(QAccessible::Text which) const override {
        return which == QAccessible::Value ? line_.SpokenText() : QAccessibleWidget::text(which);
    }

  private:
    const SpokenLine& line_;
};

QAccessibleInterface* NewAccessibleLine(const QString& /*className*/, QObject* object) {
    auto* const window = qobject_cast<QWidget*>(object);
    const auto* const line = dynamic_cast<SpokenLine*>(object);
    // Qt owns the interface.
    return window != nullptr && line != nullptr ? new AccessibleLine(window, *line) : nullptr;
}

}  // namespace

void MakeSpokenLinesAccessible() {
    static const bool installed = [] {
        QAccessible::installFactory(NewAccessibleLine);
        return true;
    }();
    static_cast<void>(installed);
}

void AnnounceText(QWidget& window, const QString& text) {
    if (QAccessible::isActive()) {
        QAccessibleValueChangeEvent event(&window, text);
        QAccessible::updateAccessibility(&event);
    }
}

}  // namespace quorix
