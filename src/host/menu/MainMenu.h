// The menu bar of the window.
#pragma once

#include <QAction>
#include <QMainWindow>

namespace tessel {

/// The actions of the menu bar; the window connects them.
struct MainMenu {
  QAction* open;
  QAction* backups;   ///< disabled until there is a place for backups
  QAction* reopen;    ///< checkable
  QAction* automate;  ///< checkable
  QAction* quit;
  QAction* about;
};

MainMenu BuildMainMenu(QMainWindow& window);

void ShowAbout(QWidget* parent);

}  // namespace tessel
