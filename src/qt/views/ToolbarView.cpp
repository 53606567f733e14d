#include "qt/views/ToolbarView.h"

#include <QKeyEvent>
#include <QPainter>
#include <QToolButton>
#include <algorithm>

#include "qt/base/ControlView.h"
#include "qt/base/QtText.h"
#include "qt/looks/SvgIcon.h"
#include "qt/looks/TesselStyle.h"
#include "qt/looks/Theme.h"
#include "qt/views/ViewAccessibility.h"

namespace tessel {
namespace {

bool SameMenu(const std::vector<ButtonMenuItem>& a, const std::vector<ButtonMenuItem>& b) {
  return std::ranges::equal(a, b, [](const ButtonMenuItem& x, const ButtonMenuItem& y) {
    return x.text == y.text && x.key == y.key && x.tag == y.tag;
  });
}

struct ButtonWord {
  const char* key;
  const char* word;
};

constexpr ButtonWord kWords[] = {
    {"FileNew", QT_TRANSLATE_NOOP("tessel::ToolbarView", "New")},
    {"FileOpen", QT_TRANSLATE_NOOP("tessel::ToolbarView", "Open")},
    {"FileClose", QT_TRANSLATE_NOOP("tessel::ToolbarView", "Close")},
    {"FileSave", QT_TRANSLATE_NOOP("tessel::ToolbarView", "Save As")},
    {"Cut", QT_TRANSLATE_NOOP("tessel::ToolbarView", "Cut")},
    {"Copy", QT_TRANSLATE_NOOP("tessel::ToolbarView", "Copy")},
    {"Paste", QT_TRANSLATE_NOOP("tessel::ToolbarView", "Paste")},
    {"Find", QT_TRANSLATE_NOOP("tessel::ToolbarView", "Find")},
    {"Tools", QT_TRANSLATE_NOOP("tessel::ToolbarView", "Tools")},
    {"RandAll", QT_TRANSLATE_NOOP("tessel::ToolbarView", "Randomize All")},
    {"RandSec", QT_TRANSLATE_NOOP("tessel::ToolbarView", "Randomize")},
    {"Convert", QT_TRANSLATE_NOOP("tessel::ToolbarView", "Convert")},
    {"Colorize", QT_TRANSLATE_NOOP("tessel::ToolbarView", "Colorize")},
    {"ShowTabs", QT_TRANSLATE_NOOP("tessel::ToolbarView", "Panel")},
};

QString WordOf(const std::string& key) {
  const auto* row = std::ranges::find(kWords, key, &ButtonWord::key);
  return row == std::ranges::end(kWords) ? QString() : ToolbarView::tr(row->word);
}

}  // namespace

ToolbarView::ToolbarView(Toolbar& model, QWidget* parent) : QToolBar(parent), model_(model) {
  InstallViewAccessibility();
  setMovable(false);
  setFloatable(false);
  setContextMenuPolicy(Qt::PreventContextMenu);
  setIconSize({20, 20});
  setToolButtonStyle(Qt::ToolButtonIconOnly);
  setStyle(TesselStyle::Shared());
  for (const ToolbarButton& button : model_.Buttons()) AddButton(button);
  if (auto* rest = findChild<QToolButton*>("qt_toolbar_ext_button")) {
    rest->setAccessibleName(tr("More buttons"));
  }
  refresh_ = model_.Refresh.Connect([this] { Draw(); });
  Draw();
}

QAction* ToolbarView::ActionOf(const std::string& key) const {
  const auto it = actions_.find(key);
  return it == actions_.end() ? nullptr : it->second;
}

void ToolbarView::AddButton(const ToolbarButton& button) {
  if (button.style == ButtonStyle::kSeparator) {
    addSeparator();
    return;
  }
  const QString key = QString::fromStdString(button.key);
  const QString toolTip = ShownText(button.toolTip);
  QAction* action = addAction(SvgIcon(key), toolTip);
  action->setObjectName(key);
  action->setToolTip(PlainToolTip(toolTip));
  action->setCheckable(button.style == ButtonStyle::kTwoState);
  connect(action, &QAction::triggered, this,
          [this, pressed = button.key] { model_.Press(pressed); });

  auto* tool = qobject_cast<QToolButton*>(widgetForAction(action));
  if (button.style == ButtonStyle::kDropDown) {
    auto* menu = new QMenu(this);
    menu->setToolTipsVisible(true);
    menu->setAccessibleName(toolTip);
    action->setMenu(menu);
    tool->setPopupMode(QToolButton::MenuButtonPopup);
    ForgetAccessibility(*tool);
  }
  tool->setObjectName(key);
  tool->setStyle(TesselStyle::Shared());
  tool->setAccessibleName(toolTip);
  tool->setFocusPolicy(Qt::TabFocus);
  tool->installEventFilter(this);
  actions_[button.key] = action;
}

void ToolbarView::ShowWords(bool words) {
  setToolButtonStyle(words ? Qt::ToolButtonTextBesideIcon : Qt::ToolButtonIconOnly);
  for (const auto& [key, action] : actions_) {
    action->setIconText(words ? WordOf(key) : action->text());
  }
}

bool ToolbarView::eventFilter(QObject* watched, QEvent* event) {
  auto* tool = qobject_cast<QToolButton*>(watched);
  if (tool == nullptr || event->type() != QEvent::KeyPress) return false;
  switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Down:
    case Qt::Key_F4:
      if (tool->defaultAction()->menu() != nullptr) tool->showMenu();
      return true;
    case Qt::Key_Left:
      MoveFocus(*tool, -1);
      return true;
    case Qt::Key_Right:
      MoveFocus(*tool, 1);
      return true;
    default:
      return false;
  }
}

