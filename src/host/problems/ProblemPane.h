// The list of the problems, and what can be done about them.
#pragma once

#include <QLabel>
#include <QPushButton>
#include <QToolButton>
#include <QTreeView>
#include <QWidget>

#include "host/problems/ProblemModel.h"

namespace tessel {

/// A double click or Return goes to a problem; a click on its fix, or the button, applies the fix.
class ProblemPane : public QWidget {
  Q_OBJECT

 public:
  /// `problems` outlives this.
  ProblemPane(const ProblemList& problems, ProblemModel::NameOf nameOf, QWidget* parent);

  /// There are others now.
  void Update();
  /// Says why nothing is checked by itself, with a button that does it; empty: it is.
  void ShowWhyNotLive(const QString& why);
  void FocusList() { list_->setFocus(Qt::ShortcutFocusReason); }

 signals:
  void chosen(const tessel::Problem& problem);
  void fixWanted(const tessel::Problem& problem);
  void checkWanted();
  /// The user wants to go on in the text.
  void left();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QToolButton* AddFilter(check::Severity severity);
  void SetUpList();
  void LayOut();
  void CountAgain();
  void OfferFix();
  void Fix(const QModelIndex& index);

  const ProblemList& problems_;
  ProblemModel model_;
  QToolButton* filters_[3];  // by severity
  QPushButton* fix_;
  QPushButton* check_;
  QLabel* note_;
  QTreeView* list_;
  QString why_;
};

}  // namespace tessel
