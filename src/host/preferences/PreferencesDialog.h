// The user's wishes, to be looked at and changed.
#pragma once

#include <QDialog>
#include <QFormLayout>

#include "host/preferences/Preferences.h"

namespace tessel {

/// Every change is in effect at once.
class PreferencesDialog : public QDialog {
  Q_OBJECT

 public:
  /// `preferences` outlives the dialog.
  PreferencesDialog(Preferences& preferences, QWidget* parent);

 private:
  void AddFont(QFormLayout& form);
  void AddChoice(QFormLayout& form, const QString& label, Wish wish, const QStringList& choices);
  void AddNumber(QFormLayout& form, const QString& label, Wish wish, int least, int most);
  void AddSwitch(QFormLayout& form, const QString& caption, Wish wish);

  Preferences& preferences_;
};

}  // namespace tessel
