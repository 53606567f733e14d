// What other processes see of a control.
#pragma once

#include <QDBusContext>
#include <QObject>
#include <QPointer>
#include <QString>

namespace tessel {

class TesselWidget;

/// The interface "Tessel.ucTessel" of one control. Its slots are called by the bus alone.
class ControlObject : public QObject, protected QDBusContext {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "Tessel.ucTessel")
  Q_CLASSINFO("D-Bus Introspection",
              "  <interface name=\"Tessel.ucTessel\">\n"
              "    <method name=\"SetTesselVersion\">\n"
              "      <arg name=\"strVersion\" type=\"s\" direction=\"in\"/>\n"
              "      <arg name=\"strDefault\" type=\"s\" direction=\"in\"/>\n"
              "      <arg name=\"strVersion\" type=\"s\" direction=\"out\"/>\n"
              "      <arg name=\"strDefault\" type=\"s\" direction=\"out\"/>\n"
              "    </method>\n"
              "    <method name=\"SetTesselVersion\">\n"
              "      <arg name=\"strVersion\" type=\"s\" direction=\"in\"/>\n"
              "      <arg name=\"strVersion\" type=\"s\" direction=\"out\"/>\n"
              "    </method>\n"
              "    <method name=\"Convert\"/>\n"
              "    <signal name=\"SettingTextColor\">\n"
              "      <arg name=\"StatusText\" type=\"s\"/>\n"
              "    </signal>\n"
              "  </interface>\n")

 public:
  explicit ControlObject(TesselWidget& control);

 public slots:
  // Parameters that can be changed are what comes back.
  Q_SCRIPTABLE void SetTesselVersion(const QString& strVersion, const QString& strDefault,
                                     QString& versionAfter, QString& defaultAfter);
  Q_SCRIPTABLE void SetTesselVersion(const QString& strVersion, QString& versionAfter);
  Q_SCRIPTABLE void Convert();

 signals:
  Q_SCRIPTABLE void SettingTextColor(const QString& StatusText);

 private:
  bool Refused() const;

  QPointer<TesselWidget> control_;
};

}  // namespace tessel
