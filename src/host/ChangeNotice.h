// The quiet notice that another program has changed the current document's file.
#pragma once

#include <QFileSystemWatcher>
#include <QTimer>
#include <functional>
#include <string>
#include <string_view>

#include "host/DocumentGuard.h"
#include "host/NoticeBar.h"
#include "qt/TesselWidget.h"

namespace tessel {

/// A bar above the control. It watches the files of all open documents, looks after each command,
/// and shows itself while the current one's has been changed by others: Reload takes the file's
/// text (it asks before it replaces changes of the user's own, and keeps them as a backup), Keep
/// Mine leaves the document as it is and lets it be saved over the file, Show Differences shows
/// what Reload would change.
class ChangeNotice : public NoticeBar {
  Q_OBJECT

 public:
  /// Keeps a text as a backup of the file at the path; false, with the reason told, when it cannot.
  using KeepText = std::function<bool(const std::string& path, std::string_view text)>;

  ChangeNotice(TesselWidget& control, DocumentGuard& guard, MessageBox& messages, KeepText keepText,
               QWidget* parent);

  /// Looks at the current document's file now.
  void Check();

 signals:
  /// The current document was taken from its file again; it had this text before.
  void reloaded(const std::string& before);

 private:
  void WatchOpenFiles();
  Document Current() const;
  void Reload();
  bool MayDropChanges();
  void KeepMine();
  void Compare();

  TesselWidget& control_;
  DocumentGuard& guard_;
  MessageBox& messages_;
  KeepText keepText_;
  QFileSystemWatcher watcher_;
  QTimer settle_;
  Subscription commandEnded_;
  QPushButton* reload_;
  QPushButton* compare_;
};

}  // namespace tessel
