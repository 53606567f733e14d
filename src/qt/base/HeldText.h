// What the clipboard holds for a paste.
#pragma once

#include <QClipboard>
#include <QMimeData>
#include <QString>
#include <memory>

namespace tessel {

struct HeldText {
  /// Why nothing can be pasted, as a sentence for the user; empty when it can.
  QString refusal;
  /// Null when there is a refusal, and where the toolkit has nothing. It is good until the next
  /// event.
  const QMimeData* data = nullptr;

  std::unique_ptr<QMimeData> read;  ///< where another program has been asked for it
};

/// What the clipboard (or the selection) holds. A program that has it and hangs blocks this for a
/// second at most on X; elsewhere the toolkit decides.
HeldText ReadHeldText(QClipboard::Mode mode);

}  // namespace tessel
