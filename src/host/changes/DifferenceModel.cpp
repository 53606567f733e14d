#include "host/changes/DifferenceModel.h"

#include <QLocale>
#include <utility>

namespace tessel {
namespace {

constexpr QChar kMinus(0x2212);

QString NumberOfLine(std::uint32_t line) { return QString::number(qulonglong{line} + 1); }

QString SignOf(RowKind kind) {
  if (kind == RowKind::kRemoved) return kMinus;
  return kind == RowKind::kAdded ? QStringLiteral("+") : QString();
}

}  // namespace

void DifferenceModel::SetDifference(std::shared_ptr<const LineDifference> difference,
                                    int tabWidth) {
  beginResetModel();
  difference_ = std::move(difference);
  tabWidth_ = tabWidth;
  endResetModel();
}

const DifferenceRow& DifferenceModel::RowAt(int row) const {
  return difference_->Rows()[static_cast<std::size_t>(row)];
}

ShownLine DifferenceModel::LineAt(int row) const {
  const DifferenceRow& at = RowAt(row);
  if (at.kind != RowKind::kLeftOut) return ShownLineOf(*difference_, at, tabWidth_);
  return {tr("%1 equal lines").arg(QLocale().toString(at.leftOut)), {}};
}

QString DifferenceModel::Copied(int row) const {
  const QString sign = SignOf(RowAt(row).kind);
  return (sign.isEmpty()   ? QStringLiteral(" ")
          : sign == kMinus ? QStringLiteral("-")
                           : sign) +
         LineAt(row).text;
}

int DifferenceModel::rowCount(const QModelIndex& parent) const {
  if (parent.isValid() || difference_ == nullptr) return 0;
  return static_cast<int>(difference_->Rows().size());
}

int DifferenceModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : kColumns;
}

QVariant DifferenceModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || difference_ == nullptr) return {};
  if (role == Qt::DisplayRole) return Text(index);
  if (role == Qt::AccessibleTextRole) return ToldText(index);
  return {};
}

QVariant DifferenceModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  const QString titles[] = {tr("Before"), tr("After"), {}, tr("Line")};
  return titles[section];
}

QString DifferenceModel::Text(const QModelIndex& index) const {
  const DifferenceRow& row = RowAt(index.row());
  switch (index.column()) {
    case kBefore:
      return row.kind == RowKind::kSame || row.kind == RowKind::kRemoved ? NumberOfLine(row.before)
                                                                         : QString();
    case kAfter:
      return row.kind == RowKind::kSame || row.kind == RowKind::kAdded ? NumberOfLine(row.after)
                                                                       : QString();
    case kSign:
      return SignOf(row.kind);
    default:
      return LineAt(index.row()).text;
  }
}

QString DifferenceModel::ToldText(const QModelIndex& index) const {
  const QString text = Text(index);
  if (index.column() != kLine) return text;
  switch (RowAt(index.row()).kind) {
    case RowKind::kRemoved:
      return tr("Removed: %1").arg(text);
    case RowKind::kAdded:
      return tr("Added: %1").arg(text);
    default:
      return text;
  }
}

}  // namespace tessel
