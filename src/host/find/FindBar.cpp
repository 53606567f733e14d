#include "host/find/FindBar.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>

#include "qt/base/AccessibleNames.h"
#include "qt/base/QtText.h"
#include "qt/editor/ScintillaView.h"
#include "qt/looks/SvgIcon.h"

namespace tessel {

FindBar::FindBar(TesselWidget& control, QWidget* parent)
    : QFrame(parent), control_(control), search_(*new DocumentSearch(control)) {
  setAccessibleName(tr("Find and replace"));
  auto* rows = new QGridLayout(this);
  rows->setContentsMargins(8, 4, 4, 4);
  rows->setHorizontalSpacing(6);
  rows->setVerticalSpacing(4);
  rows->setColumnStretch(1, 1);
  BuildFindRow(*rows);
  BuildReplaceRow(*rows);
  connect(&search_, &DocumentSearch::changed, this, [this] {
    ShowState();
    ShowMarks();
  });
  connect(&search_, &DocumentSearch::stepped, this, &FindBar::OnStepped);
  connect(&control_, &TesselWidget::caretMoved, this, [this] {
    if (!isVisible()) return;
    ShowState();
    ShowMarks();
  });
  hide();
}

void FindBar::BuildFindRow(QGridLayout& rows) {
  field_ = new FindField(this);
  NameForReaders(*field_, tr("Find"));
  auto* label = new QLabel(tr("Loo&k for:"), this);
  label->setBuddy(field_);
  count_ = new QLabel(this);
  count_->setObjectName("count");
  count_->setMinimumWidth(fontMetrics().horizontalAdvance(tr("More than 10,000") + "  "));
  auto* row = new QHBoxLayout;
  row->setSpacing(2);
  row->addWidget(count_);
  row->addSpacing(4);
  AddButton("FindPrevious", tr("Previous match"), tr("Previous match (Shift+Enter)"),
            &FindBar::FindPrevious, *row);
  AddButton("FindNext", tr("Next match"), tr("Next match (Enter)"), &FindBar::FindNext, *row);
  row->addSpacing(6);
  matchCase_ = AddChoice(tr("&Case"), tr("Match case"), *row);
  wholeWord_ = AddChoice(tr("Wor&d"), tr("Whole words only"), *row);
  expression_ = AddChoice(tr("Rege&x"), tr("Regular expression"), *row);
  row->addStretch(1);
  AddButton("FindClose", tr("Close"), tr("Close (Esc)"), &FindBar::Close, *row);
  rows.addWidget(label, 0, 0);
  rows.addWidget(field_, 0, 1);
  rows.addLayout(row, 0, 2);
  connect(field_, &FindField::edited, this, &FindBar::LookAndGo);
  connect(field_, &FindField::nextWanted, this, &FindBar::FindNext);
  connect(field_, &FindField::previousWanted, this, &FindBar::FindPrevious);
  connect(field_, &FindField::entered, this, &FindBar::TakeAnchor);
}

void FindBar::BuildReplaceRow(QGridLayout& rows) {
  row_ = new ReplaceRow(rows, 1, this);
  row_->SetVisible(false);
  setTabOrder(field_, row_->Field());
  const auto tell = [this](const QString& problem) {
    if (!problem.isEmpty()) emit told(problem);
  };
  connect(row_, &ReplaceRow::oneWanted, this, [this, tell] {
    typed_ = false;
    tell(replace_.One(row_->Text()));
  });
  connect(row_, &ReplaceRow::allWanted, this, [this, tell] { tell(replace_.All(row_->Text())); });
  connect(row_, &ReplaceRow::everywhereWanted, this,
          [this, tell] { tell(replace_.Everywhere(row_->Text())); });
  replaced_ =
      replace_.Replaced.Connect([this](std::size_t count, const std::vector<Slot>& documents) {
        emit replaced(count, documents);
      });
  connect(row_, &ReplaceRow::inSelectionToggled, this, &FindBar::LimitToSelection);
  connect(&search_, &DocumentSearch::limitDropped, row_, [this] { row_->ShowInSelection(false); });
}

QToolButton* FindBar::AddButton(const QString& icon, const QString& name, const QString& hint,
                                void (FindBar::*action)(), QLayout& row) {
  auto* button = new QToolButton(this);
  button->setAutoRaise(true);
  button->setIcon(SvgIcon(icon));
  button->setFocusPolicy(Qt::TabFocus);
  button->setAccessibleName(name);
  button->setToolTip(hint);
  connect(button, &QToolButton::clicked, this, action);
  row.addWidget(button);
  return button;
}

QToolButton* FindBar::AddChoice(const QString& caption, const QString& hint, QLayout& row) {
  auto* button = new QToolButton(this);
  button->setAutoRaise(true);
  button->setCheckable(true);
  button->setToolButtonStyle(Qt::ToolButtonTextOnly);
  button->setText(caption);
  button->setFocusPolicy(Qt::TabFocus);
  button->setAccessibleName(hint);
  button->setToolTip(hint);
  connect(button, &QToolButton::toggled, this, &FindBar::LookAndGo);
  row.addWidget(button);
  return button;
}

FindChoices FindBar::Choices() const {
  return {.matchCase = matchCase_->isChecked(),
          .wholeWord = wholeWord_->isChecked(),
          .regularExpression = expression_->isChecked()};
}

// --- Open and close

QString FindBar::OfferFromSelection() const {
  const std::string_view selected = control_.Tessel().OpenDocuments().CurrentEditor().SelBytes();
  if (selected.empty() || selected.find_first_of(std::string_view("\r\n\0", 3)) != selected.npos) {
    return field_->Text();
  }
  const QString text = ShownText(selected);
  return expression_->isChecked() ? QRegularExpression::escape(text) : text;
}

void FindBar::Find() { Open(false); }

void FindBar::Replace() { Open(true); }

void FindBar::Open(bool replacing) {
  const std::string selected = control_.Tessel().OpenDocuments().CurrentEditor().SelText();
  const bool lines = selected.find_first_of("\r\n") != selected.npos;
  field_->Offer(OfferFromSelection());
  row_->SetVisible(replacing);
  show();
  Look();
  if (replacing && lines) row_->ShowInSelection(true);
  if (replacing && lines) LimitToSelection(true);
  field_->setFocus(Qt::ShortcutFocusReason);
}

void FindBar::LimitToSelection(bool wanted) {
  const RichTextBox& editor = control_.Tessel().OpenDocuments().CurrentEditor();
  if (!wanted) return search_.LimitTo(std::nullopt);
  if (editor.SelLength() == 0) {
    row_->ShowInSelection(false);
    emit told(tr("Nothing is selected."));
    return;
  }
  search_.LimitTo(SearchArea{editor.SelStart(), editor.SelEnd()});
}

void FindBar::Close() {
  field_->Remember();
  hide();
  search_.Stop();
  marks_.Clear();
  if (auto* view = control_.CurrentEditorView()) view->setFocus();
}

void FindBar::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape && event->modifiers() == Qt::NoModifier) return Close();
  QFrame::keyPressEvent(event);
}

