#include <utility>

#include "drive/Commands.h"
#include "drive/Properties.h"
#include "drive/Target.h"
#include "tools/Search.h"

namespace tessel::drive {
namespace {

Json DocumentTabs(const TabStrip& strip) {
  Json tabs = Json::array();
  for (int place = 1; place <= strip.Count(); ++place) {
    const Tab& tab = strip.At(place);
    tabs.push_back({{"caption", FromBytes(tab.caption)},
                    {"tag", FromBytes(tab.tag)},
                    {"image", FromBytes(tab.image)}});
  }
  return tabs;
}

Json Editors(const HostedControls& controls) {
  Json editors = Json::array();
  for (int i = 0; i < controls.rtbCon.Count(); ++i) {
    const RichTextBox& editor = controls.rtbCon[i];
    editors.push_back({{"left", FromTwips(editor.Left())},
                       {"top", FromTwips(editor.Top())},
                       {"width", FromTwips(editor.Width())},
                       {"height", FromTwips(editor.Height())},
                       {"visible", editor.Visible()},
                       {"tag", FromBytes(editor.Tag())},
                       {"fileName", FromBytes(editor.FileName())},
                       {"length", editor.Length()},
                       {"selStart", editor.SelStart()},
                       {"selLength", editor.SelLength()},
                       {"canUndo", editor.CanUndo()}});
  }
  return editors;
}

Json Pages(const HostedControls& controls) {
  Json pages = Json::array();
  for (int i = 0; i < controls.picCon.Count(); ++i) {
    const PictureBox& page = controls.picCon[i];
    pages.push_back({{"left", FromTwips(page.Left())},
                     {"top", FromTwips(page.Top())},
                     {"width", FromTwips(page.Width())},
                     {"enabled", page.Enabled()}});
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

Json Category(const TabStrip& strip) {
  Json category{{"selected", strip.Selected()}};
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
  return {{"value", PropertiesOf(NamedControl(stage, fields))}};
}

Json GetText(Stage& stage, const Fields& fields) {
  return {{"text", FromBytes(NamedEditor(stage, fields).Text())}};
}

Json GetColours(Stage& stage, const Fields& fields) {
  return {{"runs", ColoursOf(NamedEditor(stage, fields))}};
}

Json GetState(Stage& stage, const Fields&) {
  const ucTessel& tessel = stage.Tessel();
  const HostedControls& controls = tessel.Controls();
  Json state{{"current", Index(tessel.OpenDocuments().Current().Place())},
             {"selectedTab", controls.tbsRtb.Selected()},
             {"tabs", DocumentTabs(controls.tbsRtb)},
             {"editors", Editors(controls)},
             {"category", Category(controls.tbsCon)},
             {"pages", Pages(controls)},
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
