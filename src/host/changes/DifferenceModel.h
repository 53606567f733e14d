// A difference as a table.
#pragma once

#include <QAbstractTableModel>
#include <memory>

#include "host/changes/ShownLine.h"

namespace tessel {

/// The numbers of a line in both texts, a sign ("-" or "+"), and the line. Assistive technology is
/// told the sign as a word in front of the line.
class DifferenceModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Column { kBefore, kAfter, kSign, kLine, kColumns };

  using QAbstractTableModel::QAbstractTableModel;

  /// Null: none.
  void SetDifference(std::shared_ptr<const LineDifference> difference, int tabWidth);
  const LineDifference* Difference() const { return difference_.get(); }
  const DifferenceRow& RowAt(int row) const;
  ShownLine LineAt(int row) const;
  /// The row with its sign in front, for the clipboard.
  QString Copied(int row) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  QString Text(const QModelIndex& index) const;
  QString ToldText(const QModelIndex& index) const;

  std::shared_ptr<const LineDifference> difference_;
  int tabWidth_ = 8;
};

}  // namespace tessel
