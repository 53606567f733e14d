#include "drive/Properties.h"

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
bool AddCaption(Json& out, const Control& control, const Sight& sight) {
  const bool applies = dynamic_cast<const Captioned*>(&control) != nullptr;
  if (applies) out["Caption"] = FromBytes(sight.Caption(control));
  return applies;
}

void AddList(Json& out, const ListControl& list, const Sight& sight) {
  out["ListIndex"] = sight.ListIndex(list);
  out["List"] = FromBytes(sight.Entries(list));
}

void AddTabs(Json& out, const TabStrip& strip, const Sight& sight) {
  out["Selected"] = sight.SelectedTab(strip);
  Json tabs = Json::array();
  for (const Tab& tab : sight.Tabs(strip)) {
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

void AddButtons(Json& out, const Toolbar& toolbar, const Sight& sight) {
  Json buttons = Json::array();
  for (const ToolbarButton& button : sight.Buttons(toolbar)) {
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

void AddEditor(Json& out, const RichTextBox& editor, const Sight& sight) {
  const std::string text = sight.Text(editor);
  const SelectedRange range = sight.Selection(editor);
  out["Text"] = FromBytes(text);
  out["SelStart"] = range.start;
  out["SelLength"] = range.length;
  out["SelText"] = FromBytes(std::string_view(text).substr(static_cast<std::size_t>(range.start),
                                                           static_cast<std::size_t>(range.length)));
  out["SelColor"] = SelColorOf(editor);
  out["HideSelection"] = editor.HideSelection();
  out["FileName"] = FromBytes(editor.FileName());
  out["CanUndo"] = editor.CanUndo();
}

void AddValue(Json& out, const Control& control, const Sight& sight) {
  if (const auto* box = dynamic_cast<const CheckBox*>(&control)) {
    out["Value"] = sight.Checked(*box) ? 1 : 0;
  } else if (const auto* option = dynamic_cast<const OptionButton*>(&control)) {
    out["Value"] = sight.Checked(*option);
  }
}

}  // namespace

Json PropertiesOf(const Control& control, const Sight& sight) {
  Json out{{"Left", FromTwips(control.Left())},   {"Top", FromTwips(control.Top())},
           {"Width", FromTwips(control.Width())}, {"Height", FromTwips(control.Height())},
           {"Visible", control.Visible()},        {"Enabled", sight.Enabled(control)},
           {"Tag", FromBytes(control.Tag())}};
  AddCaption<Label>(out, control, sight) || AddCaption<Frame>(out, control, sight) ||
      AddCaption<CommandButton>(out, control, sight) || AddCaption<CheckBox>(out, control, sight) ||
      AddCaption<OptionButton>(out, control, sight);
  AddValue(out, control, sight);
  if (const auto* box = dynamic_cast<const TextBox*>(&control)) {
    out["Text"] = FromBytes(sight.Text(*box));
  } else if (const auto* combo = dynamic_cast<const ComboBox*>(&control)) {
    out["Text"] = FromBytes(sight.Text(*combo));
    AddList(out, *combo, sight);
  } else if (const auto* list = dynamic_cast<const ListControl*>(&control)) {
    AddList(out, *list, sight);
  } else if (const auto* strip = dynamic_cast<const TabStrip*>(&control)) {
    AddTabs(out, *strip, sight);
  } else if (const auto* toolbar = dynamic_cast<const Toolbar*>(&control)) {
    AddButtons(out, *toolbar, sight);
  } else if (const auto* menu = dynamic_cast<const PopupMenu*>(&control)) {
    out["Items"] = ItemsOf(sight.Items(*menu));
  } else if (const auto* editor = dynamic_cast<const RichTextBox*>(&control)) {
    AddEditor(out, *editor, sight);
  }
  return out;
}

Json ColoursOf(const RichTextBox& editor, const Sight& sight) {
  Json runs = Json::array();
  for (const ColourRun& run : sight.Colours(editor)) {
    if (run.colour != kBlack) runs.push_back(Json::array({run.start, run.length, run.colour}));
  }
  return runs;
}

}  // namespace tessel::drive
