#include "host/changes/ChangeReport.h"

#include <QCoreApplication>
#include <QLocale>

namespace tessel {
namespace {

class Sentences {
  Q_DECLARE_TR_FUNCTIONS(ChangeReport)
};

QString Number(std::size_t number) { return QLocale().toString(qulonglong{number}); }

QString LinesChanged(std::size_t lines) {
  return lines == 1 ? Sentences::tr("1 line changed")
                    : Sentences::tr("%1 lines changed").arg(Number(lines));
}

QString ValuesChanged(std::size_t values) {
  return values == 1 ? Sentences::tr("1 value changed")
                     : Sentences::tr("%1 values changed").arg(Number(values));
}

QString Replaced(std::size_t replaced, std::size_t documents) {
  const QString all = Sentences::tr("%1 replaced").arg(Number(replaced));
  if (documents < 2) return all;
  return Sentences::tr("%1 in %2 documents").arg(all, Number(documents));
}

}  // namespace

QString SentenceOf(const ChangeReport& report, const ChangeCounts& counts) {
  const QString lines = LinesChanged(counts.lines);
  switch (report.kind) {
    case ChangeKind::kRandomized:
      return counts.values ? ValuesChanged(*counts.values) : lines;
    case ChangeKind::kConverted:
      return Sentences::tr("Converted to 1.4/1.5: %1").arg(lines);
    case ChangeKind::kReplaced:
      return Replaced(report.replaced, report.documents.size());
    case ChangeKind::kLines:
      return lines;
    case ChangeKind::kReloaded:
      return Sentences::tr("%1 reloaded: %2").arg(report.documents.front().name, lines);
    case ChangeKind::kBackupPutBack:
      return Sentences::tr("Backup put back: %1").arg(lines);
  }
  return {};
}

QString SavedSentence(const QString& name, std::size_t bytes) {
  return Sentences::tr("%1 saved, %2 bytes").arg(name, Number(bytes));
}

}  // namespace tessel
