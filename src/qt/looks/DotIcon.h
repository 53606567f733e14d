// The dots of the document tabs.
#pragma once

#include <QIcon>

namespace tessel {

/// A red dot for a changed document, a black one for an unchanged one; with a ring that keeps both
/// visible on light and dark.
QIcon DotIcon(bool modified);

}  // namespace tessel
