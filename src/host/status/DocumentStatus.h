// What the status bar says of the document in front.
#pragma once

#include <QLabel>
#include <QStatusBar>
#include <QTimer>

#include "qt/TesselWidget.h"

namespace tessel {

/// At the right of the status bar: the selection, the caret, how the text is encoded, how its lines
/// end, for which version it is written, and whether it is modified. Assistive technology reads
/// what they say. What needs the whole text is read when nobody has typed for a moment.
class DocumentStatus : public QObject {
  Q_OBJECT

 public:
  /// Both outlive this.
  DocumentStatus(QStatusBar& bar, TesselWidget& control);

 private:
  QLabel* AddLabel(QStatusBar& bar, const QString& widest, const QString& tip);
  void ShowDocument();
  void ShowCaret();
  void ReadText();

  TesselWidget& control_;
  QTimer reading_;
  QLabel* selection_;
  QLabel* caret_;
  QLabel* encoding_;
  QLabel* lineEnds_;
  QLabel* dialect_;
  QLabel* modified_;
  std::vector<Subscription> subscriptions_;
};

/// The versions of the game for which a text is written, as far as it says so; else empty.
QString DialectOf(std::string_view text);

/// "CR LF", "LF", "CR" or "Mixed"; empty where no line ends.
QString LineEndsShown(std::string_view text);

}  // namespace tessel
