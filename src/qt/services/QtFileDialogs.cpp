#include "qt/services/QtFileDialogs.h"

#include <QApplication>
#include <QChildEvent>
#include <QFile>
#include <QFileDialog>
#include <QFileIconProvider>
#include <QFileInfo>
#include <QHeaderView>
#include <QMessageBox>
#include <QRegularExpression>
#include <QScreen>
#include <QStyle>
#include <QTreeView>

#include "models/CommonDialog.h"
#include "qt/base/QtText.h"
#include "qt/base/RoomForTitle.h"
#include "qt/services/DialogOwner.h"

namespace tessel {
namespace {

/// The dialog's own boxes guess whether a name in them is markup.
class PlainBoxes : public QObject {
 public:
  using QObject::QObject;

  bool eventFilter(QObject* dialog, QEvent* event) override {
    if (event->type() == QEvent::ChildPolished) {
      auto* box = qobject_cast<QMessageBox*>(static_cast<QChildEvent*>(event)->child());
      if (box != nullptr) {
        box->setTextFormat(Qt::PlainText);
        KeepRoomForTitle(*box);
      }
    }
    return QObject::eventFilter(dialog, event);
  }
};

/// The icons of the program's style. They are asked for on a thread of the dialog's.
class StyleIcons : public QFileIconProvider {
 public:
  QIcon icon(IconType type) const override {
    if (type == Computer || type == Drive) return computer_;
    return type == File ? file_ : folder_;
  }
  QIcon icon(const QFileInfo& file) const override { return file.isDir() ? folder_ : file_; }

 private:
  static QIcon Standard(QStyle::StandardPixmap icon) {
    return QApplication::style()->standardIcon(icon);
  }

  QIcon file_ = Standard(QStyle::SP_FileIcon);
  QIcon folder_ = Standard(QStyle::SP_DirIcon);
  QIcon computer_ = Standard(QStyle::SP_ComputerIcon);
};

/// In the toolkit's own dialog size, kind and date are shown whole, and the name has the rest. The
/// desktop's dialog, where there is one, has no such list.
void MakeColumnsReadable(QFileDialog& dialog) {
  auto* list = dialog.findChild<QTreeView*>("treeView");
  if (list == nullptr) return;
  constexpr QSize kRoomy(860, 500);
  list->header()->setStretchLastSection(false);
  list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  list->header()->setSectionResizeMode(0, QHeaderView::Stretch);
  dialog.resize(kRoomy.boundedTo(dialog.screen()->availableSize()));
}

void Prepare(QFileDialog& dialog, const FileDialogRequest& request) {
  const bool open = request.kind == FileDialogRequest::Kind::kOpen;
  dialog.installEventFilter(new PlainBoxes(&dialog));
  dialog.setWindowTitle(open ? QObject::tr("Open") : QObject::tr("Save As"));
  dialog.setAcceptMode(open ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave);
  if (!open) {
    dialog.setFileMode(QFileDialog::AnyFile);
  } else {
    dialog.setFileMode(request.flags & kAllowMultiSelect ? QFileDialog::ExistingFiles
                                                         : QFileDialog::ExistingFile);
  }
  dialog.setOption(QFileDialog::DontConfirmOverwrite, !(request.flags & kOverwritePrompt));
  dialog.setDirectory(QFile::decodeName(request.initDir.c_str()));

  const QStringList filters = NameFilters(request.filter);
  dialog.setNameFilters(filters);
  if (request.filterIndex >= 1 && request.filterIndex <= filters.size()) {
    dialog.selectNameFilter(filters[request.filterIndex - 1]);
  }
  if (!request.fileName.empty()) dialog.selectFile(QFile::decodeName(request.fileName.c_str()));
}

/// The extension that the first pattern asks for: a name typed without one gets it.
QString SuffixOf(std::string_view filter) {
  static const QRegularExpression kExtension(R"(\|\*\.(\w+))");
  return kExtension.match(ShownText(filter)).captured(1);
}

std::vector<std::string> Chosen(const QFileDialog& dialog) {
  std::vector<std::string> chosen;
  for (const QString& file : dialog.selectedFiles()) {
    chosen.push_back(QFile::encodeName(QFileInfo(file).absoluteFilePath()).toStdString());
  }
  return chosen;
}

}  // namespace

QStringList NameFilters(std::string_view filter) {
  const QStringList parts = ShownText(filter).split('|');
  static const QRegularExpression kPatternInDescription(R"(\s*\([^)]*\)\s*$)");
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    QString description = parts[i];
    description.remove(kPatternInDescription);
    const QString pattern = parts[i + 1];
    const QString upper = pattern.toUpper();
    const QString patterns = pattern == upper ? pattern : pattern + " " + upper;
    filters += description + " (" + patterns + ")";
  }
  return filters;
}

std::optional<std::vector<std::string>> QtFileDialogs::Show(const FileDialogRequest& request) {
  StyleIcons icons;
  QFileDialog dialog(DialogOwner());
  dialog.setIconProvider(&icons);
  Prepare(dialog, request);
  MakeColumnsReadable(dialog);
  if (request.kind == FileDialogRequest::Kind::kSave) {
    dialog.setDefaultSuffix(SuffixOf(request.filter));
  }
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  std::vector<std::string> chosen = Chosen(dialog);
  if (chosen.empty()) return std::nullopt;
  return chosen;
}

}  // namespace tessel
