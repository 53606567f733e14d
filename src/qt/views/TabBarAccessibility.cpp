#include "qt/views/TabBarAccessibility.h"

#include <QPointer>

namespace tessel {
namespace {

class TabInterface : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  TabInterface(TabBar& bar, int index) : bar_(&bar), index_(index) {}

  int Index() const { return index_; }

  bool isValid() const override { return bar_ != nullptr && index_ < bar_->count(); }
  QObject* object() const override { return nullptr; }
  QWindow* window() const override { return bar_ ? bar_->window()->windowHandle() : nullptr; }
  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(bar_);
  }
  int childCount() const override { return 0; }
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  QAccessible::Role role() const override { return QAccessible::PageTab; }
  QString text(QAccessible::Text which) const override;
  void setText(QAccessible::Text, const QString&) override {}
  QRect rect() const override;
  QAccessible::State state() const override;
  void* interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                : nullptr;
  }

  QStringList actionNames() const override { return {pressAction()}; }
  void doAction(const QString& action) override {
    if (!isValid() || !bar_->isEnabled() || action != pressAction()) return;
    if (bar_->currentIndex() == index_) emit bar_->pressedAgain();
    bar_->setCurrentIndex(index_);
  }
  QStringList keyBindingsForAction(const QString&) const override { return {}; }

 private:
  QPointer<TabBar> bar_;
  int index_;
};

QString TabInterface::text(QAccessible::Text which) const {
  if (!isValid()) return {};
  if (which == QAccessible::Name) return bar_->NameOfTab(index_);
  return which == QAccessible::Description ? bar_->tabToolTip(index_) : QString();
}

QRect TabInterface::rect() const {
  if (!isValid()) return {};
  const QRect tab = bar_->tabRect(index_);
  return {bar_->mapToGlobal(tab.topLeft()), tab.size()};
}

QAccessible::State TabInterface::state() const {
  QAccessible::State state;
  if (!isValid()) {
    state.invalid = true;
    return state;
  }
  const bool current = bar_->currentIndex() == index_;
  state.disabled = !bar_->isEnabled() || !bar_->isTabEnabled(index_);
  state.invisible = !bar_->isVisible() || !bar_->isTabVisible(index_);
  state.offscreen = !bar_->rect().intersects(bar_->tabRect(index_));
  state.selectable = true;
  state.selected = current;
  state.focusable = true;
  state.focused = current && bar_->hasFocus();
  return state;
}

}  // namespace

TabBarInterface::TabBarInterface(TabBar& bar)
    : QAccessibleWidget(&bar, QAccessible::PageTabList), bar_(bar) {}

TabBarInterface::~TabBarInterface() {
  for (const QAccessible::Id tab : tabs_) QAccessible::deleteAccessibleInterface(tab);
}

int TabBarInterface::childCount() const { return bar_.count() + QAccessibleWidget::childCount(); }

QAccessibleInterface* TabBarInterface::child(int index) const {
  if (index < 0) return nullptr;
  if (index >= bar_.count()) return QAccessibleWidget::child(index - bar_.count());
  while (std::ssize(tabs_) <= index) {
    tabs_.push_back(QAccessible::registerAccessibleInterface(
        new TabInterface(bar_, static_cast<int>(std::ssize(tabs_)))));
  }
  return QAccessible::accessibleInterface(tabs_[static_cast<std::size_t>(index)]);
}

QAccessibleInterface* TabBarInterface::childAt(int x, int y) const {
  const QPoint at = bar_.mapFromGlobal(QPoint(x, y));
  if (bar_.childAt(at) != nullptr) return QAccessibleWidget::childAt(x, y);
  return child(bar_.tabAt(at));
}

QAccessibleInterface* TabBarInterface::focusChild() const {
  return bar_.hasFocus() ? child(bar_.currentIndex()) : QAccessibleWidget::focusChild();
}

int TabBarInterface::indexOfChild(const QAccessibleInterface* child) const {
  if (const auto* tab = dynamic_cast<const TabInterface*>(child)) return tab->Index();
  const int part = QAccessibleWidget::indexOfChild(child);
  return part < 0 ? part : bar_.count() + part;
}

}  // namespace tessel
