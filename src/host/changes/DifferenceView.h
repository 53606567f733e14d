// The list that shows a difference.
#pragma once

#include <QTreeView>

#include "host/changes/DifferenceModel.h"

namespace tessel {

/// Rows with the numbers and signs in front; changed words are underlined and have a ground of
/// their own. The selected rows can be copied.
class DifferenceView : public QTreeView {
  Q_OBJECT

 public:
  explicit DifferenceView(QWidget* parent);

  /// Null: none.
  void SetDifference(std::shared_ptr<const LineDifference> difference, int tabWidth);
  const LineDifference* Difference() const { return model_->Difference(); }
  /// The change that the current row is in, or the last one in front of it, from 1; 0 where there
  /// is none.
  std::size_t CurrentChange() const;
  /// True where the current row is the first one of that change.
  bool AtStartOfChange() const;
  /// Makes the first row of a change the current one; from 1.
  void GoTo(std::size_t change);

 signals:
  void currentMoved();

 protected:
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void FitColumns();
  void Copy();

  DifferenceModel* model_;
};

}  // namespace tessel
