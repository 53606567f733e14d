// A Qt program with a CON editor in its window.
#include <QApplication>
#include <QCloseEvent>
#include <QFile>
#include <QLabel>
#include <QVBoxLayout>

#include "platform/HostDirectory.h"
#include "platform/MemorySettingsStore.h"
#include "platform/qt/QtDesktop.h"
#include "platform/qt/TesselWidget.h"

class Window : public QWidget {
 public:
  Window(const tessel::Services& services, tessel::WidgetMap& widgets)
      : editor_(new tessel::TesselWidget(services, widgets, this)), status_(new QLabel(this)) {
    auto* column = new QVBoxLayout(this);
    column->addWidget(editor_, 1);
    column->addWidget(status_);
    connect(editor_, &tessel::TesselWidget::statusText, status_, &QLabel::setText);
  }

  void Open(const QString& file) {
    editor_->Tessel().OpenFile(QFile::encodeName(file).toStdString());
  }

 protected:
  void closeEvent(QCloseEvent* event) override {
    const bool busy = editor_->Tessel().Running();
    event->setAccepted(!busy && editor_->Tessel().CloseAll());
  }

 private:
  tessel::TesselWidget* editor_;
  QLabel* status_;
};

int main(int argc, char** argv) {
  const QApplication application(argc, argv);

  // What the control asks of the desktop. Settings in memory are forgotten at the end; pass a
  // tessel::FallbackSettingsStore to keep recent files and script words.
  tessel::MemorySettingsStore settings;
  tessel::QtDesktop desktop;
  Window window(desktop.With(settings, tessel::DefaultHostDirectory()), desktop.widgets);

  for (const QString& file : QApplication::arguments().mid(1)) window.Open(file);
  window.resize(900, 640);
  window.show();
  return QApplication::exec();
}
