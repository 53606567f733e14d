#include <Tessel/ucTessel.h>

#include <QFile>
#include <QFileInfo>
#include <QVBoxLayout>

#include "embed/EmbeddedControl.h"
#include "embed/InstalledTemplates.h"
#include "embed/SharedSettings.h"
#include "posix/SqliteSettingsStore.h"
#include "qt/base/QtText.h"
#include "qt/editor/ScintillaView.h"
#include "services/MemorySettingsStore.h"

namespace {

std::string PathOf(const QString& name) { return QFile::encodeName(name).toStdString(); }

std::shared_ptr<tessel::SettingsStore> SettingsFor(const ucTessel::Options& options) {
  if (options.forgetSettings) return std::make_shared<tessel::MemorySettingsStore>();
  return tessel::SharedSettings(options.settingsFile.isEmpty() ? tessel::DefaultSettingsPath()
                                                               : PathOf(options.settingsFile));
}

}  // namespace

ucTessel::ucTessel(QWidget* parent) : ucTessel(Options(), parent) {}

ucTessel::ucTessel(const Options& options, QWidget* parent)
    : QWidget(parent),
      control_(std::make_unique<tessel::EmbeddedControl>(
          SettingsFor(options),
          options.templateDirectory.isEmpty() ? tessel::InstalledTemplates()
                                              : PathOf(options.templateDirectory),
          tessel::ucTessel::Options{.dialogHoldsDocument = options.dialogHoldsDocument}, this)) {
  using tessel::TesselWidget;
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(&Inside());
  connect(&Inside(), &TesselWidget::statusText, this, &ucTessel::SettingTextColor);
  connect(&Inside(), &TesselWidget::textRefused, this, &ucTessel::TextRefused);
  connect(&Inside(), &TesselWidget::documentChanged, this, &ucTessel::DocumentChanged);
  connect(&Inside(), &TesselWidget::caretMoved, this, &ucTessel::CaretMoved);
}

ucTessel::~ucTessel() = default;

tessel::TesselWidget& ucTessel::Inside() const { return control_->Widget(); }

void ucTessel::OpenFile(const QString& path) {
  // The control keeps the path: it has to hold when the working directory is another one.
  const QString whole = path.isEmpty() ? path : QFileInfo(path).absoluteFilePath();
  Inside().Tessel().OpenFile(PathOf(whole));
}

void ucTessel::ReloadDocument() { Inside().Tessel().ReloadDocument(); }

bool ucTessel::CloseAll() { return Inside().Tessel().CloseAll(); }
bool ucTessel::Running() const { return Inside().Tessel().Running(); }

QString ucTessel::DocumentPath() const {
  const std::string path = Inside().Tessel().OpenDocuments().Current().Path();
  return QFile::decodeName(QByteArray::fromStdString(path));
}

QString ucTessel::DocumentName() const {
  return tessel::ShownName(Inside().Tessel().OpenDocuments().Current().Name());
}
bool ucTessel::DocumentModified() const {
  return Inside().Tessel().OpenDocuments().Current().Modified();
}

QSize ucTessel::sizeHint() const { return Inside().sizeHint(); }
QSize ucTessel::minimumSizeHint() const { return Inside().minimumSizeHint(); }

void ucTessel::SetTesselVersion(QString& strVersion, QString& strDefault) {
  Inside().SetTesselVersion(strVersion, strDefault);
}

void ucTessel::SetTesselVersion(QString& strVersion) {
  QString none;
  SetTesselVersion(strVersion, none);
}

void ucTessel::Convert() { Inside().Tessel().Convert(); }

// The control itself has nothing to type into.
void ucTessel::focusInEvent(QFocusEvent*) {
  if (tessel::ScintillaView* editor = Inside().CurrentEditorView()) editor->setFocus();
}
