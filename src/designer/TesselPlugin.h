// The control for Qt Designer and for forms that are loaded at run time.
#pragma once

#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

namespace tessel {

/// Makes the widget of the class "ucTessel".
class TesselPlugin : public QObject, public QDesignerCustomWidgetInterface {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID QDesignerCustomWidgetInterface_iid)
  Q_INTERFACES(QDesignerCustomWidgetInterface)

 public:
  QString name() const override;
  QString group() const override;
  QString toolTip() const override;
  QString whatsThis() const override;
  QString includeFile() const override;
  QString domXml() const override;
  QIcon icon() const override;
  bool isContainer() const override { return false; }

  /// Called by Designer alone, not where forms are only loaded: a form that is being designed does
  /// not touch the user's settings.
  void initialize(QDesignerFormEditorInterface* core) override;
  bool isInitialized() const override { return designing_; }
  QWidget* createWidget(QWidget* parent) override;

 private:
  bool designing_ = false;
};

}  // namespace tessel
