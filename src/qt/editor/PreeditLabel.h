// The text that an input method is composing.
#pragma once

#include <QLabel>

namespace tessel {

/// Stands underlined over the text at the caret. The text itself has it only once it is committed.
class PreeditLabel : public QLabel {
 public:
  explicit PreeditLabel(QWidget* parent);

  /// An empty text hides it.
  void Show(const QString& text, const QFont& font, QPoint at);
};

}  // namespace tessel
