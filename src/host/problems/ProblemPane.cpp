#include "host/problems/ProblemPane.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>
#include <initializer_list>
#include <utility>

namespace tessel {
namespace {

using enum check::Severity;

constexpr int kPaneMargin = 4;

/// By severity, with the number as %1.
constexpr const char* kFilterCaptions[] = {
    QT_TRANSLATE_NOOP("tessel::ProblemPane", "&Notes (%1)"),
    QT_TRANSLATE_NOOP("tessel::ProblemPane", "&Warnings (%1)"),
    QT_TRANSLATE_NOOP("tessel::ProblemPane", "&Errors (%1)"),
};

}  // namespace

ProblemPane::ProblemPane(const ProblemList& problems, ProblemModel::NameOf nameOf, QWidget* parent)
    : QWidget(parent),
      problems_(problems),
      model_(problems, std::move(nameOf), nullptr),
      filters_{AddFilter(kNote), AddFilter(kWarning), AddFilter(kError)},
      fix_(new QPushButton(tr("Fi&x"), this)),
      check_(new QPushButton(tr("&Check Now"), this)),
      note_(new QLabel(this)),
      list_(new QTreeView(this)) {
  note_->setTextFormat(Qt::PlainText);
  note_->setWordWrap(true);
  SetUpList();
  LayOut();
  connect(fix_, &QPushButton::clicked, this, [this] { Fix(list_->currentIndex()); });
  connect(check_, &QPushButton::clicked, this, &ProblemPane::checkWanted);
  ShowWhyNotLive({});
  CountAgain();
}

QToolButton* ProblemPane::AddFilter(check::Severity severity) {
  auto* filter = new QToolButton(this);
  filter->setCheckable(true);
  filter->setChecked(true);
  filter->setFocusPolicy(Qt::TabFocus);
  filter->setToolButtonStyle(Qt::ToolButtonTextOnly);
  connect(filter, &QToolButton::toggled, this, [this, severity](bool shown) {
    model_.Show(severity, shown);
    OfferFix();
  });
  return filter;
}

void ProblemPane::SetUpList() {
  list_->setAccessibleName(tr("Problems"));
  list_->setModel(&model_);
  list_->setRootIsDecorated(false);
  list_->setUniformRowHeights(true);
  list_->setAllColumnsShowFocus(true);
  list_->installEventFilter(this);
  QHeaderView& header = *list_->header();
  header.setStretchLastSection(false);
  header.setSectionResizeMode(QHeaderView::ResizeToContents);
  header.setSectionResizeMode(ProblemModel::kText, QHeaderView::Stretch);
  connect(list_, &QTreeView::activated, this, [this](const QModelIndex& index) {
    if (const Problem* problem = model_.ProblemOf(index)) emit chosen(*problem);
  });
  connect(list_, &QTreeView::clicked, this, [this](const QModelIndex& index) {
    if (index.column() == ProblemModel::kFix) Fix(index);
  });
  connect(list_->selectionModel(), &QItemSelectionModel::currentChanged, this,
          &ProblemPane::OfferFix);
}

void ProblemPane::LayOut() {
  auto* row = new QHBoxLayout;
  row->setSpacing(kPaneMargin);
  for (const auto severity : {kError, kWarning, kNote}) {
    row->addWidget(filters_[static_cast<std::size_t>(severity)]);
  }
  row->addStretch(1);
  row->addWidget(check_);
  row->addWidget(fix_);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(kPaneMargin, kPaneMargin, kPaneMargin, kPaneMargin);
  column->setSpacing(kPaneMargin);
  column->addLayout(row);
  column->addWidget(note_);
  column->addWidget(list_, 1);
  QWidget* before = nullptr;
  for (QWidget* part : std::initializer_list<QWidget*>{filters_[2], filters_[1], filters_[0],
                                                       check_, fix_, list_}) {
    if (before != nullptr) setTabOrder(before, part);
    before = part;
  }
}

void ProblemPane::CountAgain() {
  for (const auto severity : {kError, kWarning, kNote}) {
    const auto index = static_cast<std::size_t>(severity);
    filters_[index]->setText(tr(kFilterCaptions[index]).arg(model_.Count(severity)));
  }
}

// The list stays where it is, with the same row as the current one, as far as it goes.
void ProblemPane::Update() {
  const int current = list_->currentIndex().row();
  const int top = list_->verticalScrollBar()->value();
  model_.Update();
  const int row = std::min(current, model_.rowCount() - 1);
  if (row >= 0) list_->setCurrentIndex(model_.index(row, 0));
  list_->verticalScrollBar()->setValue(top);
  CountAgain();
  OfferFix();
  ShowWhyNotLive(why_);
}

void ProblemPane::ShowWhyNotLive(const QString& why) {
  why_ = why;
  QStringList notes;
  if (!why.isEmpty()) notes += why;
  if (!problems_.IsComplete()) {
    notes += tr("These are the first %L1 problems.").arg(problems_.All().size());
  }
  note_->setText(notes.join(' '));
  note_->setVisible(!notes.isEmpty());
  check_->setVisible(!why.isEmpty());
}

void ProblemPane::OfferFix() {
  const Problem* problem = model_.ProblemOf(list_->currentIndex());
  const bool offered = problem != nullptr && problem->finding.fix.has_value();
  fix_->setEnabled(offered);
  const QString what = offered ? QString::fromStdString(problem->finding.fix->what) : QString();
  fix_->setAccessibleDescription(what);
}

void ProblemPane::Fix(const QModelIndex& index) {
  const Problem* problem = model_.ProblemOf(index);
  if (problem != nullptr && problem->finding.fix) emit fixWanted(*problem);
}

bool ProblemPane::eventFilter(QObject*, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return false;
  if (static_cast<QKeyEvent*>(event)->key() != Qt::Key_Escape) return false;
  emit left();
  return true;
}

}  // namespace tessel
