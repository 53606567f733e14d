// Lines below the problems in the text.
#pragma once

#include <QObject>
#include <QTimer>
#include <optional>

#include "host/problems/ProblemList.h"
#include "host/view/EveryEditor.h"

namespace tessel {

/// Draws a line below each problem of the document in front: wavy below errors, flatter below
/// warnings, dots below notes. Its tip has the problem's text. The text knows nothing of it.
class ProblemMarks : public QObject {
  Q_OBJECT

 public:
  /// The indicators, by severity, for reading the screen.
  static constexpr int kIndicators[] = {14, 15, 16};

  /// Both outlive this.
  ProblemMarks(TesselWidget& control, ProblemList& problems, QObject* parent);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Mark();
  bool ShowTip(ScintillaView& view, QPoint at, QPoint onScreen);

  TesselWidget& control_;
  ProblemList& problems_;
  EveryEditor editors_;
  QTimer soon_;
  std::vector<Subscription> subscriptions_;
};

/// The bytes of a text that are underlined for a range: no more than a line, and no less than a
/// byte where the text has one.
language::Range UnderlinedFor(std::string_view text, language::Range range);

}  // namespace tessel
