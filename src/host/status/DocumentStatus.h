// What the status bar says of the document in front.
#pragma once

#include <QLabel>
#include <QStatusBar>
#include <functional>

#include "language/Script.h"
#include "qt/TesselWidget.h"
#include "qt/base/Pause.h"

namespace tessel {

/// At the right of the status bar: the selection, the caret, how the text is encoded, how its lines
/// end, for which version it is written, and whether it is modified. Assistive technology reads
/// what they say. What needs the whole text is read when nobody has typed for a moment.
class DocumentStatus : public QObject {
  Q_OBJECT

 public:
  /// What the document in a slot says now.
  using ScriptOf = std::function<const language::Script&(Slot)>;

  /// All of them outlive this.
  DocumentStatus(QStatusBar& bar, TesselWidget& control, ScriptOf scriptOf);

 private:
  QLabel* AddLabel(QStatusBar& bar, const QString& widest, const QString& tip);
  void ShowDocument();
  void ShowCaret();
  void ReadText();

  TesselWidget& control_;
  ScriptOf scriptOf_;
  Pause pause_;
  QLabel* selection_;
  QLabel* modified_;
  QLabel* caret_;
  QLabel* encoding_;
  QLabel* lineEnds_;
  QLabel* dialect_;
  std::vector<Subscription> subscriptions_;
};

/// The versions of the game for which a text is written, as far as it says so; else empty.
QString DialectOf(const language::Script& script);

/// "CR LF", "LF", "CR" or "Mixed"; empty where no line ends.
QString LineEndsShown(std::string_view text);

}  // namespace tessel
