// What the program is, and where it keeps things.
#pragma once

#include <QDialog>
#include <QGridLayout>

namespace tessel {

/// The program's icon, name, version and licences, and its folders, each of which can be opened and
/// its path copied.
class AboutDialog : public QDialog {
  Q_OBJECT

 public:
  /// `settingsFile` is the file of the settings store.
  AboutDialog(const QString& settingsFile, QWidget* parent);

 private:
  void AddFolder(QGridLayout& grid, const QString& label, const QString& folder);
};

}  // namespace tessel
