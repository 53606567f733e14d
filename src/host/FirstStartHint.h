// What to do first, told once.
#pragma once

#include "host/NoticeBar.h"
#include "qt/TesselWidget.h"

namespace tessel {

/// A bar above the control in an empty window. It goes when it is closed, and when a document is
/// there.
class FirstStartHint : public NoticeBar {
  Q_OBJECT

 public:
  /// Shows itself. `control` outlives it.
  FirstStartHint(TesselWidget& control, QWidget* parent);

 signals:
  void manualWanted();

 private:
  Subscription loaded_;
};

}  // namespace tessel
