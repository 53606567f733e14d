// The find and replace bar at the bottom of the window.
#pragma once

#include <QFrame>
#include <QLabel>
#include <QLayout>
#include <QToolButton>

#include "host/find/DocumentReplace.h"
#include "host/find/DocumentSearch.h"
#include "host/find/FindField.h"
#include "host/find/MatchMarks.h"
#include "host/find/ReplaceRow.h"
#include "qt/TesselWidget.h"

class QGridLayout;

namespace tessel {

/// Finds while its user types, marks what is in sight, counts, goes on and back; replaces one
/// match, those of the document or of the selection, or those of all documents. It is hidden at
/// first. Esc closes it.
///
/// It selects and edits as a person does, so that the control follows. The control's own dialog
/// knows nothing of it.
class FindBar : public QFrame {
  Q_OBJECT

 public:
  /// `control` outlives it.
  FindBar(TesselWidget& control, QWidget* parent);

  /// What it has found, for those who show it elsewhere.
  const DocumentSearch& Search() const { return search_; }

 public slots:
  /// Shows the bar for a search, with the selection as what is looked for when that lies in one
  /// line.
  void Find();
  /// The same with the row for replacing. A selection of several lines is where is searched.
  void Replace();
  /// Goes on, also while the bar is hidden; shows it when nothing was looked for yet.
  void FindNext();
  void FindPrevious();
  /// Hides the bar; the text has the focus again.
  void Close();

 signals:
  /// A sentence for the status bar.
  void told(const QString& sentence);
  /// So many matches have been replaced in these documents.
  void replaced(std::size_t count, const std::vector<Slot>& documents);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void BuildFindRow(QGridLayout& rows);
  void BuildReplaceRow(QGridLayout& rows);
  QToolButton* AddChoice(const QString& caption, const QString& hint, QLayout& row);
  QToolButton* AddButton(const QString& icon, const QString& name, const QString& hint,
                         void (FindBar::*action)(), QLayout& row);
  void Open(bool replacing);
  void LimitToSelection(bool wanted);
  void Look();
  void LookAndGo();
  void Go(Direction direction);
  void OnStepped(bool found);
  void TakeAnchor();
  void ShowState();
  void ShowMarks();
  QString StateText() const;
  QString OfferFromSelection() const;
  QString WrapText() const;
  FindChoices Choices() const;

  TesselWidget& control_;
  DocumentSearch& search_;
  DocumentReplace replace_{control_, search_};
  Subscription replaced_;
  MatchMarks marks_;
  FindField* field_ = nullptr;
  ReplaceRow* row_ = nullptr;
  QLabel* count_ = nullptr;
  QToolButton* matchCase_ = nullptr;
  QToolButton* wholeWord_ = nullptr;
  QToolButton* expression_ = nullptr;
  Position anchor_ = 0;  // where a search begins while its text is typed
  bool typed_ = false;   // the step on its way comes from typing
  QString toldProblem_;
};

}  // namespace tessel
