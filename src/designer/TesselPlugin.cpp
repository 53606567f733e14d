#include "TesselPlugin.h"

#include <Tessel/ucTessel.h>

#include <QIcon>

namespace tessel {

QString TesselPlugin::name() const { return QStringLiteral("ucTessel"); }
QString TesselPlugin::group() const { return QStringLiteral("Input Widgets"); }
QString TesselPlugin::toolTip() const { return tr("Editor for CON files"); }
QString TesselPlugin::whatsThis() const {
  return tr("Edits CON files in tabs, with a panel for the game's settings.");
}
QString TesselPlugin::includeFile() const { return QStringLiteral("Tessel/ucTessel.h"); }
// Designer shows no icon that it would have to draw from a vector image.
QIcon TesselPlugin::icon() const {
  return QIcon(QIcon(QStringLiteral(":/tessel/icons/zanth-manager.svg")).pixmap(22, 22));
}

QString TesselPlugin::domXml() const {
  return QStringLiteral(R"(<ui language="c++" displayname="Tessel CON Editor">
  <widget class="ucTessel" name="ucTessel">
    <property name="geometry"><rect><x>0</x><y>0</y><width>800</width><height>600</height></rect></property>
  </widget>
  <customwidgets>
    <customwidget>
      <class>ucTessel</class>
      <extends>QWidget</extends>
      <header location="global">Tessel/ucTessel.h</header>
      <slots>
        <signal>SettingTextColor(QString)</signal>
        <signal>TextRefused(QString)</signal>
        <signal>DocumentChanged()</signal>
        <signal>CaretMoved()</signal>
        <slot>Convert()</slot>
        <slot>SetTesselVersion(QString&amp;,QString&amp;)</slot>
        <slot>SetTesselVersion(QString&amp;)</slot>
      </slots>
    </customwidget>
  </customwidgets>
</ui>)");
}

void TesselPlugin::initialize(QDesignerFormEditorInterface*) { designing_ = true; }

QWidget* TesselPlugin::createWidget(QWidget* parent) {
  ucTessel::Options options;
  options.forgetSettings = designing_;
  return new ucTessel(options, parent);
}

}  // namespace tessel
