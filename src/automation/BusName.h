// A name by which others find this process on the bus.
#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QString>

namespace tessel {

/// Claims a name on the bus, and gives it back at the end. Nothing waits for the bus.
class BusName : public QObject {
  Q_OBJECT

 public:
  /// What to do while another process has the name: get it when that one ends, or be refused.
  enum class WhenTaken { kWait, kRefuse };

  BusName(const QDBusConnection& bus, const QString& name, WhenTaken whenTaken,
          QObject* parent = nullptr);
  ~BusName() override;

 signals:
  /// The bus does not give the name; a sentence says why.
  void refused(const QString& problem);

 private:
  QDBusMessage Ask(const char* method) const;

  QDBusConnection bus_;
  QString name_;
};

}  // namespace tessel
