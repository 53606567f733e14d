// The editor's popup menu on the screen.
#pragma once

#include <QMenu>
#include <functional>
#include <memory>
#include <vector>

#include "models/PopupMenu.h"

namespace tessel {

/// Shows a PopupMenu where `position` says (in global coordinates) whenever the model opens it, and
/// returns at once. The actions carry the items' names as object names.
class PopupMenuView : public QMenu {
  Q_OBJECT

 public:
  PopupMenuView(PopupMenu& model, std::function<QPoint()> position, QWidget* parent);

 private:
  void Build(QMenu& menu, const std::vector<MenuItem>& items);
  void Draw();

  PopupMenu& model_;
  Subscription refresh_;
  Subscription opened_;
};

}  // namespace tessel
