#include "drive/Stage.h"

#include <utility>

namespace tessel::drive {

Stage::Stage(World world, Player& player, ModalForms& forms)
    : world_(std::move(world)),
      player_(player),
      forms_(forms),
      focus_(log_, [this](Control& control) { player_.MoveFocus(control); }) {
  Create();
}

Stage::~Stage() { Destroy(); }

void Stage::Resize(Twips width, Twips height) {
  world_.width = width;
  world_.height = height;
  player_.Resize(*control_, width, height);
}

void Stage::Restart() {
  Destroy();
  Create();
}

void Stage::Create() {
  random_ = world_.makeRandom();
  subscriptions_.push_back(pointer_.Changed.Connect([this](PointerShape shape) {
    log_.Add("pointer", {{"value", static_cast<int>(shape)}});
  }));
  control_ = &player_.Open({.messages = messages_,
                            .fileDialogs = fileDialogs_,
                            .forms = forms_,
                            .clipboard = world_.clipboard,
                            .settings = world_.settings,
                            .pointer = pointer_,
                            .files = world_.files,
                            .random = *random_,
                            .focus = focus_,
                            .loop = world_.loop,
                            .hostDirectory = world_.hostDirectory});
  subscriptions_.push_back(control_->SettingTextColor.Connect([this](const std::string& text) {
    log_.Add("status", {{"text", FromBytes(text)}});
  }));
  subscriptions_.push_back(
      control_->Controls().mnuRtbPopup.Opened.Connect([this] { RecordPopup(); }));
  player_.Resize(*control_, world_.width, world_.height);
}

void Stage::Destroy() {
  subscriptions_.clear();
  player_.Close();
  control_ = nullptr;
  random_.reset();
  pointer_.SetShape(PointerShape::kDefault);
}

void Stage::RecordPopup() {
  popupOpened_ = true;
  Json enabled = Json::object();
  for (const MenuItem* item : control_->Controls().mnuRtbPopup.Leaves()) {
    enabled[item->name] = item->enabled;
  }
  log_.Add("popup", {{"enabled", enabled}});
}

}  // namespace tessel::drive
