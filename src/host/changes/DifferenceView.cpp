#include "host/changes/DifferenceView.h"

#include <QClipboard>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <algorithm>

#include "qt/looks/Theme.h"

namespace tessel {
namespace {

constexpr int kMargin = 4;
constexpr double kLineTint = 0.14;
constexpr double kWordTint = 0.36;
const QColor kRed(0xd0, 0x2c, 0x2c);
const QColor kGreen(0x1f, 0x96, 0x3c);

QColor Tinted(const QColor& ground, const QColor& tint, double share) {
  const auto mix = [share](int a, int b) { return a + static_cast<int>((b - a) * share); };
  return {mix(ground.red(), tint.red()), mix(ground.green(), tint.green()),
          mix(ground.blue(), tint.blue())};
}

QColor GroundOf(RowKind kind, const QPalette& palette, double share) {
  const QColor base = palette.color(QPalette::Base);
  if (kind == RowKind::kRemoved) return Tinted(base, kRed, share);
  if (kind == RowKind::kAdded) return Tinted(base, kGreen, share);
  return kind == RowKind::kLeftOut ? palette.color(QPalette::AlternateBase) : base;
}

class RowPainter : public QStyledItemDelegate {
 public:
  RowPainter(const DifferenceModel& model, QObject* parent)
      : QStyledItemDelegate(parent), model_(model) {}

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override {
    return {0, std::max(20, option.fontMetrics.height() + 2)};
  }

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    const RowKind kind = model_.RowAt(index.row()).kind;
    painter->save();
    painter->setFont(option.font);
    painter->fillRect(option.rect, GroundOf(kind, option.palette, kLineTint));
    if (index.column() == DifferenceModel::kLine) {
      PaintLine(*painter, option, index.row(), kind);
    } else {
      PaintMargin(*painter, option, index);
    }
    if (option.state & QStyle::State_Selected) PaintSelection(*painter, option);
    painter->restore();
  }

 private:
  static QRect Inside(const QStyleOptionViewItem& option) {
    return option.rect.adjusted(kMargin, 0, -kMargin, 0);
  }

  static void PaintMargin(QPainter& painter, const QStyleOptionViewItem& option,
                          const QModelIndex& index) {
    const bool sign = index.column() == DifferenceModel::kSign;
    painter.setPen(sign ? option.palette.color(QPalette::Text) : Theme(option.palette).QuietText());
    painter.drawText(Inside(option), Qt::AlignVCenter | (sign ? Qt::AlignHCenter : Qt::AlignRight),
                     index.data().toString());
  }

  void PaintLine(QPainter& painter, const QStyleOptionViewItem& option, int row,
                 RowKind kind) const {
    const ShownLine line = model_.LineAt(row);
    const QFontMetrics metrics(option.font);
    const QRect inside = Inside(option);
    const QColor ink = kind == RowKind::kLeftOut ? Theme(option.palette).QuietText()
                                                 : option.palette.color(QPalette::Text);
    for (const ShownStretch& stretch : line.changed) {
      const int left = inside.left() + metrics.horizontalAdvance(line.text.left(stretch.at));
      const int width = metrics.horizontalAdvance(line.text.mid(stretch.at, stretch.length));
      const QRect word(left, inside.top(), width, inside.height());
      painter.fillRect(word, GroundOf(kind, option.palette, kWordTint));
      painter.fillRect(left, inside.bottom() - 1, width, 2, ink);
    }
    painter.setPen(ink);
    painter.drawText(inside.left(),
                     inside.top() + (inside.height() + metrics.ascent() - metrics.descent()) / 2,
                     line.text);
  }

  static void PaintSelection(QPainter& painter, const QStyleOptionViewItem& option) {
    const QColor colour = Theme(option.palette).Accent();
    painter.fillRect(option.rect.left(), option.rect.top(), option.rect.width(), 1, colour);
    painter.fillRect(option.rect.left(), option.rect.bottom(), option.rect.width(), 1, colour);
  }

  const DifferenceModel& model_;
};

}  // namespace

