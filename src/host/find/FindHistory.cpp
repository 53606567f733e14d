#include "host/find/FindHistory.h"

#include <QSettings>

namespace tessel {
namespace {

constexpr const char* kHistory = "find/history";
constexpr qsizetype kMostSearches = 20;

}  // namespace

QStringList SearchHistory() { return QSettings().value(kHistory).toStringList(); }

void RememberSearch(const QString& wanted) {
  if (wanted.isEmpty()) return;
  QStringList searches = SearchHistory();
  if (!searches.isEmpty() && searches.front() == wanted) return;
  searches.removeAll(wanted);
  searches.prepend(wanted);
  QSettings().setValue(kHistory, searches.mid(0, kMostSearches));
}

}  // namespace tessel
