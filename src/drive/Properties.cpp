#include "drive/Properties.h"

#include "surface/HostedControls.h"

namespace tessel::drive {
namespace {

const char* NameOf(ButtonStyle style) {
  switch (style) {
    case ButtonStyle::kTwoState:
      return "two-state";
    case ButtonStyle::kDropDown:
      return "drop-down";
    case ButtonStyle::kSeparator:
      return "separator";
    case ButtonStyle::kButton:
      break;
  }
  return "button";
}

template <class Captioned>
bool AddCaption(Json& out, const Control& control) {
  const bool applies = dynamic_cast<const Captioned*>(&control) != nullptr;
  if (applies) out["Caption"] = FromBytes(control.Caption());
  return applies;
}

void AddList(Json& out, const ListControl& list) {
  out["ListIndex"] = list.ListIndex();
  out["List"] = FromBytes(list.List());
}

void AddTabs(Json& out, const TabStrip& strip) {
  out["Selected"] = strip.Selected();
  Json tabs = Json::array();
  for (int place = 1; place <= strip.Count(); ++place) {
    const Tab& tab = strip.At(place);
    tabs.push_back({{"Caption", FromBytes(tab.caption)},
                    {"Key", FromBytes(tab.key)},
                    {"Tag", FromBytes(tab.tag)},
                    {"Image", FromBytes(tab.image)}});
  }
  out["Tabs"] = std::move(tabs);
}

Json MenuOf(const ToolbarButton& button) {
  Json menu = Json::array();
  for (const ButtonMenuItem& item : button.menu) {
    menu.push_back({{"Text", FromBytes(item.text)},
                    {"Key", FromBytes(item.key)},
                    {"Tag", FromBytes(item.tag)}});
  }
  return menu;
}

void AddButtons(Json& out, const Toolbar& toolbar) {
  Json buttons = Json::array();
  for (const ToolbarButton& button : toolbar.Buttons()) {
    buttons.push_back({{"Key", FromBytes(button.key)},
                       {"ToolTip", FromBytes(button.toolTip)},
                       {"Style", NameOf(button.style)},
                       {"Enabled", button.enabled},
                       {"Value", button.pressed ? 1 : 0},
                       {"Menu", MenuOf(button)}});
  }
  out["Buttons"] = std::move(buttons);
}

Json ItemsOf(const std::vector<MenuItem>& items) {
  Json list = Json::array();
  for (const MenuItem& item : items) {
    list.push_back({{"Name", FromBytes(item.name)},
                    {"Caption", FromBytes(item.caption)},
                    {"Enabled", item.enabled},
                    {"Items", ItemsOf(item.children)}});
  }
  return list;
}

Json SelColorOf(const RichTextBox& editor) {
  const auto colour = editor.SelColor();
  return colour ? Json(*colour) : Json();
}

void AddEditor(Json& out, const RichTextBox& editor) {
  out["Text"] = FromBytes(editor.Text());
  out["SelStart"] = editor.SelStart();
  out["SelLength"] = editor.SelLength();
  out["SelText"] = FromBytes(editor.SelText());
  out["SelColor"] = SelColorOf(editor);
  out["HideSelection"] = editor.HideSelection();
  out["FileName"] = FromBytes(editor.FileName());
  out["CanUndo"] = editor.CanUndo();
}

void AddValue(Json& out, const Control& control) {
  if (const auto* box = dynamic_cast<const CheckBox*>(&control)) {
    out["Value"] = box->Value() ? 1 : 0;
  } else if (const auto* option = dynamic_cast<const OptionButton*>(&control)) {
    out["Value"] = option->Value();
  }
}

}  // namespace

Json PropertiesOf(const Control& control) {
  Json out{{"Left", FromTwips(control.Left())},   {"Top", FromTwips(control.Top())},
           {"Width", FromTwips(control.Width())}, {"Height", FromTwips(control.Height())},
           {"Visible", control.Visible()},        {"Enabled", control.Enabled()},
           {"Tag", FromBytes(control.Tag())}};
  AddCaption<Label>(out, control) || AddCaption<Frame>(out, control) ||
      AddCaption<CommandButton>(out, control) || AddCaption<CheckBox>(out, control) ||
      AddCaption<OptionButton>(out, control);
  AddValue(out, control);
  if (const auto* box = dynamic_cast<const TextBox*>(&control)) {
    out["Text"] = FromBytes(box->Text());
  } else if (const auto* combo = dynamic_cast<const ComboBox*>(&control)) {
    out["Text"] = FromBytes(combo->Text());
    AddList(out, *combo);
  } else if (const auto* list = dynamic_cast<const ListControl*>(&control)) {
    AddList(out, *list);
  } else if (const auto* strip = dynamic_cast<const TabStrip*>(&control)) {
    AddTabs(out, *strip);
  } else if (const auto* toolbar = dynamic_cast<const Toolbar*>(&control)) {
    AddButtons(out, *toolbar);
  } else if (const auto* menu = dynamic_cast<const PopupMenu*>(&control)) {
    out["Items"] = ItemsOf(menu->Items());
  } else if (const auto* editor = dynamic_cast<const RichTextBox*>(&control)) {
    AddEditor(out, *editor);
  }
  return out;
}

Json ColoursOf(const RichTextBox& editor) {
  Json runs = Json::array();
  for (const ColourRun& run : editor.Store().Runs(0, editor.Length())) {
    if (run.colour != kBlack) runs.push_back(Json::array({run.start, run.length, run.colour}));
  }
  return runs;
}

}  // namespace tessel::drive
