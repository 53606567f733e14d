// Marks the words that open and close the block at the caret.
#pragma once

#include <QObject>
#include <QPointer>
#include <QTimer>
#include <optional>
#include <vector>

#include "host/script/OpenScripts.h"
#include "language/BlockEnds.h"
#include "qt/TesselWidget.h"

namespace tessel {

class ScintillaView;

/// Draws a box around a brace, "state" or "actor" at the caret and one around its partner; without
/// a partner the box is a red one. Nothing but the view knows of it. Control and scripts outlive
/// this.
class BlockMarks : public QObject {
  Q_OBJECT

 public:
  BlockMarks(TesselWidget& control, OpenScripts& scripts, QObject* parent);

  // The indicators, for reading the screen.
  static constexpr int kPair = 10;
  static constexpr int kAlone = 11;

 private:
  void Update();
  std::optional<language::BlockEnd> EndAtCaret();
  void Show(ScintillaView& view, const std::optional<language::BlockEnd>& end);

  TesselWidget& control_;
  OpenScripts& scripts_;
  QTimer soon_;
  QPointer<ScintillaView> marked_;  // the last view
  std::optional<language::BlockEnd> shown_;
  bool textChanged_ = false;
  std::vector<Subscription> subscriptions_;
};

}  // namespace tessel
