#include "host/script/ScriptTools.h"

#include <QAction>

#include "host/script/LevelTitles.h"
#include "qt/base/QtText.h"
#include "qt/editor/ScintillaView.h"

namespace tessel {
namespace {

struct ScriptCommand {
  const char* name;  // of the action
  const char* text;
  QKeyCombination keys;
  void (ScriptTools::*run)();
};

const ScriptCommand kScriptCommands[] = {
    {"GoToDefinition", QT_TRANSLATE_NOOP("tessel::ScriptTools", "Go to &Definition"),
     QKeyCombination(Qt::Key_F12), &ScriptTools::GoToDefinition},
    {"GoBack", QT_TRANSLATE_NOOP("tessel::ScriptTools", "Go &Back"), Qt::ALT | Qt::Key_Left,
     &ScriptTools::GoBack},
    {"GoForward", QT_TRANSLATE_NOOP("tessel::ScriptTools", "Go F&orward"), Qt::ALT | Qt::Key_Right,
     &ScriptTools::GoForward},
    {"ToggleOutline", QT_TRANSLATE_NOOP("tessel::ScriptTools", "Outlin&e"),
     Qt::CTRL | Qt::SHIFT | Qt::Key_O, &ScriptTools::ToggleOutline},
    {"ToggleFold", QT_TRANSLATE_NOOP("tessel::ScriptTools", "&Fold or Unfold"),
     QKeyCombination(Qt::Key_F9), &ScriptTools::ToggleFold},
    {"FoldAll", QT_TRANSLATE_NOOP("tessel::ScriptTools", "Fold &All"), Qt::CTRL | Qt::Key_F9,
     &ScriptTools::FoldAll},
    {"UnfoldAll", QT_TRANSLATE_NOOP("tessel::ScriptTools", "Unf&old All"),
     Qt::CTRL | Qt::SHIFT | Qt::Key_F9, &ScriptTools::UnfoldAll},
    {"Complete", QT_TRANSLATE_NOOP("tessel::ScriptTools", "Co&mplete"), Qt::CTRL | Qt::Key_Space,
     &ScriptTools::Complete},
    {"ShowParameters", QT_TRANSLATE_NOOP("tessel::ScriptTools", "&Show Parameters"),
     Qt::CTRL | Qt::SHIFT | Qt::Key_Space, &ScriptTools::ShowParameters},
};

}  // namespace

ScriptTools::ScriptTools(QMainWindow& window, TesselWidget& control, Preferences& preferences,
                         SettingsStore& settings)
    : QObject(&control),
      control_(control),
      preferences_(preferences),
      scripts_(control.Tessel().Controls().rtbCon),
      navigator_(control, scripts_),
      reader_(control.Tessel().OpenDocuments(), scripts_, nullptr),
      outline_(*new OutlineDock({control, scripts_, reader_, navigator_}, window)),
      marks_(control, scripts_, nullptr),
      folding_(control, scripts_, reader_, nullptr),
      completion_(control, scripts_, settings, nullptr) {
  AddActions(window);
  AddPreference(window, "CompletesWhileTyping", tr("Complete &While Typing"), Wish::kCompletion);
  AddPreference(window, "KeepsIndentation", tr("Keep &Indentation"), Wish::kIndentation);
  subscriptions_.push_back(preferences_.Changed.Connect([this](Wish) { ApplyWishes(); }));
  subscriptions_.push_back(
      control_.Tessel().Controls().rtbCon.Loaded.Connect([this](RichTextBox&) { ApplyWishes(); }));
  ApplyWishes();
}

void ScriptTools::AddActions(QMainWindow& window) {
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

void ScriptTools::AddPreference(QMainWindow& window, const char* name, const QString& text,
                                Wish wish) {
  auto* action = new QAction(text, this);
  action->setObjectName(name);
  action->setCheckable(true);
  action->setChecked(preferences_.Wants(wish));
  connect(action, &QAction::toggled, this,
          [this, wish](bool wanted) { preferences_.Set(wish, wanted); });
  subscriptions_.push_back(preferences_.Changed.Connect([this, action, wish](Wish changed) {
    if (changed == wish) action->setChecked(preferences_.Wants(wish));
  }));
  window.addAction(action);
}

void ScriptTools::Say(const QString& sentence) {
  if (!sentence.isEmpty()) emit said(sentence);
}

QStringList ScriptTools::TitlesOfListedLevels() {
  const Slot current = control_.Tessel().OpenDocuments().Current().Place();
  QStringList titles;
  if (!scripts_.Has(current)) return titles;
  const auto& entries = control_.Tessel().Controls().cboEpisode.List();
  for (const std::string& title : TitlesOfLevels(scripts_.Of(current), entries)) {
    titles += ShownText(title);
  }
  return titles;
}

void ScriptTools::ToggleOutline() {
  const bool show = outline_.isHidden();
  outline_.SetShown(show);
  if (show) outline_.FocusFilter();
}

void ScriptTools::ApplyWishes() {
  completion_.SetWhileTyping(preferences_.Wants(Wish::kCompletion));
  const auto& editors = control_.Tessel().Controls().rtbCon;
  for (int i = 0; i < editors.Count(); ++i) {
    qobject_cast<ScintillaView*>(control_.WidgetFor(editors[i]))
        ->KeepIndentation(preferences_.Wants(Wish::kIndentation));
  }
}

}  // namespace tessel
