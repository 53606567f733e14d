// The toolbar on the screen.
#pragma once

#include <QAction>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>
#include <map>
#include <string>
#include <vector>

#include "models/Toolbar.h"

namespace tessel {

/// Shows a Toolbar. The button's action and its tool button carry its key as object name; the items
/// of its menu stand in the menu in their order, separators included.
class ToolbarView : public QToolBar {
  Q_OBJECT

 public:
  ToolbarView(Toolbar& model, QWidget* parent);

  /// The action of a button, or null.
  QAction* ActionOf(const std::string& key) const;

  /// Words stand beside the icons, or not, as at first.
  void ShowWords(bool words);

  /// Down, Alt+Down and F4 open the drop-down of the button that has the focus; Left and Right go
  /// from button to button.
  bool eventFilter(QObject* watched, QEvent* event) override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void AddButton(const ToolbarButton& button);
  void MoveFocus(const QToolButton& from, int by);
  void Draw();
  void DrawMenu(QMenu& menu, const ToolbarButton& button);

  Toolbar& model_;
  std::map<std::string, QAction*> actions_;
  std::map<QMenu*, std::vector<ButtonMenuItem>> shownMenus_;
  Subscription refresh_;
};

}  // namespace tessel
