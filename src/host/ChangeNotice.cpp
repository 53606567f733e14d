#include "host/ChangeNotice.h"

#include <QFile>
#include <utility>

#include "base/RuntimeError.h"
#include "host/changes/DifferenceWindow.h"
#include "posix/PosixFiles.h"
#include "qt/base/QtText.h"
#include "services/Paths.h"

namespace tessel {
namespace {

// A file that is being written changes several times; the notice waits until it has settled.
constexpr int kSettleMilliseconds = 200;

}  // namespace

ChangeNotice::ChangeNotice(TesselWidget& control, DocumentGuard& guard, MessageBox& messages,
                           KeepText keepText, QWidget* parent)
    : NoticeBar(tr("File changed"), parent),
      control_(control),
      guard_(guard),
      messages_(messages),
      keepText_(std::move(keepText)),
      reload_(AddButton(tr("Rel&oad"), &ChangeNotice::Reload)),
      compare_(AddButton(tr("Show D&ifferences"), &ChangeNotice::Compare)) {
  AddButton(tr("&Keep Mine"), &ChangeNotice::KeepMine);
  settle_.setSingleShot(true);
  settle_.setInterval(kSettleMilliseconds);
  connect(&settle_, &QTimer::timeout, this, &ChangeNotice::Check);
  connect(&watcher_, &QFileSystemWatcher::fileChanged, this, [this] { settle_.start(); });
  connect(&control_, &TesselWidget::documentChanged, &settle_, qOverload<>(&QTimer::start));
  // Nobody tells of a file whose folder was moved, but a refused save points to this bar.
  commandEnded_ = control_.Tessel().CommandEnded.Connect([this] { settle_.start(); });
}

Document ChangeNotice::Current() const { return control_.Tessel().OpenDocuments().Current(); }

void ChangeNotice::WatchOpenFiles() {
  QStringList paths;
  for (const Document& document : control_.Tessel().OpenDocuments().All()) {
    const QString path = QFile::decodeName(document.Path().c_str());
    if (!path.isEmpty() && QFile::exists(path)) paths += path;
  }
  const QStringList watched = watcher_.files();
  for (const QString& path : watched) {
    if (!paths.contains(path)) watcher_.removePath(path);
  }
  for (const QString& path : paths) {
    if (!watched.contains(path)) watcher_.addPath(path);
  }
}

void ChangeNotice::Check() {
  WatchOpenFiles();
  const std::string path = Current().Path();
  const bool changed = guard_.ChangedByOthers(Current());
  if (changed) {
    const bool gone = !DiskStateOf(path).exists;
    const QString name = ShownName(NameOfPath(path, '/'));
    SetText(gone ? tr("%1 is gone from the disk. The text is still here.").arg(name)
                 : tr("%1 has been changed by another program.").arg(name));
    reload_->setVisible(!gone);
    compare_->setVisible(!gone);
  }
  setVisible(changed);
}

bool ChangeNotice::MayDropChanges() {
  const Document document = Current();
  if (!document.Modified()) return true;
  const QString question = tr("Reload %1 and drop your changes?\n"
                              "Your text is kept among the backups (File > Backups).")
                               .arg(ShownName(NameOfPath(document.Path(), '/')));
  const MessageAnswer answer = messages_.Show(question.toStdString(), MessageIcon::kQuestion,
                                              kProgramTitle, MessageButtons::kNoYes);
  return answer == MessageAnswer::kYes && keepText_(document.Path(), document.Editor().Bytes());
}

void ChangeNotice::Reload() {
  if (control_.Tessel().Running() || !MayDropChanges()) return;
  const std::string before = Current().Editor().Text();
  control_.Tessel().ReloadDocument();
  Check();
  if (isHidden()) emit reloaded(before);
}

void ChangeNotice::Compare() try {
  const Document document = Current();
  const QString name = ShownName(NameOfPath(document.Path(), '/'));
  // Not through the guarded files: to look at the file is not to accept it.
  ShowDifferences(*window(), control_.CurrentEditorView(),
                  {{.document = name,
                    .nameBefore = tr("%1 here").arg(name),
                    .nameAfter = tr("%1 on the disk").arg(name),
                    .before = document.Editor().Text(),
                    .after = PosixFiles().Read(document.Path())}});
} catch (const RuntimeError& error) {
  messages_.Show(error.what(), MessageIcon::kExclamation, kProgramTitle, MessageButtons::kOk);
}

void ChangeNotice::KeepMine() {
  guard_.Accept(Current());
  Check();
}

}  // namespace tessel