DifferenceView::DifferenceView(QWidget* parent)
    : QTreeView(parent), model_(new DifferenceModel(this)) {
  setAccessibleName(tr("Differences"));
  setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  setModel(model_);
  setItemDelegate(new RowPainter(*model_, this));
  setRootIsDecorated(false);
  setItemsExpandable(false);
  setUniformRowHeights(true);
  setAllColumnsShowFocus(true);
  setSelectionMode(ExtendedSelection);
  setHorizontalScrollMode(ScrollPerPixel);
  header()->setStretchLastSection(false);
  header()->setSectionsMovable(false);
  header()->setMinimumSectionSize(16);
}

void DifferenceView::SetDifference(std::shared_ptr<const LineDifference> difference, int tabWidth) {
  model_->SetDifference(std::move(difference), tabWidth);
  FitColumns();
}

void DifferenceView::FitColumns() {
  const LineDifference* difference = Difference();
  if (difference == nullptr) return;
  const QFontMetrics metrics(font());
  const auto& rows = difference->Rows();
  std::uint32_t last = 0;
  if (!rows.empty()) {
    const DifferenceRow& row = rows.back();
    for (const std::uint32_t line : {row.before, row.after}) {
      if (line != DifferenceRow::kNone) last = std::max(last, line + row.leftOut);
    }
  }
  const QString widest(QString::number(last + 1).size(), '0');
  for (const int column : {DifferenceModel::kBefore, DifferenceModel::kAfter}) {
    const int title = header()->sectionSizeHint(column);
    setColumnWidth(column, std::max(title, metrics.horizontalAdvance(widest) + 2 * kMargin + 4));
  }
  setColumnWidth(DifferenceModel::kSign, metrics.horizontalAdvance("+") + 2 * kMargin + 4);
  const qsizetype longest = std::clamp<qsizetype>(difference->LongestLine() + 16, 0, kLongestShown);
  const int line = metrics.horizontalAdvance(QString(longest, '0')) + 2 * kMargin;
  const int rest = viewport()->width() - header()->sectionPosition(DifferenceModel::kLine);
  setColumnWidth(DifferenceModel::kLine, std::max(line, rest));
}

std::size_t DifferenceView::CurrentChange() const {
  if (Difference() == nullptr || !currentIndex().isValid()) return 0;
  const auto row = static_cast<std::size_t>(currentIndex().row());
  const auto& changes = Difference()->Changes();
  const auto behind = std::ranges::upper_bound(changes, row, {}, &ChangeRows::first);
  return static_cast<std::size_t>(behind - changes.begin());
}

bool DifferenceView::AtStartOfChange() const {
  const std::size_t change = CurrentChange();
  if (change == 0) return false;
  return Difference()->Changes()[change - 1].first ==
         static_cast<std::size_t>(currentIndex().row());
}

void DifferenceView::GoTo(std::size_t change) {
  if (Difference() == nullptr) return;
  const auto& changes = Difference()->Changes();
  if (change == 0 || change > changes.size()) return;
  const auto row = static_cast<int>(changes[change - 1].first);
  const QModelIndex index = model_->index(row, DifferenceModel::kLine);
  const int across = horizontalScrollBar()->value();
  setCurrentIndex(index);
  scrollTo(index, PositionAtCenter);
  horizontalScrollBar()->setValue(across);
}

void DifferenceView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTreeView::currentChanged(current, previous);
  emit currentMoved();
}

void DifferenceView::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy)) return Copy();
  QTreeView::keyPressEvent(event);
}

void DifferenceView::changeEvent(QEvent* event) {
  QTreeView::changeEvent(event);
  if (event->type() == QEvent::FontChange) FitColumns();
}

void DifferenceView::Copy() {
  QModelIndexList chosen = selectionModel()->selectedRows();
  std::ranges::sort(chosen, {}, &QModelIndex::row);
  QString text;
  for (const QModelIndex& index : chosen) text += model_->Copied(index.row()) + '\n';
  if (!text.isEmpty()) QGuiApplication::clipboard()->setText(text);
}

}  // namespace tessel
