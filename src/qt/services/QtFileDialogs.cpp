#include "qt/services/QtFileDialogs.h"

#include <QChildEvent>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QRegularExpression>

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
  QFileDialog dialog(DialogOwner());
  Prepare(dialog, request);
  if (request.kind == FileDialogRequest::Kind::kSave) {
    dialog.setDefaultSuffix(SuffixOf(request.filter));
  }
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  std::vector<std::string> chosen = Chosen(dialog);
  if (chosen.empty()) return std::nullopt;
  return chosen;
}

}  // namespace tessel
