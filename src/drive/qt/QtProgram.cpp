#include "drive/qt/QtProgram.h"

#include <QApplication>

#include "drive/qt/WidgetPlayer.h"

namespace tessel::drive {

struct QtProgram::Parts {
  // The program's own options are not the toolkit's.
  char name[13] = "tessel-drive";
  char* arguments[2] = {name, nullptr};
  int count = 1;
  QApplication application{count, arguments};
};

QtProgram::QtProgram() {
  const bool display = qEnvironmentVariableIsSet("DISPLAY") ||
                       qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
                       qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
  if (!display) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication::setQuitOnLastWindowClosed(false);
  parts_ = std::make_unique<Parts>();
}

QtProgram::~QtProgram() = default;

std::unique_ptr<Player> MakeWidgetPlayer(Clipboard& clipboard) {
  return std::make_unique<WidgetPlayer>(clipboard);
}

}  // namespace tessel::drive
