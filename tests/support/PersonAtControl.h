// A person at a control, who does one thing after the other.
#pragma once

#include <array>
#include <fstream>
#include <functional>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "control/ucTessel.h"
#include "randomizer/frmRand.h"
#include "support/ControlState.h"
#include "support/FakeServices.h"
#include "surface/CurrentEditor.h"
#include "tools/frmFind.h"

namespace tessel::test {

/// A user file with everything that the panel and the converter look for.
inline const std::string& UserCon() {
  static const std::string text = [] {
    std::ifstream file(TESSEL_TEST_DATA_DIR "/zmuser.dat", std::ios::binary);
    return (std::ostringstream() << file.rdbuf()).str();
  }();
  return text;
}

/// Sits at a control with files of its own. What is asked of the person goes to the fakes, which
/// are those of the control's services.
class Person {
 public:
  /// The person's files are in `directory`. `heard` gets the status lines.
  Person(ucTessel& control, FakeServices& fakes, std::string directory)
      : control_(control), fakes_(fakes), directory_(std::move(directory)) {
    fakes_.files.files[directory_ + "/user.con"] = UserCon();
    fakes_.files.files[directory_ + "/small.con"] = "define A 1 // one\r\nstate b ends\r\n";
    fakes_.files.files["/host/zmuserp.dat"] = "define MAXPLAYERHEALTH 100\r\n";
    status_ = control_.SettingTextColor.Connect(
        [this](const std::string& text) { heard_.push_back(text); });
  }

  struct Deed {
    const char* name;
    void (*Do)(Person& person);
    /// The clipboard, the random numbers: what controls share when their services are the same.
    bool ofTheServices = false;
  };
  static const std::vector<Deed>& Deeds();

  void Do(std::size_t deed) {
    Deeds()[deed % Deeds().size()].Do(*this);
    fakes_.fileDialogs.answers.clear();
    fakes_.messages.answers.clear();
    fakes_.forms.scripts.clear();
  }

  const std::vector<std::string>& Heard() const { return heard_; }
  ControlState::Lines State() const { return ControlState::Of(control_); }
  HostedControls& C() { return control_.Controls(); }

 private:
  RichTextBox& Editor() { return CurrentEditor(C()); }
  void Press(std::string_view button) { C().tbToolBar.Press(button); }
  void PressItem(std::string_view button, int item) { C().tbToolBar.PressMenuItem(button, item); }
  void Choose(const std::string& item) { C().mnuRtbPopup.Choose(item); }
  void Pick(ListControl& list, int entry) {
    if (entry < list.ListCount()) list.Pick(entry);
  }
  void AtForm(std::function<void(Form&)> script) {
    fakes_.forms.scripts.push_back(std::move(script));
  }
  void Choose(const FakeFileDialogs::Answer& files) { fakes_.fileDialogs.answers.push_back(files); }

