// The menu bar of the window.
#pragma once

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <functional>
#include <map>

#include "control/ucTessel.h"
#include "host/menu/MenuTable.h"

namespace tessel {

/// Builds the menu bar from the table. The control's own commands are run as their buttons and
/// items run them; what the window does is given by those who do it. Every item can be reached by
/// its keys wherever the focus is; while a command is on its way nothing is run.
class MainMenu : public QObject {
  Q_OBJECT

 public:
  /// `tessel` outlives this.
  MainMenu(QMainWindow& window, ucTessel& tessel);

  /// What that command does. One that nobody has given stays disabled.
  void On(WindowCommand command, std::function<void()> run);
  /// The same for one with a mark, which is set now.
  void OnToggle(WindowCommand command, bool isOn, std::function<void(bool)> run);

  QAction& Action(WindowCommand command) const { return *actions_.at(command); }
  QMenu& SubMenu(WindowCommand command) const { return *Action(command).menu(); }
  QMenu& Of(Menu menu) const { return *menus_.at(menu); }

 private:
  void Add(const MenuRow& row);
  void ConnectToControl(QAction& action, const MenuRow& row);
  void ShowStates();

  QMainWindow& window_;
  ucTessel& tessel_;
  std::map<Menu, QMenu*> menus_;
  std::map<WindowCommand, QAction*> actions_;
  std::map<std::string, QAction*> twoStates_;  // by the key of their button
  Subscription toolbar_;
};

}  // namespace tessel