void ToolbarView::MoveFocus(const QToolButton& from, int by) {
  std::vector<QWidget*> buttons;
  for (QAction* action : actions()) {
    QWidget* button = widgetForAction(action);
    if (!action->isSeparator() && button->isVisible() && button->isEnabled()) {
      buttons.push_back(button);
    }
  }
  const auto here = std::ranges::find(buttons, &from);
  if (here == buttons.end()) return;
  const auto next = (here - buttons.begin()) + by;
  if (next >= 0 && next < std::ssize(buttons)) {
    buttons[static_cast<std::size_t>(next)]->setFocus(Qt::TabFocusReason);
  }
}

void ToolbarView::Draw() {
  for (const ToolbarButton& button : model_.Buttons()) {
    QAction* action = ActionOf(button.key);
    if (action == nullptr) continue;
    if (action->menu() != nullptr) DrawMenu(*action->menu(), button);
    if (action->isEnabled() != button.enabled) {
      EnableOrDisable(*widgetForAction(action), button.enabled);
      action->setEnabled(button.enabled);
    }
    action->setChecked(button.pressed);
  }
  DrawState(*this, model_);
}

// An item may be the one whose choice changed the menu: it outlives its own signal.
void ToolbarView::DrawMenu(QMenu& menu, const ToolbarButton& button) {
  auto& shown = shownMenus_[&menu];
  if (SameMenu(shown, button.menu) && !menu.isEmpty()) return;
  for (QAction* old : menu.actions()) {
    menu.removeAction(old);
    old->deleteLater();
  }
  for (std::size_t i = 0; i < button.menu.size(); ++i) {
    const ButtonMenuItem& item = button.menu[i];
    if (item.IsSeparator()) {
      menu.addSeparator();
      continue;
    }
    QAction* action = menu.addAction(WithoutMnemonics(ShownName(item.text)));
    action->setToolTip(PlainToolTip(ShownName(item.tag.empty() ? item.text : item.tag)));
    connect(action, &QAction::triggered, this,
            [this, key = button.key, place = static_cast<int>(i) + 1] {
              model_.PressMenuItem(key, place);
            });
  }
  shown = button.menu;
}

void ToolbarView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().window());
}

}  // namespace tessel
