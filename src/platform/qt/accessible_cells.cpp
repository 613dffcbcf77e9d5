#include "platform/qt/accessible_cells.h"

#include <QAccessibleWidget>
#include <QPointer>
#include <map>

namespace quorix {

namespace {

/// One painted part. Qt holds it by its id until the window goes.
class AccessibleCell : public QAccessibleInterface, public QAccessibleActionInterface {
  public:
    AccessibleCell(QWidget& window, CellSource& source, int index)
        : window_(&window), source_(source), index_(index) {}

    [[nodiscard]] bool isValid() const override { return window_ != nullptr; }
    [[nodiscard]] QObject* object() const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(window_);
    }
    [[nodiscard]] QAccessibleInterface* child(int) const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    [[nodiscard]] int childCount() const override { return 0; }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    [[nodiscard]] QRect rect() const override {
        const QRect place = source_.AccessibleCellRect(index_);
        return {window_->mapToGlobal(place.topLeft()), place.size()};
    }
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::Button; }
    [[nodiscard]] QString text(QAccessible::Text which) const override {
        return which == QAccessible::Name ? source_.AccessibleCellName(index_) : QString();
    }
    void setText(QAccessible::Text, const QString&) override {}
    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state;
        state.pressed = source_.AccessibleCellDown(index_);
        state.invisible = !window_->isVisible() || source_.AccessibleCellName(index_).isEmpty();
        state.disabled = source_.AccessibleCellName(index_).isEmpty();
        return state;
    }
    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }
    [[nodiscard]] QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString& name) override {
        if (name == pressAction() && isValid()) {
            source_.PressAccessibleCell(index_);
        }
    }
    [[nodiscard]] QStringList keyBindingsForAction(const QString&) const override { return {}; }

  private:
    QPointer<QWidget> window_;
    CellSource& source_;
    int index_;
};

/// The window: its child windows first, then its painted parts.
class AccessibleCellWindow : public QAccessibleWidget {
  public:
    AccessibleCellWindow(QWidget* window, CellSource& source)
        : QAccessibleWidget(window, QAccessible::Client), source_(source) {}
    ~AccessibleCellWindow() override {
        for (const auto& [index, id] : cells_) {
            QAccessible::deleteAccessibleInterface(id);
        }
    }

    [[nodiscard]] int childCount() const override {
        return QAccessibleWidget::childCount() + source_.AccessibleCellCount();
    }
    [[nodiscard]] QAccessibleInterface* child(int index) const override {
        const int windows = QAccessibleWidget::childCount();
        return index < windows ? QAccessibleWidget::child(index) : Cell(index - windows);
    }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override {
        for (const auto& [index, id] : cells_) {
            if (QAccessible::accessibleInterface(id) == child) {
                return QAccessibleWidget::childCount() + index;
            }
        }
        return QAccessibleWidget::indexOfChild(child);
    }
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override {
        for (int i = 0; i < source_.AccessibleCellCount(); ++i) {
            if (QAccessibleInterface* const cell = Cell(i);
                !source_.AccessibleCellName(i).isEmpty() && cell->rect().contains(x, y)) {
                return cell;
            }
        }
        return QAccessibleWidget::childAt(x, y);
    }

  private:
    [[nodiscard]] QAccessibleInterface* Cell(int index) const {
        if (index < 0 || index >= source_.AccessibleCellCount()) {
            return nullptr;
        }
        const auto found = cells_.find(index);
        if (found != cells_.end()) {
            return QAccessible::accessibleInterface(found->second);
        }
        auto* const cell = new AccessibleCell(*widget(), source_, index);
        cells_[index] = QAccessible::registerAccessibleInterface(cell);
        return cell;
    }

    CellSource& source_;
    mutable std::map<int, QAccessible::Id> cells_;
};

QAccessibleInterface* NewAccessibleCells(const QString& /*className*/, QObject* object) {
    auto* const window = qobject_cast<QWidget*>(object);
    auto* const source = dynamic_cast<CellSource*>(object);
    // Qt owns the interface.
    return window != nullptr && source != nullptr ? new AccessibleCellWindow(window, *source) : nullptr;
}

}  // namespace

void MakeCellsAccessible() {
    static const bool installed = [] {
        QAccessible::installFactory(NewAccessibleCells);
        return true;
    }();
    static_cast<void>(installed);
}

bool PressCellNamed(CellSource& source, const QString& name) {
    for (int i = 0; i < source.AccessibleCellCount(); ++i) {
        if (source.AccessibleCellName(i) == name) {
            source.PressAccessibleCell(i);
            return true;
        }
    }
    return false;
}

}  // namespace quorix
