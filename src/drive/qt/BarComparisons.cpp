// Tabs, the toolbar and menus.
#include <QAction>
#include <QMenu>
#include <QTabBar>
#include <algorithm>

#include "drive/qt/ControlComparisons.h"
#include "qt/base/QtText.h"
#include "qt/views/ToolbarView.h"

namespace tessel::drive {
namespace {

constexpr const char* kSeparator = "-";

QString CaptionOf(const QAction& action) {
  return action.isSeparator() ? kSeparator : action.text();
}

void CompareTab(const Tab& tab, const QTabBar& bar, int index, Comparison& comparison) {
  const std::string name = "tab " + std::to_string(index + 1);
  comparison.Expect(name + "'s caption", WithoutMnemonics(ShownName(tab.caption)),
                    bar.tabText(index));
  const QString image = bar.tabIcon(index).isNull() ? QString() : bar.tabData(index).toString();
  comparison.Expect(name + "'s image", ShownText(tab.image), image);
}

void CompareDropDown(const ToolbarButton& button, const QMenu* menu, Comparison& comparison) {
  const auto items = menu == nullptr ? QList<QAction*>() : menu->actions();
  comparison.Expect(button.key + "'s number of items", long{std::ssize(button.menu)},
                    long{items.size()});
  const auto count = std::min<std::ptrdiff_t>(std::ssize(button.menu), items.size());
  for (std::ptrdiff_t i = 0; i < count; ++i) {
    const ButtonMenuItem& item = button.menu[static_cast<std::size_t>(i)];
    const QString caption =
        item.IsSeparator() ? kSeparator : WithoutMnemonics(ShownName(item.text));
    comparison.Expect(button.key + "'s item " + std::to_string(i + 1), caption,
                      CaptionOf(*items[i]));
  }
}

void CompareBarButton(const ToolbarButton& button, const ToolbarView& bar, Comparison& comparison) {
  const QAction* action = bar.ActionOf(button.key);
  if (action == nullptr) return comparison.Note(button.key, "a button", "missing");
  comparison.Expect(button.key + "'s tool tip", PlainToolTip(ShownText(button.toolTip)),
                    action->toolTip());
  comparison.Expect(button.key + " enabled", button.enabled, action->isEnabled());
  comparison.Expect(button.key + " pressed", button.pressed, action->isChecked());
  CompareDropDown(button, action->menu(), comparison);
}

void CompareItems(const std::vector<MenuItem>& items, const QMenu& menu, Comparison& comparison) {
  const auto actions = menu.actions();
  comparison.Expect("number of items", long{std::ssize(items)}, long{actions.size()});
  const auto count = std::min<std::ptrdiff_t>(std::ssize(items), actions.size());
  for (std::ptrdiff_t i = 0; i < count; ++i) {
    const MenuItem& item = items[static_cast<std::size_t>(i)];
    const QAction& action = *actions[i];
    comparison.Expect("caption of " + item.name, ShownText(item.caption), CaptionOf(action));
    if (item.IsSeparator()) continue;
    comparison.Expect(item.name + " enabled", item.enabled, action.isEnabled());
    if (action.menu() != nullptr) CompareItems(item.children, *action.menu(), comparison);
  }
}

}  // namespace

void CompareTabStrip(const TabStrip& model, QWidget& widget, Comparison& comparison) {
  const auto* bar = qobject_cast<const QTabBar*>(&widget);
  if (bar == nullptr) return comparison.Note("widget", "a row of tabs", "another kind");
  comparison.Expect("number of tabs", long{model.Count()}, long{bar->count()});
  comparison.Expect("selected tab", long{model.Selected()}, long{bar->currentIndex() + 1});
  for (int i = 0; i < std::min(model.Count(), bar->count()); ++i) {
    CompareTab(model.At(i + 1), *bar, i, comparison);
  }
}

void CompareToolbar(const Toolbar& model, QWidget& widget, Comparison& comparison) {
  const auto* bar = qobject_cast<const ToolbarView*>(&widget);
  if (bar == nullptr) return comparison.Note("widget", "a toolbar", "another kind");
  for (const ToolbarButton& button : model.Buttons()) {
    if (button.style != ButtonStyle::kSeparator) CompareBarButton(button, *bar, comparison);
  }
}

void ComparePopupMenu(const PopupMenu& model, QWidget& widget, Comparison& comparison) {
  const auto* menu = qobject_cast<const QMenu*>(&widget);
  if (menu == nullptr) return comparison.Note("widget", "a menu", "another kind");
  CompareItems(model.Items(), *menu, comparison);
}

}  // namespace tessel::drive
