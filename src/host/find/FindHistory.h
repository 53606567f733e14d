// The last texts that were searched for.
#pragma once

#include <QStringList>

namespace tessel {

/// The latest one first. They are kept in the settings of the host.
QStringList SearchHistory();
/// Puts a text to the front. The list has 20 at most, none of them twice.
void RememberSearch(const QString& wanted);

}  // namespace tessel
