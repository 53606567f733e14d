#include "qt/views/ListBoxView.h"

#include <QMouseEvent>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <algorithm>

#include "qt/base/ControlView.h"
#include "qt/base/QtText.h"
#include "qt/looks/TesselStyle.h"

namespace tessel {
namespace {

/// Rows of a height that the list chooses.
class RowsOfOneHeight : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  int height = kLeastRowHeight;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    return {QStyledItemDelegate::sizeHint(option, index).width(), height};
  }
};

}  // namespace

ListBoxView::ListBoxView(ListBox& model, QWidget* parent) : QListWidget(parent), model_(model) {
  setUniformItemSizes(true);
  setItemDelegate(new RowsOfOneHeight(this));
  // What is left over between the last row and the edge.
  setBackgroundRole(QPalette::Base);
  setAutoFillBackground(true);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setTextElideMode(Qt::ElideRight);
  connect(this, &QListWidget::currentRowChanged, this, [this](int row) {
    if (row >= 0) model_.Pick(row);
  });
  refresh_ = model_.Refresh.Connect([this] { Draw(); });
  Draw();
}

// Entering a list by keyboard would make its first row the current one: that is no pick.
void ListBoxView::focusInEvent(QFocusEvent* event) {
  const QSignalBlocker quiet(this);
  QListWidget::focusInEvent(event);
  if (currentRow() != model_.ListIndex()) setCurrentRow(model_.ListIndex());
}

// A click on the current row is a pick too, which the toolkit does not report as a change.
void ListBoxView::mousePressEvent(QMouseEvent* event) {
  const int before = currentRow();
  QListWidget::mousePressEvent(event);
  if (event->button() != Qt::LeftButton) return;
  const QListWidgetItem* pressed = itemAt(event->position().toPoint());
  if (pressed != nullptr && row(pressed) == before) model_.Pick(before);
}

// The press that begins a double click has picked the row already.
void ListBoxView::mouseDoubleClickEvent(QMouseEvent* event) {
  QListWidget::mouseDoubleClickEvent(event);
  const QListWidgetItem* pressed = itemAt(event->position().toPoint());
  if (event->button() == Qt::LeftButton && pressed != nullptr) model_.DblClick.Raise();
}

void ListBoxView::resizeEvent(QResizeEvent* event) {
  QListWidget::resizeEvent(event);
  ShareRoomAmongRows();
}

void ListBoxView::ShareRoomAmongRows() {
  const int least = std::max(kLeastRowHeight, fontMetrics().height() + 2);
  const int room = height() - 2 * frameWidth();
  const int rows = std::max(1, room / least);
  const int rowHeight = std::max(least, room / rows);
  const int left = std::max(0, room - rows * rowHeight);
  auto* delegate = static_cast<RowsOfOneHeight*>(itemDelegate());
  if (delegate->height == rowHeight && viewportMargins().bottom() == left) return;
  delegate->height = rowHeight;
  setViewportMargins(0, 0, 0, left);
  scheduleDelayedItemsLayout();
}

void ListBoxView::Draw() {
  const QSignalBlocker quiet(this);
  DrawEntries();
  if (currentRow() != model_.ListIndex()) {
    setCurrentRow(model_.ListIndex());
    if (model_.ListIndex() == kNoSelection) clearSelection();
  }
  DrawState(*this, model_);
}

void ListBoxView::DrawEntries() {
  const auto& entries = model_.List();
  if (entries == shown_) return;
  const bool onlyMore =
      entries.size() > shown_.size() && std::equal(shown_.begin(), shown_.end(), entries.begin());
  if (!onlyMore) {
    clear();
    shown_.clear();
  }
  QStringList more;
  for (std::size_t i = shown_.size(); i < entries.size(); ++i) more += ShownText(entries[i]);
  addItems(more);
  shown_ = entries;
}

}  // namespace tessel
