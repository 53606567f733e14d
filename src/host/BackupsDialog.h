// The list of backups.
#pragma once

#include <QDialog>
#include <QTreeWidget>
#include <string>
#include <vector>

#include "safekeeping/BackupStore.h"

namespace tessel {

/// Lists backups, those of the current document's file first, and lets one be chosen or compared.
class BackupsDialog : public QDialog {
  Q_OBJECT

 public:
  /// `currentPath` is that of the current document as PathOfFile gives it, or empty.
  BackupsDialog(std::vector<Backup> backups, const std::string& currentPath, QWidget* parent);

 signals:
  void chosen(const Backup& backup);
  /// The list stays open.
  void comparisonWanted(const Backup& backup);

 private:
  void AddRow(const Backup& backup, int number, bool current);
  const Backup* Current() const;
  void Choose();
  void Compare();

  std::vector<Backup> backups_;
  QTreeWidget* list_;
};

}  // namespace tessel