  ucTessel& control_;
  FakeServices& fakes_;
  std::string directory_;
  std::vector<std::string> heard_;
  Subscription status_;
};

inline const std::vector<Person::Deed>& Person::Deeds() {
  using P = Person;
  static const std::vector<Deed> kDeeds = {
      {"opens a user file", [](P& p) { p.control_.OpenFile(p.directory_ + "/user.con"); }},
      {"opens another file",
       [](P& p) {
         p.Choose(FakeFileDialogs::Answer{{p.directory_ + "/small.con"}});
         p.Press("FileOpen");
       }},
      {"opens a file that is not there", [](P& p) { p.control_.OpenFile("/nowhere.con"); }},
      {"cancels the open dialog", [](P& p) { p.Press("FileOpen"); }},
      {"starts a file", [](P& p) { p.PressItem("FileNew", 2); }},
      {"goes to the first document", [](P& p) { p.C().tbsRtb.Press(1); }},
      {"goes to the last document", [](P& p) { p.C().tbsRtb.Press(p.C().tbsRtb.Count()); }},
      {"saves in place",
       [](P& p) {
         p.Choose(FakeFileDialogs::Answer{{p.directory_ + "/mine.con"}});
         p.Choose("mnuRtbPopupFileSave");
       }},
      {"saves under another name",
       [](P& p) {
         p.Choose(FakeFileDialogs::Answer{{p.directory_ + "/other.con"}});
         p.Press("FileSave");
       }},
      {"closes the document",
       [](P& p) {
         p.fakes_.messages.answers = {MessageAnswer::kNo};
         p.Press("FileClose");
       }},
      {"wants to close all, and does not", [](P& p) { p.control_.CloseAll(); }},
      {"takes the file again", [](P& p) { p.control_.ReloadDocument(); }},
      {"types", [](P& p) { p.Editor().Type("define B 2 /* two */\r\n"); }},
      {"selects", [](P& p) { p.Editor().SelectByHand(7, 30); }},
      {"goes to the end", [](P& p) { p.Editor().SelectByHand(p.Editor().Length(), 0); }},
      {"comments", [](P& p) { p.Press("Tools"); }},
      {"writes it large", [](P& p) { p.Choose("mnuRtbPopupToolsUpper"); }},
      {"undoes", [](P& p) { p.Choose("mnuRtbPopupEditUndo"); }},
      {"does again what was undone",
       [](P& p) {
         p.Editor().Type("again");
         p.Editor().Undo();
         p.Editor().Redo();
       }},
      {"copies", [](P& p) { p.Press("Copy"); }, true},
      {"pastes", [](P& p) { p.Press("Paste"); }, true},
      {"opens the editor's menu", [](P& p) { p.Editor().ReleaseMouse(MouseButton::kRight); }},
      {"switches the colours", [](P& p) { p.Press("Colorize"); }},
      {"switches the panel", [](P& p) { p.Press("ShowTabs"); }},
      {"makes the window small", [](P& p) { p.control_.Resize(7000, 5000); }},
      {"makes the window large", [](P& p) { p.control_.Resize(16000, 11000); }},
      {"looks for a text",
       [](P& p) {
         p.AtForm([](Form& form) {
           auto& find = dynamic_cast<frmFind&>(form);
           find.cboFind.Type("DEFINE");
           find.cmdFind.Press();
         });
         p.Press("Find");
       }},
      {"looks for a word",
       [](P& p) {
         p.AtForm([](Form& form) {
           auto& find = dynamic_cast<frmFind&>(form);
           find.cboFind.Type("state");
           find.chkFindWholeWord.Press();
           find.cmdFind.Press();
         });
         p.control_.KeyDown(70, 2);
       }},
      {"cancels the search",
       [](P& p) {
         p.AtForm([](Form& form) { dynamic_cast<frmFind&>(form).cmdCancel.Press(); });
         p.Press("Find");
       }},
      {"looks for the next one", [](P& p) { p.control_.KeyDown(114, 0); }},
      {"goes to the player page", [](P& p) { p.C().tbsCon.Press(1); }},
      {"goes to the weapon page", [](P& p) { p.C().tbsCon.Press(2); }},
      {"goes to the level page", [](P& p) { p.C().tbsCon.Press(5); }},
      {"goes to the word page", [](P& p) { p.C().tbsCon.Press(6); }},
      {"picks a player item", [](P& p) { p.Pick(p.C().lstPlayers, 0); }},
      {"picks another player item", [](P& p) { p.Pick(p.C().lstPlayers, 2); }},
      {"types a value", [](P& p) { p.C().cmbweap[0].Type("175"); }},
      {"chooses a value", [](P& p) { p.Pick(p.C().cmbweap[0], 3); }},
      {"picks what of the weapons", [](P& p) { p.Pick(p.C().lstWeapInfo, 1); }},
      {"picks a weapon", [](P& p) { p.Pick(p.C().lstWeapon, 1); }},
      {"picks an enemy", [](P& p) { p.Pick(p.C().lstEnemy, 4); }},
      {"makes the enemy strong", [](P& p) { p.C().cmbweap[2].Type("999"); }},
      {"picks a misc item", [](P& p) { p.Pick(p.C().lstConMisc, 0); }},
      {"breaks the cameras", [](P& p) { p.C().optCamYes.Press(); }},
      {"picks a level", [](P& p) { p.Pick(p.C().cboEpisode, 1); }},
      {"changes its title",
       [](P& p) {
         p.C().txtTitle.Enter();
         p.C().txtTitle.Type("A NEW TITLE");
         p.C().cmdInsert[1].Press();
       }},
      {"chooses a map",
       [](P& p) {
         p.Choose(FakeFileDialogs::Answer{{p.directory_ + "/new.map"}});
         p.C().cmdMap.Press();
       }},
      {"types a word", [](P& p) { p.C().txtSearch.Type("mov"); }},
      {"types more of it", [](P& p) { p.C().txtSearch.Type("movf"); }},
      {"picks a word", [](P& p) { p.Pick(p.C().lstWords, 1); }},
      {"inserts the word", [](P& p) { p.C().cmdInsert[2].Press(); }},
      {"asks what a word takes", [](P& p) { p.Choose("mnuRtbPopupToolsParameters"); }},
      {"looks at the word list", [](P& p) { p.C().cmdAddword.Press(); }},
      {"randomizes the page",
       [](P& p) {
         p.AtForm([](Form& form) {
           auto& range = dynamic_cast<frmRand&>(form);
           range.cmbChoose[0].Type("10");
           range.cmbChoose[1].Type("50");
           range.chkLvLw.Press();
           range.cmdOk.Press();
         });
         p.Press("RandSec");
       },
       true},
      {"converts", [](P& p) { p.control_.Convert(); }},
      {"sets the version",
       [](P& p) {
         std::string version = "Zanth13";
         std::string fallback = "Zanth15";
         p.control_.SetTesselVersion(version, fallback);
       }},
  };
  return kDeeds;
}

}  // namespace tessel::test
