#include "qt/views/PopupMenuView.h"

#include <utility>

#include "qt/base/Mnemonics.h"
#include "qt/base/QtText.h"

namespace tessel {

PopupMenuView::PopupMenuView(PopupMenu& model, std::function<QPoint()> position, QWidget* parent)
    : QMenu(parent), model_(model) {
  Build(*this, model_.Items());
  refresh_ = model_.Refresh.Connect([this] { Draw(); });
  opened_ = model_.Opened.Connect([this, at = std::move(position)] {
    Draw();
    popup(at());
  });
}

// The tree is the design's own and never changes; only what can be chosen does.
void PopupMenuView::Build(QMenu& menu, const std::vector<MenuItem>& items) {
  for (const MenuItem& item : items) {
    const QString caption = ShownText(item.caption);
    if (item.IsSeparator()) {
      menu.addSeparator();
    } else if (!item.children.empty()) {
      QMenu* child = menu.addMenu(caption);
      child->setAccessibleName(PlainCaption(caption));
      child->menuAction()->setObjectName(QString::fromStdString(item.name));
      Build(*child, item.children);
    } else {
      QAction* action = menu.addAction(caption);
      action->setObjectName(QString::fromStdString(item.name));
      connect(action, &QAction::triggered, this, [this, name = item.name] { model_.Choose(name); });
    }
  }
}

void PopupMenuView::Draw() {
  for (QAction* action : findChildren<QAction*>()) {
    const MenuItem* item = model_.Find(action->objectName().toStdString());
    if (item != nullptr) action->setEnabled(item->enabled);
  }
}

}  // namespace tessel
