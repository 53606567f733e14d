// The window that shows what is different in two texts.
#pragma once

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <string>
#include <vector>

#include "host/changes/DifferenceView.h"

namespace tessel {

class ScintillaView;

/// Two texts to compare, and what they are called. The names are shown as they stand.
struct Comparison {
  QString document;
  QString nameBefore, nameAfter;
  std::string before, after;
};

/// The lines that differ, with some equal ones around them: a sign for each in the margin, changed
/// words marked, from change to change by F8 or Alt+Down and back. It does not hold up its parent.
/// Texts are compared on another thread.
class DifferenceWindow : public QDialog {
  Q_OBJECT

 public:
  explicit DifferenceWindow(QWidget* parent);

  /// The font and the width of tabs.
  void LookAs(const ScintillaView& editor);
  /// At least one. With several, a box chooses between them.
  void Show(std::vector<Comparison> comparisons);

 private:
  QPushButton* AddStep(const QString& caption, const QList<QKeySequence>& keys, bool forward);
  void Compare();
  void TakeOver(std::shared_ptr<const LineDifference> difference);
  void Step(bool forward);
  void ShowState();

  std::vector<Comparison> comparisons_;
  int tabWidth_ = 8;
  int asked_ = 0;  // comparisons; only the last one's result counts
  QComboBox* documents_;
  QLabel* nameBefore_;
  QLabel* nameAfter_;
  QLabel* remark_;
  DifferenceView* view_;
  QLabel* place_;
  QPushButton* previous_;
  QPushButton* next_;
};

/// Shows them in the window of that kind that belongs to the parent, a new one if need be. Without
/// an editor they look as an editor does by default.
void ShowDifferences(QWidget& parent, const ScintillaView* editor,
                     std::vector<Comparison> comparisons);

}  // namespace tessel
