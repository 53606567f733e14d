#include "host/help/AboutDialog.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QUrl>
#include <QVBoxLayout>

#include "safekeeping/BackupStore.h"
#include "safekeeping/PrivateFolder.h"

namespace tessel {
namespace {

constexpr int kIconSize = 64;
constexpr int kNarrowestPath = 260;

QLabel* Wrapped(const QString& text) {
  auto* label = new QLabel(text);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  return label;
}

QLabel* Title(const QString& text) {
  QLabel* label = Wrapped(text);
  QFont font = label->font();
  font.setBold(true);
  font.setPointSizeF(font.pointSizeF() * 1.4);
  label->setFont(font);
  return label;
}

}  // namespace

AboutDialog::AboutDialog(const QString& settingsFile, QWidget* parent) : QDialog(parent) {
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle(tr("About Zanth Manager"));
  auto* icon = new QLabel;
  icon->setPixmap(QIcon(":/tessel/icons/zanth-manager.svg").pixmap(kIconSize, kIconSize));
  auto* texts = new QVBoxLayout;
  texts->addWidget(Title(tr("Zanth Manager %1").arg(QCoreApplication::applicationVersion())));
  texts->addWidget(Wrapped(tr("An editor for CON files.")));
  texts->addSpacing(6);
  texts->addWidget(Wrapped(
      tr("Free software under the GNU General Public License, version 3, with icons of its own. It "
         "uses Qt %1 (LGPL 3), QScintilla (GPL 3) with Scintilla (a permissive licence), SQLite "
         "(public domain), and the fonts of the desktop.")
          .arg(QString::fromLatin1(qVersion()))));
  auto* top = new QHBoxLayout;
  top->setSpacing(16);
  top->addWidget(icon, 0, Qt::AlignTop);
  top->addLayout(texts, 1);

  auto* folders = new QGridLayout;
  AddFolder(*folders, tr("&Settings:"), QFileInfo(settingsFile).absolutePath());
  AddFolder(*folders, tr("&Backups:"), QFile::decodeName(DefaultBackupFolder().c_str()));
  AddFolder(*folders, tr("&Unsaved text:"),
            QFile::decodeName((DefaultStateFolder() + "/recovery").c_str()));

  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(16, 16, 16, 16);
  column->setSpacing(14);
  column->addLayout(top);
  column->addLayout(folders);
  column->addWidget(buttons);
  buttons->button(QDialogButtonBox::Close)->setFocus();
}

void AboutDialog::AddFolder(QGridLayout& grid, const QString& label, const QString& folder) {
  const QString plain = QString(label).remove('&').remove(':');
  auto* path = new QLineEdit(folder);
  path->setReadOnly(true);
  path->setMinimumWidth(kNarrowestPath);
  path->setCursorPosition(0);
  auto* caption = new QLabel(label);
  caption->setBuddy(path);
  auto* open = new QPushButton(tr("Open"));
  open->setAccessibleName(tr("Open the folder: %1").arg(plain));
  open->setAutoDefault(false);
  open->setEnabled(QFileInfo(folder).isDir());
  connect(open, &QPushButton::clicked, this,
          [folder] { QDesktopServices::openUrl(QUrl::fromLocalFile(folder)); });
  auto* copy = new QPushButton(tr("Copy"));
  copy->setAccessibleName(tr("Copy the path: %1").arg(plain));
  copy->setAutoDefault(false);
  connect(copy, &QPushButton::clicked, this,
          [folder] { QGuiApplication::clipboard()->setText(folder); });
  const int row = grid.rowCount();
  grid.addWidget(caption, row, 0);
  grid.addWidget(path, row, 1);
  grid.addWidget(copy, row, 2);
  grid.addWidget(open, row, 3);
}

}  // namespace tessel
