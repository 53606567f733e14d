// The control on its stage: everything the commands can reach.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "control/ucTessel.h"
#include "drive/Answers.h"
#include "drive/EventLog.h"
#include "drive/Player.h"
#include "drive/RecordedServices.h"
#include "services/HeadlessServices.h"

namespace tessel::drive {

/// What outlives the control and comes from outside.
struct World {
  SettingsStore& settings;
  Files& files;
  Clipboard& clipboard;
  MessageLoop& loop;
  /// Makes a random generator in its first state.
  std::function<std::unique_ptr<RandomNumbers>()> makeRandom;
  std::string hostDirectory;
  Twips width = 12000;
  Twips height = 9000;
};

/// Owns the recorded services and plays host: has the control created, and sizes it.
class Stage {
 public:
  Stage(World world, Player& player, ModalForms& forms);
  ~Stage();
  Stage(const Stage&) = delete;
  Stage& operator=(const Stage&) = delete;

  ucTessel& Tessel() { return *control_; }
  Player& Person() { return player_; }
  Clipboard& ClipboardText() { return world_.clipboard; }
  SettingsStore& Settings() { return world_.settings; }
  const ScreenPointer& Pointer() const { return pointer_; }
  Answers& QueuedAnswers() { return answers_; }
  EventLog& Log() { return log_; }
  /// The forms that are open, the topmost last.
  std::vector<Form*>& OpenForms() { return openForms_; }

  void Resize(Twips width, Twips height);
  /// Destroys the control and creates it anew; size, clipboard and queued answers stay.
  void Restart();
  /// True once when the popup menu was opened since the last call.
  bool TakePopupOpened() { return std::exchange(popupOpened_, false); }

 private:
  void Create();
  void Destroy();
  void RecordPopup();

  World world_;
  Player& player_;
  ModalForms& forms_;
  EventLog log_;
  Answers answers_;
  RecordedMessageBox messages_{log_, answers_};
  RecordedFileDialogs fileDialogs_{log_, answers_};
  PlainScreenPointer pointer_;
  RecordedFocus focus_;
  std::vector<Form*> openForms_;
  std::unique_ptr<RandomNumbers> random_;
  ucTessel* control_ = nullptr;  // the player's
  std::vector<Subscription> subscriptions_;
  bool popupOpened_ = false;
};

}  // namespace tessel::drive
