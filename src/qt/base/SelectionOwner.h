// Whether the program that has the clipboard can be asked.
#pragma once

#include <QClipboard>
#include <chrono>

namespace tessel {

/// How long a program that has the clipboard may keep a person waiting.
inline constexpr std::chrono::milliseconds kOwnerPatience{900};

/// False when another program has the clipboard (or the selection) and does not say within that
/// time what it holds: a stopped program, for instance. The toolkit would wait several seconds for
/// it, at every question. True also where nobody can tell: on anything but X.
bool SelectionOwnerAnswers(QClipboard::Mode mode,
                           std::chrono::milliseconds patience = kOwnerPatience);

}  // namespace tessel
