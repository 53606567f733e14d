// The outline beside the text.
#pragma once

#include <QLineEdit>
#include <QTreeView>
#include <QWidget>
#include <set>
#include <vector>

#include "host/script/OutlineModel.h"

namespace tessel {

/// Lists what a script defines, and filters it while somebody types. The entry that the caret is in
/// is the current one.
class OutlinePane : public QWidget {
  Q_OBJECT

 public:
  explicit OutlinePane(QWidget* parent = nullptr);

  void SetEntries(std::vector<OutlineEntry> entries, Position caret);
  void Changed(const ChangedRange& change) { model_.Changed(change); }
  void MarkCaret(Position caret);
  void FocusFilter();

 signals:
  void chosen(const tessel::OutlineEntry& entry);
  /// The user wants to go on in the text.
  void left();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void ApplyFilter();
  void Choose(const QModelIndex& index);
  void ExpandGroups();
  bool TakeFilterKey(int key);

  OutlineModel model_;
  QLineEdit* filter_;
  QTreeView* tree_;
  std::set<int> collapsed_;  // groups
  Position caret_ = 0;
};

}  // namespace tessel
