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
    {"ToggleOutline", QT_TRANSLATE_NOOP("ScriptTools", "Outlin&e"),
     Qt::CTRL | Qt::SHIFT | Qt::Key_O, &ScriptTools::ToggleOutline},
    {"ToggleFold", QT_TRANSLATE_NOOP("ScriptTools", "&Fold or Unfold"), QKeyCombination(Qt::Key_F9),
     &ScriptTools::ToggleFold},
    {"FoldAll", QT_TRANSLATE_NOOP("ScriptTools", "Fold &All"), Qt::CTRL | Qt::Key_F9,
     &ScriptTools::FoldAll},
    {"UnfoldAll", QT_TRANSLATE_NOOP("ScriptTools", "Unf&old All"),
     Qt::CTRL | Qt::SHIFT | Qt::Key_F9, &ScriptTools::UnfoldAll},
};

}  // namespace

ScriptTools::ScriptTools(QMainWindow& window, TesselWidget& control)
    : QObject(&control),
      scripts_(control.Tessel().Controls().rtbCon),
      navigator_(control, scripts_),
      reader_(control.Tessel().OpenDocuments(), scripts_, nullptr),
      outline_(*new OutlineDock({control, scripts_, reader_, navigator_}, window)),
      marks_(control, scripts_, nullptr),
      folding_(control, scripts_, reader_, nullptr) {
  for (const ScriptCommand& command : kScriptCommands) {
    auto* action = new QAction(tr(command.text), this);
    action->setObjectName(command.name);
    action->setShortcut(command.keys);
    connect(action, &QAction::triggered, this, command.run);
    window.addAction(action);
  }
  auto* outline = findChild<QAction*>("ToggleOutline");
  outline->setCheckable(true);
  connect(&outline_, &OutlineDock::shownChanged, outline, &QAction::setChecked);
}

void ScriptTools::GoToDefinition() {
  const QString sentence = navigator_.GoToDefinition();
  if (!sentence.isEmpty()) emit said(sentence);
}

void ScriptTools::ToggleOutline() {
  const bool show = outline_.isHidden();
  outline_.SetShown(show);
  if (show) outline_.FocusFilter();
}

}  // namespace tessel
