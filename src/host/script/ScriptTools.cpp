#include "host/script/ScriptTools.h"

#include <QAction>

namespace tessel {
namespace {

struct ScriptCommand {
  const char* name;  // of the action
  const char* text;
  QKeyCombination keys;
  void (ScriptTools::*run)();
};

const ScriptCommand kScriptCommands[] = {
    {"GoToDefinition", QT_TRANSLATE_NOOP("ScriptTools", "Go to &Definition"),
     QKeyCombination(Qt::Key_F12), &ScriptTools::GoToDefinition},
    {"GoBack", QT_TRANSLATE_NOOP("ScriptTools", "Go &Back"), Qt::ALT | Qt::Key_Left,
     &ScriptTools::GoBack},
    {"GoForward", QT_TRANSLATE_NOOP("ScriptTools", "Go F&orward"), Qt::ALT | Qt::Key_Right,
     &ScriptTools::GoForward},
};

}  // namespace

ScriptTools::ScriptTools(QMainWindow& window, TesselWidget& control)
    : QObject(&control),
      scripts_(control.Tessel().Controls().rtbCon),
      navigator_(control, scripts_) {
  for (const ScriptCommand& command : kScriptCommands) {
    auto* action = new QAction(tr(command.text), this);
    action->setObjectName(command.name);
    action->setShortcut(command.keys);
    connect(action, &QAction::triggered, this, command.run);
    window.addAction(action);
  }
}

void ScriptTools::GoToDefinition() {
  const QString sentence = navigator_.GoToDefinition();
  if (!sentence.isEmpty()) emit said(sentence);
}

}  // namespace tessel
