#include "host/menu/MainMenu.h"

#include <QCoreApplication>
#include <QMenuBar>
#include <QMessageBox>

namespace tessel {

MainMenu BuildMainMenu(QMainWindow& window) {
  QMenu* file = window.menuBar()->addMenu(QMainWindow::tr("&File"));
  MainMenu menu{};
  menu.open = file->addAction(QMainWindow::tr("&Open..."));
  menu.open->setShortcut(QKeySequence::Open);
  menu.backups = file->addAction(QMainWindow::tr("&Backups..."));
  menu.backups->setEnabled(false);
  file->addSeparator();
  menu.reopen = file->addAction(QMainWindow::tr("&Reopen Documents at Start"));
  menu.reopen->setCheckable(true);
  menu.automate = file->addAction(QMainWindow::tr("&Allow Automation by Other Programs"));
  menu.automate->setCheckable(true);
  file->addSeparator();
  menu.quit = file->addAction(QMainWindow::tr("&Quit"));
  menu.quit->setShortcut(Qt::CTRL | Qt::Key_Q);
  QMenu* help = window.menuBar()->addMenu(QMainWindow::tr("&Help"));
  menu.about = help->addAction(QMainWindow::tr("&About Zanth Manager"));
  return menu;
}

void ShowAbout(QWidget* parent) {
  auto* box = new QMessageBox(
      QMessageBox::Information, QMainWindow::tr("About Zanth Manager"),
      QMainWindow::tr("Zanth Manager %1").arg(QCoreApplication::applicationVersion()),
      QMessageBox::Ok, parent);
  box->setInformativeText(QMainWindow::tr("An editor for CON files."));
  box->setAttribute(Qt::WA_DeleteOnClose);
  box->open();
}

}  // namespace tessel
