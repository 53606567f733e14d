#include "host/menu/TabMenu.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QDesktopServices>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMenu>
#include <QUrl>

#include "qt/base/QtText.h"

namespace tessel {

TabMenu::TabMenu(TesselWidget& control, QObject* parent)
    : QObject(parent),
      control_(control),
      bar_(*qobject_cast<QTabBar*>(control.WidgetFor(control.Tessel().Controls().tbsRtb))) {
  bar_.setTabsClosable(true);
  connect(&bar_, &QTabBar::tabCloseRequested, this, &TabMenu::Close);
  bar_.installEventFilter(this);
}

bool TabMenu::eventFilter(QObject* watched, QEvent* event) {
  if (watched != &bar_) return false;
  if (event->type() == QEvent::MouseButtonRelease) {
    const auto* mouse = static_cast<QMouseEvent*>(event);
    const int tab = bar_.tabAt(mouse->position().toPoint());
    if (mouse->button() != Qt::MiddleButton || tab < 0) return false;
    Close(tab);
    return true;
  }
  if (event->type() != QEvent::ContextMenu) return false;
  const auto* asked = static_cast<QContextMenuEvent*>(event);
  const bool byMouse = asked->reason() == QContextMenuEvent::Mouse;
  const int tab = byMouse ? bar_.tabAt(asked->pos()) : bar_.currentIndex();
  if (tab < 0) return false;
  ShowMenu(tab, byMouse ? asked->globalPos() : bar_.mapToGlobal(bar_.tabRect(tab).bottomLeft()));
  return true;
}

bool TabMenu::Select(int tab) {
  ucTessel& tessel = control_.Tessel();
  if (tessel.Running() || tab < 0 || tab >= tessel.OpenDocuments().Count()) return false;
  tessel.OpenDocuments().Select(Slot{tab});
  return true;
}

void TabMenu::Close(int tab) {
  if (Select(tab)) control_.Tessel().Controls().mnuRtbPopup.Choose("mnuRtbPopupFileClose");
}

void TabMenu::ShowMenu(int tab, QPoint at) {
  if (!Select(tab)) return;
  const QString path =
      QFile::decodeName(control_.Tessel().OpenDocuments().Current().Path().c_str());
  auto* menu = new QMenu(&bar_);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  menu->addAction(tr("&Close"), this, [this, tab] { Close(tab); });
  menu->addAction(tr("Close &Others"), this, &TabMenu::closeOthersWanted);
  menu->addSeparator();
  QAction* copy = menu->addAction(tr("Copy &Path"), this,
                                  [path] { QGuiApplication::clipboard()->setText(path); });
  QAction* folder = menu->addAction(tr("Open &Folder"), this, [path] {
    QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(path).absolutePath()));
  });
  for (QAction* action : {copy, folder}) action->setEnabled(!path.isEmpty());
  menu->popup(at);
}

}  // namespace tessel
