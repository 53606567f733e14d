#include "qt/views/ToolbarView.h"

#include <QPainter>
#include <QToolButton>
#include <algorithm>

#include "qt/base/ControlView.h"
#include "qt/base/QtText.h"
#include "qt/looks/SvgIcon.h"
#include "qt/looks/TesselStyle.h"
#include "qt/looks/Theme.h"

namespace tessel {
namespace {

bool SameMenu(const std::vector<ButtonMenuItem>& a, const std::vector<ButtonMenuItem>& b) {
  return std::ranges::equal(a, b, [](const ButtonMenuItem& x, const ButtonMenuItem& y) {
    return x.text == y.text && x.key == y.key && x.tag == y.tag;
  });
}

}  // namespace

ToolbarView::ToolbarView(Toolbar& model, QWidget* parent) : QToolBar(parent), model_(model) {
  setMovable(false);
  setFloatable(false);
  setContextMenuPolicy(Qt::PreventContextMenu);
  setIconSize({20, 20});
  setToolButtonStyle(Qt::ToolButtonIconOnly);
  setStyle(TesselStyle::Shared());
  for (const ToolbarButton& button : model_.Buttons()) AddButton(button);
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
    action->setMenu(menu);
    tool->setPopupMode(QToolButton::MenuButtonPopup);
  }
  tool->setObjectName(key);
  tool->setStyle(TesselStyle::Shared());
  tool->setAccessibleName(toolTip);
  tool->setFocusPolicy(Qt::TabFocus);
  actions_[button.key] = action;
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
