// What a person does at the widgets.
#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPointer>
#include <QTabBar>
#include <QToolButton>
#include <algorithm>
#include <array>

#include "drive/qt/EditorScreen.h"
#include "drive/qt/Input.h"
#include "drive/qt/WidgetPlayer.h"
#include "qt/base/QtText.h"
#include "qt/editor/ScintillaView.h"
#include "qt/views/PopupMenuView.h"
#include "qt/views/ToolbarView.h"

namespace tessel::drive {
namespace {

// Left of the arrow of a drop-down, and on the mark of a check box.
QPoint LeftPartOf(const QWidget& widget) { return {6, widget.height() / 2}; }

struct KeyPair {
  int code;
  int key;
};
constexpr int kCodeOfF1 = 112;
constexpr int kCodeOfF24 = 135;
constexpr std::array kNamedKeys = {
    KeyPair{8, Qt::Key_Backspace}, KeyPair{9, Qt::Key_Tab},     KeyPair{13, Qt::Key_Return},
    KeyPair{27, Qt::Key_Escape},   KeyPair{33, Qt::Key_PageUp}, KeyPair{34, Qt::Key_PageDown},
    KeyPair{35, Qt::Key_End},      KeyPair{36, Qt::Key_Home},   KeyPair{37, Qt::Key_Left},
    KeyPair{38, Qt::Key_Up},       KeyPair{39, Qt::Key_Right},  KeyPair{40, Qt::Key_Down},
    KeyPair{45, Qt::Key_Insert},   KeyPair{46, Qt::Key_Delete},
};

/// The toolkit's key for a key code, or 0.
int KeyOf(int code) {
  const bool letterOrDigit = (code >= 'A' && code <= 'Z') || (code >= '0' && code <= '9');
  if (letterOrDigit) return code;
  if (code >= kCodeOfF1 && code <= kCodeOfF24) return Qt::Key_F1 + (code - kCodeOfF1);
  const auto it = std::ranges::find(kNamedKeys, code, &KeyPair::code);
  return it == kNamedKeys.end() ? 0 : it->key;
}

Qt::KeyboardModifiers ModifiersOf(int shift) {
  Qt::KeyboardModifiers modifiers;
  if (shift & 1) modifiers |= Qt::ShiftModifier;
  if (shift & 2) modifiers |= Qt::ControlModifier;
  if (shift & 4) modifiers |= Qt::AltModifier;
  return modifiers;
}

Qt::MouseButton QtButton(MouseButton button) {
  switch (button) {
    case MouseButton::kRight:
      return Qt::RightButton;
    case MouseButton::kMiddle:
      return Qt::MiddleButton;
    case MouseButton::kLeft:
      break;
  }
  return Qt::LeftButton;
}

/// Replaces the whole text of a box. True when the box changed, so that the model was told.
template <class Box>
bool RetypeAll(Box& box, bool empty, const QString& text) {
  box.selectAll();
  if (!text.isEmpty()) {
    SendText(box, text);
    return true;
  }
  if (!empty) SendKey(box, Qt::Key_Delete);
  return !empty;
}

}  // namespace

void WidgetPlayer::Press(CommandButton& button) {
  auto& widget = As<QAbstractButton>(button);
  ClickAt(widget, widget.rect().center());
}

void WidgetPlayer::Press(CheckBox& box) {
  auto& widget = As<QAbstractButton>(box);
  ClickAt(widget, LeftPartOf(widget));
}

void WidgetPlayer::Press(OptionButton& option) {
  auto& widget = As<QAbstractButton>(option);
  ClickAt(widget, LeftPartOf(widget));
}

void WidgetPlayer::PressTab(TabStrip& strip, int tab) {
  auto& bar = As<QTabBar>(strip);
  ClickAt(bar, bar.tabRect(tab - 1).center());
}

void WidgetPlayer::PressButton(Toolbar& toolbar, const std::string& key) {
  auto& bar = As<ToolbarView>(toolbar);
  QAction* action = bar.ActionOf(key);
  QWidget* button = bar.widgetForAction(action);
  if (button->isVisible()) {
    ClickAt(*button, LeftPartOf(*button));
  } else {
    action->trigger();  // it waits behind the bar's end
  }
}

void WidgetPlayer::PressMenuItem(Toolbar& toolbar, const std::string& key, int item) {
  QMenu& menu = *As<ToolbarView>(toolbar).ActionOf(key)->menu();
  QAction* action = menu.actions().at(item - 1);
  menu.popup(tessel_->mapToGlobal(QPoint(0, 0)));
  ChooseAction(menu, *action);
}

void WidgetPlayer::Pick(ListBox& list, int entry) {
  auto& widget = As<QListWidget>(list);
  widget.scrollToItem(widget.item(entry));
  ClickAt(*widget.viewport(), widget.visualItemRect(widget.item(entry)).center());
}

void WidgetPlayer::PickTwice(ListBox& list, int entry) {
  Pick(list, entry);
  auto& widget = As<QListWidget>(list);
  const QPoint at = widget.visualItemRect(widget.item(entry)).center();
  SendMouse(*widget.viewport(), QEvent::MouseButtonDblClick, at, Qt::LeftButton);
  SendMouse(*widget.viewport(), QEvent::MouseButtonRelease, at, Qt::LeftButton);
}

void WidgetPlayer::Pick(ComboBox& list, int entry) {
  auto& widget = As<QComboBox>(list);
  widget.showPopup();
  QAbstractItemView* view = widget.view();
  view->setCurrentIndex(
      widget.model()->index(entry, widget.modelColumn(), widget.rootModelIndex()));
  SendKey(*view, Qt::Key_Return);
}

void WidgetPlayer::Type(TextBox& box, const std::string& text) {
  const QString typed = ShownText(text);
  QWidget* widget = widgets_.Find(box);
  const bool empty = box.Text().empty();
  auto* line = qobject_cast<QLineEdit*>(widget);
  const bool told = line != nullptr ? RetypeAll(*line, empty, typed)
                                    : RetypeAll(As<QPlainTextEdit>(box), empty, typed);
  if (!told) box.Type(text);
}

void WidgetPlayer::Type(ComboBox& box, const std::string& text) {
  QLineEdit& line = *As<QComboBox>(box).lineEdit();
  if (!RetypeAll(line, line.text().isEmpty(), ShownText(text))) box.Type(text);
}

void WidgetPlayer::Type(RichTextBox& editor, const std::string& text) {
  auto& view = As<ScintillaView>(editor);
  if (text.empty()) {
    SendKey(view, Qt::Key_Delete);
  } else if (text.find_first_of("\r\n") == std::string::npos) {
    EditorScreen(view).Type(ShownText(text));
  } else {  // the Return key makes the break that the document has; these are to come as they are
    const std::string held = clipboard_.GetText();
    clipboard_.SetText(text);
    SendKey(view, Qt::Key_V, Qt::ControlModifier);
    clipboard_.SetText(held);
  }
}

void WidgetPlayer::SelectText(RichTextBox& editor, SelectedRange range) {
  editor.SelectByHand(range.start, range.length);
}

void WidgetPlayer::ReleaseMouse(RichTextBox& editor, MouseButton button) {
  QWidget& surface = *As<ScintillaView>(editor).viewport();
  SendMouse(surface, QEvent::MouseButtonRelease, surface.rect().center(), QtButton(button));
}

void WidgetPlayer::Choose(PopupMenu& menu, const std::string& item) {
  auto& view = As<PopupMenuView>(menu);
  ChooseAction(view, *view.findChild<QAction*>(QString::fromStdString(item)));
}

void WidgetPlayer::Dismiss(PopupMenu& menu) { As<PopupMenuView>(menu).close(); }

void WidgetPlayer::Enter(Control& control) {
  QWidget* widget = widgets_.Find(control);
  if (widget == nullptr) return;
  widget->window()->activateWindow();
  Settle();
  if (widget->hasFocus()) widget->clearFocus();
  widget->setFocus(Qt::TabFocusReason);
}

// At the control itself, which has the focus meanwhile: its parts are not to act on the key.
void WidgetPlayer::PressKey(ucTessel&, int code, int shift) {
  const int key = KeyOf(code);
  if (key == 0) return;
  const QPointer<QWidget> focused = tessel_->window()->focusWidget();
  tessel_->setFocus(Qt::OtherFocusReason);
  SendKey(*tessel_, key, ModifiersOf(shift));
  if (focused && tessel_->hasFocus()) focused->setFocus(Qt::OtherFocusReason);
}

void WidgetPlayer::PressKey(Form& form, int code, int shift) {
  if (const int key = KeyOf(code); key != 0) {
    SendKey(*tessel_->DialogFor(form), key, ModifiersOf(shift));
  }
}

}  // namespace tessel::drive
