#include <utility>

#include "drive/Commands.h"
#include "drive/Refusal.h"
#include "drive/Target.h"

namespace tessel::drive {
namespace {

/// Far beyond any screen, and safe to turn into pixels.
constexpr Twips kLargestSize = 1000000;

Json Reply(const char* name, Json value) {
  Json reply = Json::object();
  reply[name] = std::move(value);
  return reply;
}

Json SetTesselVersion(ucTessel& control, std::vector<std::string> args) {
  if (args.empty() || args.size() > 2) throw Refusal("takes one or two arguments");
  if (args.size() == 1) {
    control.SetTesselVersion(args[0]);
  } else {
    control.SetTesselVersion(args[0], args[1]);
  }
  return FromBytes(args);
}

Json Convert(ucTessel& control, const std::vector<std::string>& args) {
  if (!args.empty()) throw Refusal("takes no arguments");
  control.Convert();
  return Json::array();
}

}  // namespace

Json Resize(Stage& stage, const Fields& fields) {
  const Twips width = fields.Size("width", kLargestSize);
  const Twips height = fields.Size("height", kLargestSize);
  stage.Resize(width, height);
  return Json::object();
}

Json Call(Stage& stage, const Fields& fields) {
  const std::string method = fields.Text("method");
  auto args = fields.Has("args") ? fields.Texts("args") : std::vector<std::string>();
  if (method == "SetTesselVersion") {
    return Reply("args", SetTesselVersion(stage.Tessel(), std::move(args)));
  }
  if (method == "Convert") return Reply("args", Convert(stage.Tessel(), args));
  throw Refusal("unknown method");
}

Json AccessClipboard(Stage& stage, const Fields& fields) {
  if (const auto text = fields.OptionalText("text")) {
    stage.ClipboardText().Clear();
    stage.ClipboardText().SetText(*text);
    return Json::object();
  }
  return Reply("text", FromBytes(stage.ClipboardText().GetText()));
}

Json AccessStore(Stage& stage, const Fields& fields) {
  const std::string section = fields.Text("section");
  const auto set = fields.Has("set") ? fields.Texts("set") : std::vector<std::string>();
  if (fields.Has("set") && set.size() != 2) throw Refusal("\"set\" must be a key and a value");
  const auto gone = fields.OptionalText("delete");

  SettingsStore& store = stage.Settings();
  if (!set.empty()) store.SaveSetting(section, set[0], set[1]);
  if (gone) store.DeleteSetting(section, *gone);
  Json entries = Json::array();
  for (const auto& [key, value] : store.GetAllSettings(section)) {
    entries.push_back(Json::array({FromBytes(key), FromBytes(value)}));
  }
  return Reply("entries", std::move(entries));
}

Json Restart(Stage& stage, const Fields&) {
  RefuseBehindForm(stage);
  stage.Restart();
  return Json::object();
}

Json LoadText(Stage& stage, const Fields& fields) {
  RichTextBox& editor = NamedEditor(stage, fields);
  const Twips left = editor.Left();
  std::string text = fields.Text("text");
  editor.SetLeft(kParkedLeft);  // a parked editor's changes mark nothing
  editor.SetText(std::move(text));
  editor.SetLeft(left);
  return Json::object();
}

}  // namespace tessel::drive
