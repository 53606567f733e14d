// What a person sees of the widgets.
#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTabBar>

#include "drive/qt/EditorScreen.h"
#include "drive/qt/WidgetPlayer.h"
#include "qt/base/QtText.h"
#include "qt/editor/ScintillaView.h"
#include "qt/views/ToolbarView.h"
#include "text/Text.h"

namespace tessel::drive {
namespace {

/// The bytes of a name on the screen: those of the model when they look like this.
std::string BytesOfName(const QString& seen, const std::string& modelled) {
  return seen == ShownName(modelled) || seen == WithoutMnemonics(ShownName(modelled))
             ? modelled
             : TypedBytes(seen);
}

std::vector<MenuItem> ItemsOf(const QMenu& menu) {
  std::vector<MenuItem> items;
  for (const QAction* action : menu.actions()) {
    const std::string caption = action->isSeparator() ? "-" : TypedBytes(action->text());
    MenuItem item{action->objectName().toStdString(), caption, {}, action->isEnabled()};
    if (action->menu() != nullptr) item.children = ItemsOf(*action->menu());
    items.push_back(std::move(item));
  }
  return items;
}

}  // namespace

bool WidgetPlayer::Enabled(const Control& control) const {
  const QWidget* widget = widgets_.Find(control);
  return widget == nullptr ? control.Enabled() : widget->isEnabledTo(widget->parentWidget());
}

std::string WidgetPlayer::Caption(const Control& control) const {
  const QWidget* widget = widgets_.Find(control);
  if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) {
    return TypedBytes(button->text());
  }
  if (const auto* label = qobject_cast<const QLabel*>(widget)) return TypedBytes(label->text());
  return control.Caption();
}

bool WidgetPlayer::Checked(const CheckBox& box) const {
  return As<QAbstractButton>(box).isChecked();
}

bool WidgetPlayer::Checked(const OptionButton& option) const {
  return As<QAbstractButton>(option).isChecked();
}

std::string WidgetPlayer::Text(const TextBox& box) const {
  const QWidget* widget = widgets_.Find(box);
  if (const auto* line = qobject_cast<const QLineEdit*>(widget)) return TypedBytes(line->text());
  return WithCrLf(TypedBytes(As<QPlainTextEdit>(box).toPlainText()));
}

std::string WidgetPlayer::Text(const ComboBox& box) const {
  const auto& widget = As<QComboBox>(box);
  if (widget.lineEdit() != nullptr) return TypedBytes(widget.lineEdit()->text());
  return TypedBytes(widget.currentIndex() < 0 ? widget.placeholderText() : widget.currentText());
}

std::vector<std::string> WidgetPlayer::Entries(const ListControl& list) const {
  std::vector<std::string> entries;
  if (const auto* combo = qobject_cast<const QComboBox*>(widgets_.Find(list))) {
    for (int i = 0; i < combo->count(); ++i) entries.push_back(TypedBytes(combo->itemText(i)));
  } else {
    const auto& widget = As<QListWidget>(list);
    for (int i = 0; i < widget.count(); ++i) entries.push_back(TypedBytes(widget.item(i)->text()));
  }
  return entries;
}

int WidgetPlayer::ListIndex(const ListControl& list) const {
  const auto* combo = qobject_cast<const QComboBox*>(widgets_.Find(list));
  return combo != nullptr ? combo->currentIndex() : As<QListWidget>(list).currentRow();
}

std::vector<Tab> WidgetPlayer::Tabs(const TabStrip& strip) const {
  const auto& bar = As<QTabBar>(strip);
  std::vector<Tab> tabs;
  for (int i = 0; i < bar.count(); ++i) {
    Tab tab = i < strip.Count() ? strip.At(i + 1) : Tab();
    tab.caption = BytesOfName(bar.tabText(i), tab.caption);
    tab.image = bar.tabIcon(i).isNull() ? std::string() : bar.tabData(i).toString().toStdString();
    tabs.push_back(std::move(tab));
  }
  return tabs;
}

int WidgetPlayer::SelectedTab(const TabStrip& strip) const {
  return As<QTabBar>(strip).currentIndex() + 1;
}

std::vector<ToolbarButton> WidgetPlayer::Buttons(const Toolbar& toolbar) const {
  const auto& bar = As<ToolbarView>(toolbar);
  std::vector<ToolbarButton> buttons = toolbar.Buttons();
  for (ToolbarButton& button : buttons) {
    const QAction* action = bar.ActionOf(button.key);
    if (action == nullptr) continue;
    button.toolTip = TypedBytes(action->toolTip());
    button.enabled = action->isEnabled();
    button.pressed = action->isChecked();
    if (action->menu() == nullptr) continue;
    const auto items = action->menu()->actions();
    button.menu.resize(static_cast<std::size_t>(items.size()));
    for (qsizetype i = 0; i < items.size(); ++i) {
      std::string& text = button.menu[static_cast<std::size_t>(i)].text;
      text = items[i]->isSeparator() ? "-" : BytesOfName(items[i]->text(), text);
    }
  }
  return buttons;
}

std::vector<MenuItem> WidgetPlayer::Items(const PopupMenu& menu) const {
  return ItemsOf(As<QMenu>(menu));
}

std::string WidgetPlayer::Text(const RichTextBox& editor) const {
  return EditorScreen(As<ScintillaView>(editor)).Text();
}

SelectedRange WidgetPlayer::Selection(const RichTextBox& editor) const {
  const auto [start, length] = EditorScreen(As<ScintillaView>(editor)).Selection();
  return {start, length};
}

std::vector<ColourRun> WidgetPlayer::Colours(const RichTextBox& editor) const {
  return EditorScreen(As<ScintillaView>(editor)).Colours();
}

}  // namespace tessel::drive
