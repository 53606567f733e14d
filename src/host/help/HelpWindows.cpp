#include "host/help/HelpWindows.h"

#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFile>
#include <QHeaderView>
#include <QTextBrowser>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "qt/base/Mnemonics.h"
#include "qt/base/RoomForTitle.h"

// The macro wants the global namespace.
static void LoadManual() { Q_INIT_RESOURCE(manual); }

namespace tessel {
namespace {

class HelpWindows {
  Q_DECLARE_TR_FUNCTIONS(HelpWindows)
};

constexpr const char* kManualName = "manual";

/// A window with one part and a Close button, freed when it is closed.
QDialog* MakeWindow(QWidget& parent, QWidget* part, const QString& title, QSize size) {
  auto* window = new QDialog(&parent);
  window->setAttribute(Qt::WA_DeleteOnClose);
  window->setWindowTitle(title);
  auto* column = new QVBoxLayout(window);
  column->addWidget(part);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, window);
  QObject::connect(buttons, &QDialogButtonBox::rejected, window, &QDialog::reject);
  column->addWidget(buttons);
  window->resize(OnScreen(*window, size));
  return window;
}

}  // namespace

void ShowManual(QWidget& parent) {
  if (auto* open = parent.findChild<QDialog*>(kManualName)) {
    open->raise();
    open->activateWindow();
    return;
  }
  LoadManual();
  QFile file(":/tessel/manual.md");
  if (!file.open(QIODevice::ReadOnly)) return;
  auto* browser = new QTextBrowser;
  browser->setAccessibleName(HelpWindows::tr("Manual"));
  browser->setOpenLinks(false);
  browser->setMarkdown(QString::fromUtf8(file.readAll()));
  QDialog* window =
      MakeWindow(parent, browser, HelpWindows::tr("Manual of Zanth Manager"), {760, 640});
  window->setObjectName(kManualName);
  window->show();
}

void ShowShortcuts(QWidget& parent, const MainMenu& menu) {
  auto* list = new QTreeWidget;
  list->setAccessibleName(HelpWindows::tr("Keyboard shortcuts"));
  list->setHeaderLabels({HelpWindows::tr("Command"), HelpWindows::tr("Keys")});
  list->setUniformRowHeights(true);
  for (const Menu title : {Menu::kFile, Menu::kEdit, Menu::kSearch, Menu::kView, Menu::kGame,
                           Menu::kTools, Menu::kWindow, Menu::kHelp}) {
    QMenu& of = menu.Of(title);
    auto* group = new QTreeWidgetItem(list, {PlainCaption(of.title())});
    for (const QAction* action : of.actions()) {
      if (action->shortcuts().isEmpty()) continue;
      new QTreeWidgetItem(group,
                          {PlainCaption(action->text()),
                           QKeySequence::listToString(action->shortcuts(), QKeySequence::NativeText)
                               .replace("; ", ", ")});
    }
    if (group->childCount() == 0) delete group;
  }
  list->expandAll();
  list->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
  MakeWindow(parent, list, HelpWindows::tr("Keyboard Shortcuts"), {520, 560})->show();
}

}  // namespace tessel
