// A program that offers its two controls to others until it is killed.
#include <Tessel/TesselAutomation.h>
#include <Tessel/ucTessel.h>

#include <QApplication>
#include <QtDBus/QDBusConnection>
#include <iostream>

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  if (!QDBusConnection::sessionBus().registerService("org.example.Program")) return 1;
  ucTessel first;
  ucTessel second;
  const TesselAutomation offers[] = {TesselAutomation(first), TesselAutomation(second)};
  for (const TesselAutomation& offer : offers) {
    std::cout << offer.Path().toStdString() << offer.Problem().toStdString() << std::endl;
  }
  return QApplication::exec();
}
