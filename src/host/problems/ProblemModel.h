// The problems as rows of a list.
#pragma once

#include <QAbstractTableModel>
#include <QIcon>
#include <functional>
#include <optional>
#include <vector>

#include "host/problems/ProblemList.h"

namespace tessel {

/// One row for each problem of the severities that are shown, in the order of the list.
class ProblemModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Column { kText, kFix, kRule, kFile, kLine, kColumns };
  /// What a document is called.
  using NameOf = std::function<QString(Slot)>;

  /// `problems` outlives this.
  ProblemModel(const ProblemList& problems, NameOf nameOf, QObject* parent);

  /// There are others now.
  void Update();
  void Show(check::Severity severity, bool shown);
  /// All that there are, shown or not.
  int Count(check::Severity severity) const;
  /// Null where the index is none of a row.
  const Problem* ProblemOf(const QModelIndex& index) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  void Arrange();
  QString Cell(const Problem& problem, int column) const;

  const ProblemList& problems_;
  NameOf nameOf_;
  bool shown_[3] = {true, true, true};  // by severity
  std::vector<std::size_t> rows_;       // of the list
};

/// The sentence of a problem, and the same behind its severity.
QString TextOf(const Problem& problem);
QString SpokenTextOf(const Problem& problem);

QIcon IconOf(check::Severity severity);

}  // namespace tessel
