#include <algorithm>

#include "drive/Commands.h"
#include "drive/Refusal.h"
#include "drive/Target.h"

namespace tessel::drive {
namespace {

constexpr int kAllModifiers = 7;

const ToolbarButton& UsableButton(const Toolbar& toolbar, const std::string& key) {
  const ToolbarButton* button = toolbar.Find(key);
  if (button == nullptr) throw Refusal("unknown key");
  if (!button->enabled) throw Refusal("disabled");
  return *button;
}

void ClickTab(Player& person, TabStrip& strip, const Fields& fields) {
  const int tab = fields.Whole("tab");
  if (tab < 1 || tab > strip.Count()) throw Refusal("unknown entry");
  person.PressTab(strip, tab);
}

void ClickToolbar(Player& person, Toolbar& toolbar, const Fields& fields) {
  const std::string key = fields.Text("key");
  UsableButton(toolbar, key);
  person.PressButton(toolbar, key);
}

/// The place, from 1, of the menu item that "key" or "item" names.
int PlaceOfMenuItem(const ToolbarButton& button, const Fields& fields) {
  const auto& menu = button.menu;
  std::size_t place = 0;
  if (const auto key = fields.OptionalText("key")) {
    if (key->empty()) throw Refusal("unknown key");
    const auto it = std::ranges::find(menu, *key, &ButtonMenuItem::key);
    if (it == menu.end()) throw Refusal("unknown key");
    place = static_cast<std::size_t>(it - menu.begin()) + 1;
  } else {
    const int item = fields.Whole("item");
    if (item < 1 || item > std::ssize(menu)) throw Refusal("unknown entry");
    place = static_cast<std::size_t>(item);
  }
  if (menu[place - 1].IsSeparator()) throw Refusal("a separator");
  return static_cast<int>(place);
}

int NamedEntry(const ListControl& list, const Fields& fields) {
  const int entry = fields.Whole("entry");
  if (entry < 0 || entry >= list.ListCount()) throw Refusal("unknown entry");
  return entry;
}

void OpenPopup(Stage& stage, RichTextBox& editor, MouseButton button) {
  stage.TakePopupOpened();
  stage.Person().ReleaseMouse(editor, button);
}

}  // namespace

Json Click(Stage& stage, const Fields& fields) {
  Control& control = GestureTarget(stage, fields);
  Player& person = stage.Person();
  if (auto* button = dynamic_cast<CommandButton*>(&control)) {
    person.Press(*button);
  } else if (auto* box = dynamic_cast<CheckBox*>(&control)) {
    person.Press(*box);
  } else if (auto* option = dynamic_cast<OptionButton*>(&control)) {
    person.Press(*option);
  } else if (auto* strip = dynamic_cast<TabStrip*>(&control)) {
    ClickTab(person, *strip, fields);
  } else if (auto* toolbar = dynamic_cast<Toolbar*>(&control)) {
    ClickToolbar(person, *toolbar, fields);
  } else {
    throw Refusal("cannot be clicked");
  }
  return Json::object();
}

Json ChooseMenuItem(Stage& stage, const Fields& fields) {
  Toolbar& toolbar = stage.Tessel().Controls().tbToolBar;
  const std::string key = fields.Text("button");
  RefuseBehindForm(stage);
  RefuseUnusable(toolbar);
  const int item = PlaceOfMenuItem(UsableButton(toolbar, key), fields);
  stage.Person().PressMenuItem(toolbar, key, item);
  return Json::object();
}

Json ChoosePopupItem(Stage& stage, const Fields& fields) {
  HostedControls& controls = stage.Tessel().Controls();
  PopupMenu& menu = controls.mnuRtbPopup;
  const std::string name = fields.Text("item");
  const auto leaves = menu.Leaves();
  if (std::ranges::find(leaves, name, &MenuItem::name) == leaves.end()) {
    throw Refusal("unknown key");
  }
  RichTextBox& editor = stage.Tessel().OpenDocuments().CurrentEditor();
  RefuseBehindForm(stage);
  RefuseUnusable(editor);
  OpenPopup(stage, editor, MouseButton::kRight);
  if (!stage.TakePopupOpened()) throw Refusal("no popup menu");
  if (!menu.Find(name)->enabled) {
    stage.Person().Dismiss(menu);
    throw Refusal("disabled");
  }
  stage.Person().Choose(menu, name);
  return Json::object();
}

Json ReleaseMouse(Stage& stage, const Fields& fields) {
  RichTextBox& editor = GestureEditor(stage, fields);
  const int button = fields.Whole("button");
  if (button != 1 && button != 2 && button != 4) throw Refusal("unknown mouse button");
  OpenPopup(stage, editor, static_cast<MouseButton>(button));
  if (stage.TakePopupOpened()) stage.Person().Dismiss(stage.Tessel().Controls().mnuRtbPopup);
  return Json::object();
}

Json SelectEntry(Stage& stage, const Fields& fields) {
  Control& control = GestureTarget(stage, fields);
  if (auto* list = dynamic_cast<ListBox*>(&control)) {
    stage.Person().Pick(*list, NamedEntry(*list, fields));
  } else if (auto* combo = dynamic_cast<ComboBox*>(&control)) {
    stage.Person().Pick(*combo, NamedEntry(*combo, fields));
  } else {
    throw Refusal("has no entries");
  }
  return Json::object();
}

Json DoubleClick(Stage& stage, const Fields& fields) {
  auto* list = dynamic_cast<ListBox*>(&GestureTarget(stage, fields));
  if (list == nullptr) throw Refusal("has no list");
  stage.Person().PickTwice(*list, NamedEntry(*list, fields));
  return Json::object();
}

Json Type(Stage& stage, const Fields& fields) {
  Control& control = GestureTarget(stage, fields);
  const std::string text = fields.Text("text");
  if (auto* box = dynamic_cast<TextBox*>(&control)) {
    stage.Person().Type(*box, text);
  } else if (auto* combo = dynamic_cast<ComboBox*>(&control)) {
    if (!combo->Editable()) throw Refusal("cannot be typed into");
    stage.Person().Type(*combo, text);
  } else if (auto* editor = dynamic_cast<RichTextBox*>(&control)) {
    const bool nothing = text.empty() && editor->SelLength() == 0;
    if (!nothing) stage.Person().Type(*editor, text);
  } else {
    throw Refusal("cannot be typed into");
  }
  return Json::object();
}

Json SelectText(Stage& stage, const Fields& fields) {
  RichTextBox& editor = GestureEditor(stage, fields);
  const int start = fields.Whole("start");
  const int length = fields.OptionalWhole("length").value_or(0);
  if (start < 0 || length < 0) throw Refusal("a selection cannot be negative");
  stage.Person().SelectText(editor, {start, length});
  return Json::object();
}

Json MoveFocus(Stage& stage, const Fields& fields) {
  Control& control = GestureTarget(stage, fields);
  const bool takesFocus =
      dynamic_cast<Label*>(&control) == nullptr && dynamic_cast<PictureBox*>(&control) == nullptr &&
      dynamic_cast<Frame*>(&control) == nullptr && dynamic_cast<Timer*>(&control) == nullptr &&
      dynamic_cast<CommonDialog*>(&control) == nullptr &&
      dynamic_cast<PopupMenu*>(&control) == nullptr;
  if (!takesFocus) throw Refusal("cannot take the focus");
  stage.Person().Enter(control);
  return Json::object();
}

Json PressKey(Stage& stage, const Fields& fields) {
  const int code = fields.Whole("code");
  const int shift = fields.OptionalWhole("shift").value_or(0);
  if (code < 1 || code > 255) throw Refusal("unknown key");
  if (shift < 0 || shift > kAllModifiers) throw Refusal("unknown shift mask");
  if (stage.OpenForms().empty()) {
    stage.Person().PressKey(stage.Tessel(), code, shift);
  } else {
    stage.Person().PressKey(*stage.OpenForms().back(), code, shift);
  }
  return Json::object();
}

Json QueueAnswer(Stage& stage, const Fields& fields) {
  const int kinds = fields.Has("open") + fields.Has("save") + fields.Has("message");
  if (kinds != 1) throw Refusal("needs one of \"open\", \"save\" and \"message\"");
  Answers& answers = stage.QueuedAnswers();
  if (fields.Has("open")) {
    answers.open.push_back(fields.At("open").is_null() ? ChosenFiles() : fields.Texts("open"));
  } else if (fields.Has("save")) {
    const bool cancel = fields.At("save").is_null();
    answers.save.push_back(cancel ? ChosenFiles() : ChosenFiles{fields.Text("save")});
  } else {
    const auto answer = MessageAnswerOf(fields.Text("message"));
    if (!answer) throw Refusal("unknown answer");
    answers.message.push_back(*answer);
  }
  return Json::object();
}

}  // namespace tessel::drive
