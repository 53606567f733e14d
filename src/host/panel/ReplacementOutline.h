// The box around what the settings panel would write over.
#pragma once

#include <QObject>
#include <QPointer>

#include "qt/TesselWidget.h"

namespace tessel {

class ScintillaView;

/// Has the editor in front outline its selection while a part of the panel that writes over it has
/// the focus, and while a question about that is open.
class ReplacementOutline : public QObject {
  Q_OBJECT

 public:
  explicit ReplacementOutline(TesselWidget& control);

  void SetAsking(bool asking);

 private:
  void FocusMoved(QWidget* to);
  void Update();
  bool Writes(const QWidget* widget) const;

  TesselWidget& control_;
  bool focused_ = false;
  bool asking_ = false;
  QPointer<ScintillaView> outlined_;
};

}  // namespace tessel
