// Templates, recent files and open documents as menus.
#pragma once

#include "host/menu/LastUsed.h"
#include "host/menu/MainMenu.h"

namespace tessel {

/// Fills "New" with the templates and "Open Recent" with the recent files, each with its whole
/// path, and ends the Window menu with the open documents; Alt+1 to Alt+9 are the first nine.
class DocumentMenus : public QObject {
  Q_OBJECT

 public:
  /// Ctrl+N opens its list under `newButton` while that can be seen, else under the menu. All
  /// outlive this.
  DocumentMenus(MainMenu& menu, ucTessel& tessel, const QWidget& newButton);

  /// Closes all documents but the one in front; asks for those that are modified, and stops at the
  /// first that is kept.
  void CloseOthers();

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QPoint PlaceOfNew() const;
  void FillNew();
  void FillRecent();
  void FillWindow();
  void Select(int slot);
  void Step(int by);

  MainMenu& menu_;
  ucTessel& tessel_;
  const QWidget& newButton_;
  LastUsed lastUsed_;
  QList<QAction*> listed_;
};

}  // namespace tessel
