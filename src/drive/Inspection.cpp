#include <utility>

#include "drive/Commands.h"
#include "drive/Properties.h"
#include "drive/Target.h"
#include "tools/Search.h"

namespace tessel::drive {
namespace {

Json DocumentTabs(const TabStrip& strip, const Sight& sight) {
  Json tabs = Json::array();
  for (const Tab& tab : sight.Tabs(strip)) {
    tabs.push_back({{"caption", FromBytes(tab.caption)},
                    {"tag", FromBytes(tab.tag)},
                    {"image", FromBytes(tab.image)}});
  }
  return tabs;
}

Json Editors(const HostedControls& controls, const Sight& sight) {
  Json editors = Json::array();
  for (int i = 0; i < controls.rtbCon.Count(); ++i) {
    const RichTextBox& editor = controls.rtbCon[i];
    const SelectedRange range = sight.Selection(editor);
    editors.push_back({{"left", FromTwips(editor.Left())},
                       {"top", FromTwips(editor.Top())},
                       {"width", FromTwips(editor.Width())},
                       {"height", FromTwips(editor.Height())},
                       {"visible", editor.Visible()},
                       {"tag", FromBytes(editor.Tag())},
                       {"fileName", FromBytes(editor.FileName())},
                       {"length", editor.Length()},
                       {"selStart", range.start},
                       {"selLength", range.length},
                       {"canUndo", editor.CanUndo()}});
  }
  return editors;
}

Json Pages(const HostedControls& controls, const Sight& sight) {
  Json pages = Json::array();
  for (int i = 0; i < controls.picCon.Count(); ++i) {
    const PictureBox& page = controls.picCon[i];
    pages.push_back({{"left", FromTwips(page.Left())},
                     {"top", FromTwips(page.Top())},
                     {"width", FromTwips(page.Width())},
                     {"enabled", sight.Enabled(page)}});
  }
  return pages;
}

Json Frames(const HostedControls& controls) {
  Json frames = Json::array();
  for (int i = 0; i < controls.fraCon.Count(); ++i) {
    frames.push_back({{"width", FromTwips(controls.fraCon[i].Width())}});
  }
  return frames;
}

Json PlaceOf(const Control& control) {
  return {{"left", FromTwips(control.Left())},
          {"top", FromTwips(control.Top())},
          {"width", FromTwips(control.Width())},
          {"height", FromTwips(control.Height())}};
}

Json Category(const TabStrip& strip, const Sight& sight) {
  Json category{{"selected", sight.SelectedTab(strip)}};
  category.update(PlaceOf(strip));
  return category;
}

Json EditorHost(const Control& host) {
  return {{"top", FromTwips(host.Top())},
          {"width", FromTwips(host.Width())},
          {"height", FromTwips(host.Height())}};
}

}  // namespace

Json GetProperties(Stage& stage, const Fields& fields) {
  return {{"value", PropertiesOf(NamedControl(stage, fields), stage.Person())}};
}

Json GetText(Stage& stage, const Fields& fields) {
  return {{"text", FromBytes(stage.Person().Text(NamedEditor(stage, fields)))}};
}

Json GetColours(Stage& stage, const Fields& fields) {
  return {{"runs", ColoursOf(NamedEditor(stage, fields), stage.Person())}};
}

Json GetState(Stage& stage, const Fields&) {
  const ucTessel& tessel = stage.Tessel();
  const HostedControls& controls = tessel.Controls();
  const Sight& sight = stage.Person();
  Json state{{"current", Index(tessel.OpenDocuments().Current().Place())},
             {"selectedTab", sight.SelectedTab(controls.tbsRtb)},
             {"tabs", DocumentTabs(controls.tbsRtb, sight)},
             {"editors", Editors(controls, sight)},
             {"category", Category(controls.tbsCon, sight)},
             {"pages", Pages(controls, sight)},
             {"frames", Frames(controls)},
             {"documentStrip", PlaceOf(controls.tbsRtb)},
             {"editorHost", EditorHost(controls.picRtb)},
             {"pointer", static_cast<int>(stage.Pointer().Shape())},
             {"conPath", FromBytes(tessel.CONPath())},
             {"findText", FromBytes(tessel.LastSearch().FindText)},
             {"findPos", tessel.LastSearch().FindPos}};
  return {{"state", std::move(state)}};
}

}  // namespace tessel::drive
