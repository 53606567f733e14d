#include "host/problems/ProblemModel.h"

#include <QApplication>
#include <QFont>
#include <QPalette>
#include <algorithm>
#include <utility>

#include "qt/base/QtText.h"
#include "qt/looks/SvgIcon.h"

namespace tessel {
namespace {

struct SeverityRow {
  const char* icon;
  const char* spoken;  // with the problem's text as %1
};

/// By severity.
constexpr SeverityRow kSeverities[] = {
    {"ProblemNote", QT_TRANSLATE_NOOP("tessel::ProblemModel", "Note: %1")},
    {"ProblemWarning", QT_TRANSLATE_NOOP("tessel::ProblemModel", "Warning: %1")},
    {"ProblemError", QT_TRANSLATE_NOOP("tessel::ProblemModel", "Error: %1")},
};

constexpr const char* kColumnTitles[ProblemModel::kColumns] = {
    QT_TRANSLATE_NOOP("tessel::ProblemModel", "Problem"),
    QT_TRANSLATE_NOOP("tessel::ProblemModel", "Fix"),
    QT_TRANSLATE_NOOP("tessel::ProblemModel", "Rule"),
    QT_TRANSLATE_NOOP("tessel::ProblemModel", "File"),
    QT_TRANSLATE_NOOP("tessel::ProblemModel", "Line"),
};

const SeverityRow& RowOf(check::Severity severity) {
  return kSeverities[static_cast<std::size_t>(severity)];
}

/// What is done by a click looks like it.
QVariant LooksOfLink(int role) {
  if (role == Qt::ForegroundRole) return QApplication::palette().color(QPalette::Link);
  QFont font = QApplication::font();
  font.setUnderline(true);
  return font;
}

}  // namespace

QString TextOf(const Problem& problem) { return QString::fromStdString(problem.finding.text); }

QString SpokenTextOf(const Problem& problem) {
  return ProblemModel::tr(RowOf(problem.Severity()).spoken).arg(TextOf(problem));
}

QIcon IconOf(check::Severity severity) { return SvgIcon(RowOf(severity).icon); }

ProblemModel::ProblemModel(const ProblemList& problems, NameOf nameOf, QObject* parent)
    : QAbstractTableModel(parent), problems_(problems), nameOf_(std::move(nameOf)) {}

void ProblemModel::Arrange() {
  rows_.clear();
  for (std::size_t i = 0; i < problems_.All().size(); ++i) {
    if (shown_[static_cast<std::size_t>(problems_.All()[i].Severity())]) rows_.push_back(i);
  }
}

void ProblemModel::Update() {
  beginResetModel();
  Arrange();
  endResetModel();
}

void ProblemModel::Show(check::Severity severity, bool shown) {
  shown_[static_cast<std::size_t>(severity)] = shown;
  Update();
}

int ProblemModel::Count(check::Severity severity) const {
  return static_cast<int>(std::ranges::count(problems_.All(), severity, &Problem::Severity));
}

const Problem* ProblemModel::ProblemOf(const QModelIndex& index) const {
  if (!index.isValid()) return nullptr;
  return &problems_.All()[rows_[static_cast<std::size_t>(index.row())]];
}

int ProblemModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int ProblemModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : int{kColumns};
}

QString ProblemModel::Cell(const Problem& problem, int column) const {
  switch (column) {
    case kText:
      return TextOf(problem);
    case kFix:
      return problem.finding.fix ? QString::fromStdString(problem.finding.fix->what) : QString();
    case kRule:
      return QString::fromUtf8(problem.finding.rule->id.data(),
                               std::ssize(problem.finding.rule->id));
    case kFile:
      return nameOf_(problem.slot);
    default:
      return QString::number(problem.line);
  }
}

QVariant ProblemModel::data(const QModelIndex& index, int role) const {
  const Problem* problem = ProblemOf(index);
  if (problem == nullptr) return {};
  switch (role) {
    case Qt::DisplayRole:
      return Cell(*problem, index.column());
    case Qt::ToolTipRole:
      return PlainToolTip(Cell(*problem, index.column()));
    case Qt::AccessibleTextRole:
      return index.column() == kText ? SpokenTextOf(*problem) : QVariant();
    case Qt::DecorationRole:
      return index.column() == kText ? IconOf(problem->Severity()) : QVariant();
    case Qt::TextAlignmentRole:
      return index.column() == kLine ? QVariant(Qt::AlignRight | Qt::AlignVCenter) : QVariant();
    case Qt::ForegroundRole:
    case Qt::FontRole:
      return index.column() == kFix ? LooksOfLink(role) : QVariant();
    default:
      return {};
  }
}

QVariant ProblemModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  return tr(kColumnTitles[section]);
}

}  // namespace tessel