void FindBar::changeEvent(QEvent* event) {
  QFrame::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) marks_.Paint();
}

// --- Search

void FindBar::TakeAnchor() {
  anchor_ = control_.Tessel().OpenDocuments().CurrentEditor().SelStart();
}

void FindBar::Look() { search_.LookFor(field_->Text(), Choices()); }

void FindBar::LookAndGo() {
  Look();
  typed_ = true;
  search_.Step(anchor_, Direction::kForward);
}

void FindBar::FindNext() { Go(Direction::kForward); }

void FindBar::FindPrevious() { Go(Direction::kBackward); }

void FindBar::Go(Direction direction) {
  if (field_->Text().isEmpty()) return Find();
  if (search_.Pattern() == nullptr) Look();
  field_->Remember();
  typed_ = false;
  search_.Step(search_.From(direction), direction);
}

QString FindBar::WrapText() const {
  return search_.Way() == Direction::kForward ? tr("The search went on from the top.")
                                              : tr("The search went on from the end.");
}

void FindBar::OnStepped(bool found) {
  if (control_.Tessel().Running()) return;
  if (found) {
    search_.SelectFound();
    if (!typed_) anchor_ = search_.Found()->start;
    if (!typed_ && search_.Wrapped()) emit told(WrapText());
  } else if (typed_) {
    search_.Select({anchor_, anchor_});
  } else if (!isVisible()) {
    emit told(tr("\"%1\" is not in this document.").arg(field_->Text()));
  }
  ShowState();
  ShowMarks();
  if (!isVisible()) search_.Stop();
}

// --- What is shown

QString FindBar::StateText() const {
  using enum DocumentSearch::State;
  const qsizetype number = search_.CurrentNumber();
  const qsizetype matches = std::ssize(search_.Matches());
  switch (search_.Now()) {
    case kNothing:
      return {};
    case kNotValid:
      return tr("Not valid");
    case kGivenUp:
      return tr("Too complex");
    case kSearching:
      return tr("Searching...");
    case kTooMany:
      return tr("More than 10,000");
    case kCounted:
      break;
  }
  if (matches == 0) return tr("No match");
  if (number > 0) return tr("%1 of %2").arg(number).arg(matches);
  return tr("%n match(es)", nullptr, static_cast<int>(matches));
}

void FindBar::ShowState() {
  count_->setText(StateText());
  const QString problem = search_.Problem();
  count_->setToolTip(PlainToolTip(problem));
  if (problem == toldProblem_) return;
  toldProblem_ = problem;
  emit told(problem);
}

void FindBar::ShowMarks() {
  ScintillaView* view = control_.CurrentEditorView();
  if (!isVisible() || view == nullptr) return;
  if (const auto matches = search_.MatchesIn(MatchMarks::InSight(*view))) {
    marks_.Show(*view, *matches, search_.Current());
  }
}

}  // namespace tessel
