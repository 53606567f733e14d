#include "host/menu/DocumentMenus.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenuBar>

#include "documents/RecentFiles.h"
#include "qt/base/QtText.h"

namespace tessel {
namespace {

constexpr int kDocumentsWithKeys = 9;

}  // namespace

DocumentMenus::DocumentMenus(MainMenu& menu, ucTessel& tessel, const QWidget& newButton)
    : QObject(&menu),
      menu_(menu),
      tessel_(tessel),
      newButton_(newButton),
      lastUsed_(tessel.OpenDocuments()) {
  using enum WindowCommand;
  for (const WindowCommand command : {kNew, kRecent}) menu_.Action(command).setEnabled(true);
  connect(&menu_.SubMenu(kNew), &QMenu::aboutToShow, this, &DocumentMenus::FillNew);
  connect(&menu_.SubMenu(kRecent), &QMenu::aboutToShow, this, &DocumentMenus::FillRecent);
  menu_.On(kNextDocument, [this] { Step(1); });
  menu_.On(kPreviousDocument, [this] { Step(-1); });
  menu_.On(kLastUsedDocument, [this] {
    if (const auto slot = lastUsed_.StepBack()) Select(Index(*slot));
  });
  menu_.On(kCloseOthers, [this] { CloseOthers(); });
  connect(&menu_.Action(kNew), &QAction::triggered, this,
          [this] { menu_.SubMenu(kNew).popup(PlaceOfNew()); });
  qApp->installEventFilter(this);
  QMenu& window = menu_.Of(Menu::kWindow);
  window.addSeparator();
  connect(&window, &QMenu::aboutToShow, this, &DocumentMenus::FillWindow);
  for (int i = 0; i < kDocumentsWithKeys; ++i) {
    auto* action = new QAction(this);
    action->setShortcut(QKeySequence(QKeyCombination(Qt::ALT, Qt::Key(Qt::Key_1 + i))));
    connect(action, &QAction::triggered, this, [this, i] { Select(i); });
    static_cast<QWidget*>(menu_.parent())->addAction(action);
  }
}

QPoint DocumentMenus::PlaceOfNew() const {
  if (newButton_.isVisible()) return newButton_.mapToGlobal(QPoint(0, newButton_.height()));
  const QMenuBar* bar = static_cast<QMainWindow*>(menu_.parent())->menuBar();
  return bar->mapToGlobal(bar->actionGeometry(menu_.Of(Menu::kFile).menuAction()).bottomLeft());
}

// As long as Ctrl is held, each Ctrl+Tab goes to an older document.
bool DocumentMenus::eventFilter(QObject*, QEvent* event) {
  const bool released = event->type() == QEvent::KeyRelease &&
                        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Control;
  if (released) lastUsed_.Settle();
  return false;
}

// A key of its own on the items would be ambiguous with the window's.
void DocumentMenus::FillWindow() {
  QMenu& window = menu_.Of(Menu::kWindow);
  for (QAction* old : std::exchange(listed_, {})) delete old;
  const DocumentList& documents = tessel_.OpenDocuments();
  for (const Document& document : documents.All()) {
    const int slot = Index(document.Place());
    const QString name =
        document.Name().empty() ? tr("Empty Document") : ShownName(document.Name());
    const QString key = slot < kDocumentsWithKeys ? QString("\tAlt+%1").arg(slot + 1) : QString();
    QAction* action = window.addAction(WithoutMnemonics(name) + key);
    action->setCheckable(true);
    action->setChecked(document == documents.Current());
    connect(action, &QAction::triggered, this, [this, slot] { Select(slot); });
    listed_ += action;
  }
}

void DocumentMenus::FillNew() {
  QMenu& list = menu_.SubMenu(WindowCommand::kNew);
  list.clear();
  Toolbar& toolbar = tessel_.Controls().tbToolBar;
  for (int item = 1; item < FirstRecentFile(toolbar); ++item) {
    const ButtonMenuItem& row = toolbar.MenuItem("FileNew", item);
    if (row.IsSeparator()) {
      if (item + 1 < FirstRecentFile(toolbar)) list.addSeparator();
      continue;
    }
    QAction* action = list.addAction(WithoutMnemonics(ShownName(row.text)));
    connect(action, &QAction::triggered, this, [this, item] {
      if (!tessel_.Running()) tessel_.Controls().tbToolBar.PressMenuItem("FileNew", item);
    });
  }
}

void DocumentMenus::FillRecent() {
  QMenu& list = menu_.SubMenu(WindowCommand::kRecent);
  list.clear();
  Toolbar& toolbar = tessel_.Controls().tbToolBar;
  for (int item = FirstRecentFile(toolbar); item <= toolbar.MenuCount("FileNew"); ++item) {
    const ButtonMenuItem& row = toolbar.MenuItem("FileNew", item);
    if (row.IsSeparator()) continue;
    QAction* action = list.addAction(WithoutMnemonics(ShownName(row.tag)));
    connect(action, &QAction::triggered, this, [this, item] {
      if (!tessel_.Running()) tessel_.Controls().tbToolBar.PressMenuItem("FileNew", item);
    });
  }
  if (list.isEmpty()) list.addAction(tr("No Recent Files"))->setEnabled(false);
}

void DocumentMenus::Select(int slot) {
  if (tessel_.Running() || slot >= tessel_.OpenDocuments().Count()) return;
  tessel_.OpenDocuments().Select(Slot{slot});
}

void DocumentMenus::Step(int by) {
  const int count = tessel_.OpenDocuments().Count();
  const int current = Index(tessel_.OpenDocuments().Current().Place());
  Select((current + by + count) % count);
}

// From the back, so that the places of those in front stay; what is not closed ends it.
void DocumentMenus::CloseOthers() {
  const DocumentList& documents = tessel_.OpenDocuments();
  int kept = Index(documents.Current().Place());
  for (int slot = documents.Count() - 1; slot >= 0; --slot) {
    if (slot == kept) continue;
    const int before = documents.Count();
    Select(slot);
    tessel_.Controls().mnuRtbPopup.Choose("mnuRtbPopupFileClose");
    if (documents.Count() == before) return;
    if (slot < kept) --kept;
  }
  Select(kept);
}

}  // namespace tessel
