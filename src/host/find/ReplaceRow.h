// The row of the find bar for replacing.
#pragma once

#include <QCheckBox>
#include <QGridLayout>
#include <QLineEdit>

namespace tessel {

/// A field and its buttons; who has it does the work. It stands in a row of the bar's grid, so that
/// the fields of both rows are as wide.
class ReplaceRow : public QObject {
  Q_OBJECT

 public:
  ReplaceRow(QGridLayout& grid, int row, QWidget* bar);

  void SetVisible(bool visible);
  QString Text() const { return field_->text(); }
  QWidget* Field() const { return field_; }
  /// Shows whether it is the selection only, without a signal.
  void ShowInSelection(bool wanted);

 signals:
  void oneWanted();
  void allWanted();
  void everywhereWanted();
  /// A person wants the selection only, or the whole document again.
  void inSelectionToggled(bool wanted);

 private:
  void AddButton(const QString& caption, const QString& hint, void (ReplaceRow::*wanted)(),
                 QLayout& row, QWidget* bar);

  QLineEdit* field_;
  QCheckBox* inSelection_;
  QList<QWidget*> parts_;
};

}  // namespace tessel
