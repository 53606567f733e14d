#include "host/BackupComparison.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QLocale>
#include <utility>

#include "posix/PosixFiles.h"
#include "qt/base/QtText.h"
#include "safekeeping/DiskState.h"
#include "services/Paths.h"

namespace tessel {
namespace {

class BackupComparison {
  Q_DECLARE_TR_FUNCTIONS(BackupComparison)
};

QString TimeOfBackup(const Backup& backup) {
  return QLocale().toString(QDateTime::fromSecsSinceEpoch(backup.seconds), QLocale::ShortFormat);
}

QString NameOfFile(const std::string& path) { return ShownName(NameOfPath(path, '/')); }

}  // namespace

Comparison CompareBackup(const Backup& backup, std::string bytes, const std::string& path,
                         const DocumentList& documents) {
  Comparison comparison;
  comparison.nameBefore = BackupComparison::tr("The backup of %1").arg(TimeOfBackup(backup));
  comparison.before = std::move(bytes);
  const auto open = path.empty() ? std::nullopt : documents.WithPath(path);
  if (!open && !path.empty() && DiskStateOf(path).exists) {
    comparison.nameAfter = BackupComparison::tr("%1 on the disk").arg(NameOfFile(path));
    comparison.after = PosixFiles().Read(path);
    return comparison;
  }
  const Document document = open.value_or(documents.Current());
  const QString name =
      document.Path().empty() ? ShownName(document.Name()) : NameOfFile(document.Path());
  comparison.nameAfter = BackupComparison::tr("%1 now").arg(name);
  comparison.after = document.Editor().Text();
  return comparison;
}

}  // namespace tessel
