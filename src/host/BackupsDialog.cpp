#include "host/BackupsDialog.h"

#include <QDateTime>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "posix/PathResolution.h"
#include "qt/base/QtText.h"
#include "qt/base/RoomForTitle.h"
#include "services/Paths.h"

namespace tessel {
namespace {

enum Column { kFile, kReplaced, kSize, kFolder, kColumns };

QString OnOneLine(const std::string& bytes) {
  QString text = ShownName(bytes);
  return text.replace('\n', ' ').replace('\r', ' ');
}

}  // namespace

BackupsDialog::BackupsDialog(std::vector<Backup> backups, const std::string& currentPath,
                             QWidget* parent)
    : QDialog(parent), backups_(std::move(backups)), list_(new QTreeWidget(this)) {
  setWindowTitle(tr("Backups"));
  const auto isCurrent = [&](const Backup& backup) { return backup.path == currentPath; };
  std::stable_partition(backups_.begin(), backups_.end(), isCurrent);

  auto* label = new QLabel(tr("&What saving has replaced, the current document's file first:"));
  label->setBuddy(list_);
  list_->setAccessibleName(tr("Backups"));
  list_->setColumnCount(kColumns);
  list_->setHeaderLabels({tr("File"), tr("Replaced"), tr("Size"), tr("Folder")});
  list_->setRootIsDecorated(false);
  list_->setUniformRowHeights(true);
  list_->setAllColumnsShowFocus(true);
  for (int i = 0; i < std::ssize(backups_); ++i) {
    const Backup& backup = backups_[static_cast<std::size_t>(i)];
    AddRow(backup, i, isCurrent(backup));
  }
  for (const int column : {kFile, kReplaced, kSize}) {
    list_->resizeColumnToContents(column);
    list_->setColumnWidth(column, std::min(list_->columnWidth(column) + 12, 260));
  }
  auto* hint = new QLabel(
      backups_.empty() ? tr("There are none yet: no save has replaced other text.")
                       : tr("It is opened as a changed document. Its file stays as it is until "
                            "you save."));
  hint->setWordWrap(true);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
  auto* open = buttons->addButton(tr("&Open"), QDialogButtonBox::ActionRole);
  open->setDefault(true);
  open->setEnabled(!backups_.empty());
  auto* compare = buttons->addButton(tr("Co&mpare"), QDialogButtonBox::ActionRole);
  compare->setToolTip(tr("Show what has changed in the text since then"));
  compare->setEnabled(!backups_.empty());

  auto* column = new QVBoxLayout(this);
  column->addWidget(label);
  column->addWidget(list_, 1);
  column->addWidget(hint);
  column->addWidget(buttons);
  resize(OnScreen(*this, {680, 380}));
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  connect(open, &QPushButton::clicked, this, &BackupsDialog::Choose);
  connect(compare, &QPushButton::clicked, this, &BackupsDialog::Compare);
  connect(list_, &QTreeWidget::itemActivated, this, &BackupsDialog::Choose);
  list_->setCurrentItem(list_->topLevelItem(0));
  list_->setFocus();
}

void BackupsDialog::AddRow(const Backup& backup, int number, bool current) {
  auto* row = new QTreeWidgetItem(list_);
  row->setData(kFile, Qt::UserRole, number);
  const QString name =
      backup.path.empty() ? tr("Unknown") : OnOneLine(NameOfPath(backup.path, '/'));
  row->setText(kFile, backup.damaged ? tr("%1 (damaged)").arg(name) : name);
  row->setText(kReplaced, QLocale().toString(QDateTime::fromSecsSinceEpoch(backup.seconds),
                                             QLocale::ShortFormat));
  row->setText(kSize, QLocale().formattedDataSize(static_cast<qint64>(backup.size)));
  row->setTextAlignment(kSize, Qt::AlignRight | Qt::AlignVCenter);
  row->setText(kFolder, OnOneLine(posix::DirectoryPart(backup.path)));
  if (!current) return;
  QFont bold = list_->font();
  bold.setBold(true);
  row->setFont(kFile, bold);
}

const Backup* BackupsDialog::Current() const {
  const QTreeWidgetItem* row = list_->currentItem();
  if (row == nullptr) return nullptr;
  return &backups_[static_cast<std::size_t>(row->data(kFile, Qt::UserRole).toInt())];
}

void BackupsDialog::Choose() {
  const Backup* backup = Current();
  if (backup == nullptr) return;
  accept();
  emit chosen(*backup);
}

void BackupsDialog::Compare() {
  if (const Backup* backup = Current()) emit comparisonWanted(*backup);
}

}  // namespace tessel
