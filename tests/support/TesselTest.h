// The whole control in a world that the test plays.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "control/ucTessel.h"
#include "support/FakeServices.h"
#include "support/RecentNames.h"
#include "support/SelectionText.h"
#include "surface/CurrentEditor.h"

namespace tessel::test {

/// A settings store whose operations can be made to fail.
class FaultySettings : public SettingsStore {
 public:
  explicit FaultySettings(SettingsStore& store) : store_(store) {}

  bool failsReading = false;
  bool failsWriting = false;

  std::optional<std::string> GetSetting(const std::string& section,
                                        const std::string& key) override {
    FailIf(failsReading);
    return store_.GetSetting(section, key);
  }
  std::vector<Entry> GetAllSettings(const std::string& section) override {
    FailIf(failsReading);
    return store_.GetAllSettings(section);
  }
  void SaveSetting(const std::string& section, const std::string& key,
                   const std::string& value) override {
    FailIf(failsWriting);
    store_.SaveSetting(section, key, value);
  }
  void DeleteSetting(const std::string& section, const std::string& key) override {
    FailIf(failsWriting);
    store_.DeleteSetting(section, key);
  }

 private:
  static void FailIf(bool fails) {
    if (fails) throw RuntimeError("The settings cannot be used: damaged.");
  }

  SettingsStore& store_;
};

/// What the message box shows for a RuntimeError or a refusal.
inline FakeMessageBox::Shown Exclamation(const std::string& text) {
  return {text, MessageIcon::kExclamation, "Zanth Manager", MessageButtons::kOk};
}

/// Has the control, started when it is first used, in a fake world.
class TesselTest : public testing::Test {
 protected:
  ucTessel& Control() {
    if (!control_) {
      control_ = std::make_unique<ucTessel>(Services{.messages = world_.messages,
                                                     .fileDialogs = world_.fileDialogs,
                                                     .forms = world_.forms,
                                                     .clipboard = world_.clipboard,
                                                     .settings = store_,
                                                     .pointer = world_.pointer,
                                                     .files = world_.files,
                                                     .random = world_.random,
                                                     .focus = world_.focus,
                                                     .loop = world_.loop,
                                                     .hostDirectory = world_.hostDirectory});
      control_->Initialize();
    }
    return *control_;
  }
  HostedControls& C() { return Control().Controls(); }
  DocumentList& List() { return Control().OpenDocuments(); }
  RichTextBox& Editor(int slot) { return C().rtbCon[slot]; }
  RichTextBox& Current() { return CurrentEditor(C()); }
  const Tab& TabOf(int slot) { return C().tbsRtb.At(slot + 1); }

  /// The current document's text with "[" and "]" around the selection.
  std::string Document() { return Marked(Current()); }
  /// Gives the current document a text and a selection; leaves it unmodified.
  void SetDocument(const std::string& marked) {
    SetMarked(Current(), marked);
    C().tbsRtb.SetTabImage(C().tbsRtb.Selected(), kBlackDot);
  }

  /// Puts a file into the world and opens it.
  void Open(const std::string& path, const std::string& text) {
    world_.files.files[path] = text;
    Control().OpenFile(path);
  }
  /// Texts of the documents' tabs, in order.
  std::vector<std::string> Captions() {
    std::vector<std::string> captions;
    for (int tab = 1; tab <= C().tbsRtb.Count(); ++tab) {
      captions.push_back(C().tbsRtb.At(tab).caption);
    }
    return captions;
  }
  /// Texts of the recent files, the newest first.
  std::vector<std::string> RecentNames() { return test::RecentNames(C().tbToolBar); }

  FakeServices world_;
  FaultySettings store_{world_.settings};
  std::unique_ptr<ucTessel> control_;
};

}  // namespace tessel::test
