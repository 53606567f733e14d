#include "host/menu/MainMenu.h"

#include <QMenuBar>
#include <QSignalBlocker>
#include <utility>

#include "qt/base/Mnemonics.h"

namespace tessel {
namespace {

void ChooseDropDownItem(Toolbar& toolbar, const std::string& button, const std::string& key) {
  for (int item = 1; item <= toolbar.MenuCount(button); ++item) {
    if (toolbar.MenuItem(button, item).key == key) return toolbar.PressMenuItem(button, item);
  }
}

void RunOfControl(ucTessel& tessel, const MenuRow& row) {
  HostedControls& controls = tessel.Controls();
  if (tessel.Running()) return;
  if (row.popupItem != nullptr) return controls.mnuRtbPopup.Choose(row.popupItem);
  if (row.dropDownItem == nullptr) return controls.tbToolBar.Press(row.button);
  ChooseDropDownItem(controls.tbToolBar, row.button, row.dropDownItem);
}

QList<QKeySequence> KeysOf(const MenuRow& row) {
  return row.keys == nullptr ? QList<QKeySequence>()
                             : QKeySequence::listFromString(row.keys, QKeySequence::PortableText);
}

/// With its title as the name for assistive technology, too.
QMenu* Named(QMenu* menu) {
  menu->setAccessibleName(PlainCaption(menu->title()));
  return menu;
}

}  // namespace

MainMenu::MainMenu(QMainWindow& window, ucTessel& tessel)
    : QObject(&window), window_(window), tessel_(tessel) {
  window_.menuBar()->setAccessibleName(tr("Menu bar"));
  for (const MenuRow& row : MenuRows()) Add(row);
  toolbar_ = tessel_.Controls().tbToolBar.Refresh.Connect([this] { ShowStates(); });
  ShowStates();
}

void MainMenu::Add(const MenuRow& row) {
  QMenu*& menu = menus_[row.menu];
  if (menu == nullptr) menu = Named(window_.menuBar()->addMenu(Translated(TitleOf(row.menu))));
  if (row.kind == MenuItemKind::kSeparator) {
    menu->addSeparator();
    return;
  }
  QAction* action = row.kind == MenuItemKind::kSubMenu
                        ? Named(menu->addMenu(Translated(row.text)))->menuAction()
                        : menu->addAction(Translated(row.text));
  action->setShortcuts(KeysOf(row));
  action->setCheckable(row.kind == MenuItemKind::kToggle);
  if (row.command == WindowCommand::kNone) {
    ConnectToControl(*action, row);
  } else {
    action->setEnabled(false);
    actions_[row.command] = action;
  }
}

void MainMenu::ConnectToControl(QAction& action, const MenuRow& row) {
  connect(&action, &QAction::triggered, this, [this, row] {
    RunOfControl(tessel_, row);
    ShowStates();
  });
  if (row.kind == MenuItemKind::kToggle) twoStates_[row.button] = &action;
}

// The buttons have the last word: a press may have been refused.
void MainMenu::ShowStates() {
  const Toolbar& toolbar = tessel_.Controls().tbToolBar;
  for (const auto& [button, action] : twoStates_) {
    action->setChecked(toolbar.Pressed(button));
    action->setEnabled(toolbar.Find(button)->enabled);
  }
}

void MainMenu::On(WindowCommand command, std::function<void()> run) {
  QAction& action = Action(command);
  action.setEnabled(true);
  connect(&action, &QAction::triggered, this, [this, run = std::move(run)] {
    if (!tessel_.Running()) run();
  });
}

void MainMenu::OnToggle(WindowCommand command, bool isOn, std::function<void(bool)> run) {
  QAction& action = Action(command);
  action.setEnabled(true);
  action.setChecked(isOn);
  connect(&action, &QAction::toggled, this, std::move(run));
}

}  // namespace tessel
