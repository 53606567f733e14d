#include "host/script/OutlinePane.h"

#include <QKeyEvent>
#include <QVBoxLayout>
#include <utility>

#include "qt/base/AccessibleNames.h"
#include "qt/base/QtText.h"

namespace tessel {
namespace {

constexpr int kOutlineMargin = 4;

}  // namespace

OutlinePane::OutlinePane(QWidget* parent)
    : QWidget(parent), filter_(new QLineEdit(this)), tree_(new QTreeView(this)) {
  filter_->setPlaceholderText(tr("Filter"));
  filter_->setAccessibleName(tr("Filter of the outline"));
  OfferClearing(*filter_);
  filter_->installEventFilter(this);
  tree_->setAccessibleName(tr("Outline"));
  tree_->setModel(&model_);
  tree_->setHeaderHidden(true);
  tree_->setUniformRowHeights(true);
  tree_->installEventFilter(this);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(kOutlineMargin, kOutlineMargin, kOutlineMargin, kOutlineMargin);
  column->setSpacing(kOutlineMargin);
  column->addWidget(filter_);
  column->addWidget(tree_, 1);
  connect(filter_, &QLineEdit::textChanged, this, &OutlinePane::ApplyFilter);
  connect(tree_, &QTreeView::activated, this, &OutlinePane::Choose);
  connect(&model_, &QAbstractItemModel::modelReset, this, &OutlinePane::ExpandGroups);
  connect(tree_, &QTreeView::collapsed, this, [this](const QModelIndex& group) {
    collapsed_.insert(group.data(OutlineModel::kGroupRole).toInt());
  });
  connect(tree_, &QTreeView::expanded, this, [this](const QModelIndex& group) {
    if (filter_->text().isEmpty()) {
      collapsed_.erase(group.data(OutlineModel::kGroupRole).toInt());
    }
  });
}

void OutlinePane::SetEntries(std::vector<OutlineEntry> entries, Position caret) {
  model_.SetEntries(std::move(entries));
  MarkCaret(caret);
}

void OutlinePane::MarkCaret(Position caret) {
  caret_ = caret;
  QModelIndex index = model_.IndexAt(caret);
  // To make an entry the current one opens its group.
  if (index.isValid() && !tree_->isExpanded(index.parent())) index = index.parent();
  if (index != tree_->currentIndex()) tree_->setCurrentIndex(index);
}

void OutlinePane::FocusFilter() {
  filter_->setFocus(Qt::ShortcutFocusReason);
  filter_->selectAll();
}

void OutlinePane::ApplyFilter() {
  model_.SetFilter(TypedBytes(filter_->text()));
  if (filter_->text().isEmpty()) {
    MarkCaret(caret_);
  } else {
    tree_->setCurrentIndex(model_.FirstEntry());
  }
}

void OutlinePane::ExpandGroups() {
  const bool filtered = !filter_->text().isEmpty();
  for (int row = 0; row < model_.rowCount(); ++row) {
    const QModelIndex group = model_.index(row, 0);
    const bool collapsed = collapsed_.contains(group.data(OutlineModel::kGroupRole).toInt());
    if (filtered || !collapsed) tree_->expand(group);
  }
}

void OutlinePane::Choose(const QModelIndex& index) {
  if (const auto entry = model_.EntryOf(index)) emit chosen(*entry);
}

bool OutlinePane::TakeFilterKey(int key) {
  switch (key) {
    case Qt::Key_Down:
      tree_->setFocus(Qt::TabFocusReason);
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      Choose(tree_->currentIndex());
      return true;
    default:
      return false;
  }
}

bool OutlinePane::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return false;
  const int key = static_cast<QKeyEvent*>(event)->key();
  if (key == Qt::Key_Escape) {
    filter_->clear();
    emit left();
    return true;
  }
  return watched == filter_ && TakeFilterKey(key);
}

}  // namespace tessel
