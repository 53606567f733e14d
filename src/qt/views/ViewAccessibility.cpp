#include "qt/views/ViewAccessibility.h"

#include <QAccessibleWidget>
#include <QMenu>
#include <QToolButton>

#include "qt/views/ButtonViews.h"
#include "qt/views/TabBarAccessibility.h"
#include "qt/views/ToolbarView.h"

namespace tessel {
namespace {

class OptionInterface : public QAccessibleWidget {
 public:
  explicit OptionInterface(OptionButtonView& button)
      : QAccessibleWidget(&button, QAccessible::RadioButton), button_(button) {}

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.checkable = true;
    state.checked = button_.isChecked();
    return state;
  }
  QStringList actionNames() const override {
    const QStringList usual = QAccessibleWidget::actionNames();
    return button_.isEnabled() ? QStringList(toggleAction()) + usual : usual;
  }
  void doAction(const QString& action) override {
    if (action != toggleAction()) return QAccessibleWidget::doAction(action);
    if (button_.isEnabled()) button_.click();
  }

 private:
  OptionButtonView& button_;
};

/// A button of the toolbar that has a list beside it.
class DropDownInterface : public QAccessibleWidget {
 public:
  explicit DropDownInterface(QToolButton& button)
      : QAccessibleWidget(&button, QAccessible::ButtonDropDown), button_(button) {}

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.hasPopup = true;
    state.expandable = true;
    state.expanded = Menu()->isVisible();
    state.collapsed = !state.expanded;
    return state;
  }
  QStringList actionNames() const override {
    const QStringList usual = QAccessibleWidget::actionNames();
    return button_.isEnabled() ? QStringList{pressAction(), showMenuAction()} + usual : usual;
  }
  // Both may stay open for long: whoever asks has an answer first.
  void doAction(const QString& action) override {
    if (action == pressAction()) {
      QMetaObject::invokeMethod(&button_, &QToolButton::click, Qt::QueuedConnection);
    } else if (action == showMenuAction() && button_.isEnabled()) {
      QMetaObject::invokeMethod(&button_, &QToolButton::showMenu, Qt::QueuedConnection);
    } else {
      QAccessibleWidget::doAction(action);
    }
  }

 private:
  QMenu* Menu() const { return button_.defaultAction()->menu(); }

  QToolButton& button_;
};

QAccessibleInterface* DropDownOf(QToolButton& button) {
  const bool ofToolbar = qobject_cast<ToolbarView*>(button.parentWidget()) != nullptr;
  const QAction* action = button.defaultAction();
  if (!ofToolbar || action == nullptr || action->menu() == nullptr) return nullptr;
  return new DropDownInterface(button);
}

// The toolkit asks for the classes of an object, its own first.
QAccessibleInterface* InterfaceOf(const QString& className, QObject* object) {
  if (object == nullptr || className != QLatin1String(object->metaObject()->className())) {
    return nullptr;
  }
  if (auto* option = qobject_cast<OptionButtonView*>(object)) return new OptionInterface(*option);
  if (auto* bar = qobject_cast<TabBar*>(object)) return new TabBarInterface(*bar);
  if (auto* button = qobject_cast<QToolButton*>(object)) return DropDownOf(*button);
  return nullptr;
}

}  // namespace

void InstallViewAccessibility() {
  static const bool installed = [] {
    QAccessible::installFactory(InterfaceOf);
    return true;
  }();
  static_cast<void>(installed);
}

void ForgetAccessibility(QWidget& widget) {
  if (auto* found = QAccessible::queryAccessibleInterface(&widget)) {
    QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(found));
  }
}

}  // namespace tessel
