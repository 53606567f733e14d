// The outline's rows for a tree view.
#pragma once

#include <QAbstractItemModel>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "host/script/OutlineEntries.h"
#include "text/ChangedRange.h"

namespace tessel {

/// Groups (definitions, states, actors ...) with the entries in them that contain the filter, in
/// the order of the text. A group without entries has no row.
class OutlineModel : public QAbstractItemModel {
  Q_OBJECT

 public:
  using QAbstractItemModel::QAbstractItemModel;

  /// Rows are only made anew where they show something else.
  void SetEntries(std::vector<OutlineEntry> entries);
  /// Case is ignored; an empty one lets everything through.
  void SetFilter(std::string filter);
  /// The text has changed since the entries were read.
  void Changed(const ChangedRange& change);

  /// Its places are those of the text as it is now. Nothing for the row of a group.
  std::optional<OutlineEntry> EntryOf(const QModelIndex& index) const;
  /// The last entry that begins at an offset or in front of it.
  QModelIndex IndexAt(Position offset) const;
  /// The first row that is an entry.
  QModelIndex FirstEntry() const;
  /// Which group the row of a group stands for, whatever others there are.
  static constexpr int kGroupRole = Qt::UserRole;

  QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
  QModelIndex parent(const QModelIndex& index) const override;
  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  struct Group {
    std::size_t kind = 0;
    std::vector<std::uint32_t> rows;  // of entries_
  };

  void Arrange();
  Position Now(Position place) const { return change_ ? change_->Moved(place) : place; }

  std::vector<OutlineEntry> entries_;
  std::vector<Group> groups_;
  std::string filter_;
  std::optional<ChangedRange> change_;  // since the entries were read
};

}  // namespace tessel
