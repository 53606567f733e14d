#include "host/script/OutlineModel.h"

#include <algorithm>
#include <array>
#include <utility>

#include "qt/base/QtText.h"
#include "text/TextSearch.h"

namespace tessel {
namespace {

using language::Keyword;

constexpr const char* kGroupTitles[] = {
    QT_TRANSLATE_NOOP("tessel::OutlineModel", "Levels"),
    QT_TRANSLATE_NOOP("tessel::OutlineModel", "Actors"),
    QT_TRANSLATE_NOOP("tessel::OutlineModel", "States"),
    QT_TRANSLATE_NOOP("tessel::OutlineModel", "Actions"),
    QT_TRANSLATE_NOOP("tessel::OutlineModel", "Moves"),
    QT_TRANSLATE_NOOP("tessel::OutlineModel", "AIs"),
    QT_TRANSLATE_NOOP("tessel::OutlineModel", "Definitions"),
    QT_TRANSLATE_NOOP("tessel::OutlineModel", "Quotes"),
    QT_TRANSLATE_NOOP("tessel::OutlineModel", "Titles"),
    QT_TRANSLATE_NOOP("tessel::OutlineModel", "Sounds"),
    QT_TRANSLATE_NOOP("tessel::OutlineModel", "Music"),
};
constexpr std::size_t kGroups = std::size(kGroupTitles);

/// The index of its title.
constexpr std::size_t GroupOf(Keyword keyword) {
  switch (keyword) {
    case Keyword::kDefineLevelName:
      return 0;
    case Keyword::kActor:
    case Keyword::kUserActor:
      return 1;
    case Keyword::kState:
      return 2;
    case Keyword::kAction:
      return 3;
    case Keyword::kMove:
      return 4;
    case Keyword::kAi:
      return 5;
    case Keyword::kDefineQuote:
      return 7;
    case Keyword::kDefineVolumeName:
    case Keyword::kDefineSkillName:
      return 8;
    case Keyword::kDefineSound:
      return 9;
    case Keyword::kMusic:
      return 10;
    default:
      return 6;
  }
}

constexpr quintptr kGroupId = 0;  // the id of the others is one more than their group's row

bool ShowTheSame(const std::vector<OutlineEntry>& a, const std::vector<OutlineEntry>& b) {
  return std::ranges::equal(a, b, [](const OutlineEntry& x, const OutlineEntry& y) {
    return x.keyword == y.keyword && x.text == y.text;
  });
}

}  // namespace

void OutlineModel::SetEntries(std::vector<OutlineEntry> entries) {
  const bool same = ShowTheSame(entries, entries_);
  change_.reset();
  if (same) {
    entries_ = std::move(entries);
    return;
  }
  beginResetModel();
  entries_ = std::move(entries);
  Arrange();
  endResetModel();
}

void OutlineModel::SetFilter(std::string filter) {
  if (filter == filter_) return;
  beginResetModel();
  filter_ = std::move(filter);
  Arrange();
  endResetModel();
}

void OutlineModel::Changed(const ChangedRange& change) {
  change_ = change_ ? change_->Then(change) : change;
}

void OutlineModel::Arrange() {
  const TextPattern wanted(filter_, kFindDefault);
  std::array<Group, kGroups> groups;
  for (std::size_t kind = 0; kind < kGroups; ++kind) groups[kind].kind = kind;
  for (std::size_t i = 0; i < entries_.size(); ++i) {
    const std::string& text = entries_[i].text;
    const bool shown = filter_.empty() || wanted.FindIn(text, 0, std::ssize(text)) != kNotFound;
    if (shown) groups[GroupOf(entries_[i].keyword)].rows.push_back(static_cast<std::uint32_t>(i));
  }
  groups_.clear();
  for (Group& group : groups) {
    if (!group.rows.empty()) groups_.push_back(std::move(group));
  }
}

std::optional<OutlineEntry> OutlineModel::EntryOf(const QModelIndex& index) const {
  if (!index.isValid() || index.internalId() == kGroupId) return std::nullopt;
  const Group& group = groups_[index.internalId() - 1];
  OutlineEntry entry = entries_[group.rows[static_cast<std::size_t>(index.row())]];
  entry.begin = Now(entry.begin);
  entry.name = {Now(entry.name.begin), Now(entry.name.end)};
  return entry;
}

QModelIndex OutlineModel::IndexAt(Position offset) const {
  QModelIndex last;
  std::uint32_t lastEntry = 0;
  for (std::size_t g = 0; g < groups_.size(); ++g) {
    const auto& rows = groups_[g].rows;
    const auto behind = std::ranges::upper_bound(
        rows, offset, {}, [this](std::uint32_t row) { return Now(entries_[row].begin); });
    if (behind == rows.begin()) continue;
    const auto found = behind - 1;
    if (last.isValid() && *found < lastEntry) continue;
    lastEntry = *found;
    last = createIndex(static_cast<int>(found - rows.begin()), 0, g + 1);
  }
  return last;
}

QModelIndex OutlineModel::FirstEntry() const { return index(0, 0, index(0, 0)); }

QModelIndex OutlineModel::index(int row, int column, const QModelIndex& parent) const {
  if (!hasIndex(row, column, parent)) return {};
  const auto id = parent.isValid() ? static_cast<quintptr>(parent.row()) + 1 : kGroupId;
  return createIndex(row, column, id);
}

QModelIndex OutlineModel::parent(const QModelIndex& index) const {
  if (!index.isValid() || index.internalId() == kGroupId) return {};
  return createIndex(static_cast<int>(index.internalId() - 1), 0, kGroupId);
}

int OutlineModel::rowCount(const QModelIndex& parent) const {
  if (!parent.isValid()) return static_cast<int>(groups_.size());
  if (parent.internalId() != kGroupId) return 0;
  return static_cast<int>(groups_[static_cast<std::size_t>(parent.row())].rows.size());
}

int OutlineModel::columnCount(const QModelIndex& /*parent*/) const { return 1; }

QVariant OutlineModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  if (index.internalId() != kGroupId) {
    if (role != Qt::DisplayRole) return {};
    const Group& group = groups_[index.internalId() - 1];
    const std::string& text = entries_[group.rows[static_cast<std::size_t>(index.row())]].text;
    return text.empty() ? tr("(no name)") : ShownText(text);
  }
  const Group& group = groups_[static_cast<std::size_t>(index.row())];
  if (role == Qt::DisplayRole) {
    return tr("%1 (%2)").arg(tr(kGroupTitles[group.kind])).arg(group.rows.size());
  }
  return role == kGroupRole ? QVariant(static_cast<int>(group.kind)) : QVariant();
}

}  // namespace tessel
