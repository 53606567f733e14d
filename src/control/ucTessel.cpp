#include "control/ucTessel.h"

#include <array>
#include <new>
#include <utility>

#include "base/RuntimeError.h"
#include "base/ScopeGuard.h"
#include "colouring/ColourCommand.h"
#include "colouring/Colouring.h"
#include "control/Commands.h"
#include "control/Wiring.h"
#include "converter/Converter.h"
#include "documents/Documents.h"
#include "documents/RecentFiles.h"
#include "randomizer/Randomizer.h"
#include "services/Paths.h"
#include "settings/Levels.h"
#include "settings/SettingsPanel.h"
#include "surface/Layout.h"
#include "tools/Search.h"
#include "words/WordPanel.h"

namespace tessel {
namespace {

constexpr int kKeyF = 70;
constexpr int kKeyF3 = 114;
constexpr int kCtrlOnly = 2;

DocumentHost& NobodyToAsk() {
  static SilentHost host;
  return host;
}

}  // namespace

/// A form is a place of its own for commands: an error in one of its handlers ends that handler and
/// leaves the form open.
class ucTessel::CommandsInForms : public ModalForms {
 public:
  CommandsInForms(ModalForms& forms, int& commandDepth)
      : forms_(forms), commandDepth_(commandDepth) {}

  void ShowModal(Form& form) override {
    const ScopeGuard restore(
        [this, outer = std::exchange(commandDepth_, 0)] { commandDepth_ = outer; });
    forms_.ShowModal(form);
  }

 private:
  ModalForms& forms_;
  int& commandDepth_;
};

ucTessel::ucTessel(const Services& services, const Options& options)
    : options_(options),
      modalForms_(std::make_unique<CommandsInForms>(services.forms, commandDepth_)),
      services_{.messages = services.messages,
                .fileDialogs = services.fileDialogs,
                .forms = *modalForms_,
                .clipboard = services.clipboard,
                .settings = services.settings,
                .pointer = services.pointer,
                .files = services.files,
                .random = services.random,
                .focus = services.focus,
                .loop = services.loop,
                .hostDirectory = services.hostDirectory},
      levels_(std::make_unique<Levels>(documentList_, LevelsControls(controls_),
                                       LevelsServices(services_), conPath_, options.mayPanelWrite)),
      settings_(std::make_unique<SettingsPanel>(
          documentList_, SettingsControls(controls_), *levels_, [this] { Layout(controls_); },
          options.mayPanelWrite)),
      documents_(std::make_unique<Documents>(Documents::Uses{
          .list = documentList_,
          .tbToolBar = controls_.tbToolBar,
          .dlgCommon = controls_.dlgCommon,
          .messages = services_.messages,
          .fileDialogs = services_.fileDialogs,
          .settings = services_.settings,
          .files = services_.files,
          .host = options.host != nullptr ? *options.host : NobodyToAsk(),
          .hostDirectory = services_.hostDirectory,
          .conPath = conPath_,
          .applyColourMode = [this] { ApplyColourMode(); },
          .colorize =
              [this](RichTextBox& editor) {
                ColorizeDocument(editor,
                                 [this](const auto& text) { SettingTextColor.Raise(text); });
              }})),
      words_(std::make_unique<WordPanel>(documentList_, WordControls(controls_),
                                         WordServices(services_), *settings_,
                                         options.mayPanelWrite)),
      search_(std::make_unique<Search>(documentList_, services_.forms, services_.messages)),
      randomizer_(std::make_unique<Randomizer>(documentList_, RandomizerControls(controls_),
                                               RandomizerServices(services_), *settings_)) {
  forms_ = {&search_->Form(), &words_->Editor().Form(), &randomizer_->Form()};
  settings_->tbsCon_Click();
  ConnectCommands();
  ConnectDocuments();
  ConnectSettingsPanel();
  ConnectLevels();
  ConnectWords();
  ConnectForms();
}

ucTessel::~ucTessel() = default;

const SearchState& ucTessel::LastSearch() const { return search_->State(); }

void ucTessel::Initialize() {
  const auto ignoringErrors = [](const std::function<void()>& step) {
    try {
      step();
    } catch (const RuntimeError&) {  // the next step runs
    }
  };
  const ScopeGuard leave([this] { --commandDepth_; });
  ++commandDepth_;  // errors reach the steps here
  ignoringErrors([this] { settings_->FillSettingsLists(kNewerDialect); });
  ignoringErrors([this] { LoadRecentFiles(controls_.tbToolBar, services_.settings); });
  ignoringErrors([this] { words_->LoadWordList(); });
  conPath_ = services_.hostDirectory;
  ignoringErrors([this] {
    conPath_ = services_.settings.GetSetting("Paths", "CONPath").value_or(services_.hostDirectory);
  });
  Layout(controls_);
}

void ucTessel::Resize(Twips width, Twips height) {
  controls_.scaleWidth = width;
  controls_.scaleHeight = height;
  Layout(controls_);
}

bool ucTessel::KeyDown(int keyCode, int shift) {
  if (keyCode == kKeyF && shift == kCtrlOnly) {
    controls_.mnuRtbPopup.Choose("mnuRtbPopupFind");
    return true;
  }
  if (keyCode == kKeyF3) controls_.mnuRtbPopup.Choose("mnuRtbPopupFindNext");
  return false;
}

void ucTessel::SetTesselVersion(std::string& version) {
  std::string defaultVersion;
  SetTesselVersion(version, defaultVersion);
}

void ucTessel::SetTesselVersion(std::string& /*version*/, std::string& /*defaultVersion*/) {}

bool ucTessel::Convert() {
  return Run([this] { ConvertDocument(); });
}

void ucTessel::ConvertDocument() {
  const Document document = documentList_.Current();
  Converting.Raise(document);
  ConvertUserCon(document.Editor(), services_.pointer, services_.messages,
                 [&] { documents_->MarkModified(document.Place()); });
}

bool ucTessel::OpenFile(const std::string& path) {
  return Run([&] { documents_->OpenFile(path); });
}

bool ucTessel::ReloadDocument() {
  return Run([this] { documents_->ReloadDocument(); });
}

bool ucTessel::ShowAsUntitled(const std::string& text) {
  return Run([&] { documents_->ShowAsUntitled(text); });
}

bool ucTessel::CloseAll() {
  bool closed = false;
  Run([&] { closed = documents_->CloseAll(); });
  return closed;
}

bool ucTessel::Run(const std::function<void()>& command) {
  if (Running()) return false;
  RunCommand(command);
  return true;
}

void ucTessel::RunCommand(const std::function<void()>& command) {
  if (commandDepth_ > 0) return command();  // the outermost command reports errors
  HoldDocument();
  try {
    const ScopeGuard leave([this] { --commandDepth_; });
    ++commandDepth_;
    command();
  } catch (const RuntimeError& error) {
    ShowError(error.what());
  } catch (const std::bad_alloc&) {  // the other documents are still there to be saved
    ShowError("There is not enough memory for this.");
  }
  HoldDocument();
  CommandEnded.Raise();
}

void ucTessel::HoldDocument() {
  if (!options_.dialogHoldsDocument) return;
  const std::string path = documentList_.Current().Path();
  controls_.dlgCommon.SetHeld({path, NameOfPath(path, services_.files.Separator())});
}

void ucTessel::ApplyColourMode() {
  tessel::ApplyColourMode(controls_.tbToolBar.Pressed("Colorize"), documentList_.CurrentEditor(),
                          services_.pointer,
                          [this](const std::string& text) { SettingTextColor.Raise(text); });
}

void ucTessel::ShowError(const std::string& text) {
  services_.pointer.SetShape(PointerShape::kDefault);
  // A file that was being opened may have its editor hidden beside the current one.
  for (int slot = 0; slot < controls_.rtbCon.Count(); ++slot) {
    controls_.rtbCon[slot].SetVisible(true);
  }
  documentList_.CurrentEditor().SetLeft(0);
  services_.messages.Show(text, MessageIcon::kExclamation, kProgramTitle, MessageButtons::kOk);
}

template <class... Args, class Handler>
void ucTessel::On(Event<Args...>& event, Handler handler) {
  subscriptions_.push_back(
      event.Connect([this, handler](Args... args) { RunCommand([&] { handler(args...); }); }));
}

void ucTessel::ConnectCommands() {
  commands_ = Commands({.list = documentList_,
                        .tbToolBar = controls_.tbToolBar,
                        .tbsCon = controls_.tbsCon,
                        .clipboard = services_.clipboard,
                        .focus = services_.focus,
                        .settings = *settings_,
                        .documents = *documents_,
                        .words = *words_,
                        .search = *search_,
                        .randomizer = *randomizer_,
                        .convert = [this] { ConvertDocument(); },
                        .applyColourMode = [this] { ApplyColourMode(); }});
  On(controls_.tbToolBar.ButtonClick,
     [this](const ToolbarButton& button) { commands_.RunButton(button.key); });
  On(controls_.tbToolBar.ButtonMenuClick,
     [this](const ToolbarButton& button, const ButtonMenuItem& item) {
       commands_.RunButtonMenuItem(button.key, item);
     });
  On(controls_.mnuRtbPopup.ItemClick,
     [this](const std::string& item) { commands_.RunPopupItem(item); });
}

void ucTessel::ConnectDocuments() {
  On(controls_.tbsRtb.Click, [this] { documents_->ShowSelectedDocument(); });
  for (int i = 0; i < controls_.rtbCon.Count(); ++i) ConnectEditor(controls_.rtbCon[i]);
  On(controls_.rtbCon.Loaded, [this](RichTextBox& editor) { ConnectEditor(editor); });
  // A command is on its way then.
  subscriptions_.push_back(
      documentList_.Shown.Connect([this](const Document&) { levels_->DocumentShown(); }));
  subscriptions_.push_back(documentList_.Loaded.Connect(
      [this](const Document& document) { levels_->DocumentLoaded(document); }));
}

void ucTessel::ConnectEditor(RichTextBox& editor) {
  On(editor.Change, [this, slot = Slot{editor.Index()}] { documents_->EditorChanged(slot); });
  On(editor.MouseUp, [this, &editor](MouseButton button) { rtbCon_MouseUp(editor, button); });
}

void ucTessel::rtbCon_MouseUp(const RichTextBox& editor, MouseButton button) {
  if (button == MouseButton::kLeft) return;
  PopupMenu& popup = controls_.mnuRtbPopup;
  const bool hasText = editor.Length() > 0;
  popup.SetItemEnabled("mnuRtbPopupFileSave", hasText);
  popup.SetItemEnabled("mnuRtbPopupFileSaveAs", hasText);
  popup.SetItemEnabled("mnuRtbPopupEditUndo", editor.CanUndo());
  popup.PopUp();
}

void ucTessel::ConnectSettingsPanel() {
  HostedControls& c = controls_;
  SettingsPanel& panel = *settings_;
  On(c.tbsCon.Click, [&panel] { panel.tbsCon_Click(); });
  On(c.lstPlayers.Click, [&panel] { panel.lstPlayers_Click(); });
  On(c.lstWeapInfo.Click, [&panel] { panel.lstWeapInfo_Click(); });
  On(c.lstWeapon.Click, [&panel] { panel.lstWeapon_Click(); });
  On(c.lstEnemy.Click, [&panel] { panel.lstEnemy_Click(); });
  On(c.lstConMisc.Click, [&panel] { panel.lstConMisc_Click(); });
  for (int i = 0; i < c.cmbweap.Count(); ++i) {
    On(c.cmbweap[i].Change, [&panel, i] { panel.cmbweap_Change(i); });
    On(c.cmbweap[i].Click, [&panel, i] { panel.cmbweap_Click(i); });
  }
  On(c.optCamYes.Click, [&panel] { panel.optCamYes_Click(); });
  On(c.optCamNo.Click, [&panel] { panel.optCamNo_Click(); });
  On(c.optFreezYes.Click, [&panel] { panel.optFreezYes_Click(); });
  On(c.optFreezNo.Click, [&panel] { panel.optFreezNo_Click(); });
}

void ucTessel::ConnectLevels() {
  HostedControls& c = controls_;
  Levels& levels = *levels_;
  On(c.cboEpisode.Click, [&levels] { levels.cboEpisode_Click(); });
  On(c.cmdMap.Click, [&levels] { levels.cmdMap_Click(); });
  On(c.txtMap.GotFocus, [&levels] { levels.txtMap_GotFocus(); });
  On(c.txtTitle.GotFocus, [&levels] { levels.txtTitle_GotFocus(); });
  On(c.cmdInsert[0].Click, [&levels] { levels.cmdInsert_Click(0); });
  On(c.cmdInsert[1].Click, [&levels] { levels.cmdInsert_Click(1); });
}

void ucTessel::ConnectWords() {
  HostedControls& c = controls_;
  WordPanel& words = *words_;
  On(c.txtSearch.Change, [&words] { words.txtSearch_Change(); });
  On(c.lstWords.Click, [&words] { words.lstWords_Click(); });
  On(c.lstWords.DblClick, [&words] { words.InsertWord(); });
  On(c.cmdInsert[2].Click, [&words] { words.InsertWord(); });
  On(c.cmdAddword.Click, [&words] { words.cmdAddword_Click(); });
}

void ucTessel::ConnectForms() {
  Search& search = *search_;
  On(search.Form().cmdFind.Click, [&search] { search.cmdFind_Click(); });
  On(search.Form().cmdCancel.Click, [&search] { search.cmdCancel_Click(); });

  Randomizer& randomizer = *randomizer_;
  On(randomizer.Form().cmdOk.Click, [&randomizer] { randomizer.cmdOk_Click(); });
  On(randomizer.Form().cmdCancel.Click, [&randomizer] { randomizer.cmdCancel_Click(); });

  WordEditor& editor = words_->Editor();
  On(editor.Form().lstWords.Click, [&editor] { editor.lstWords_Click(); });
  On(editor.Form().cmdNew.Click, [&editor] { editor.cmdNew_Click(); });
  On(editor.Form().cmdSave.Click, [&editor] { editor.cmdSave_Click(); });
  On(editor.Form().cmdDelete.Click, [&editor] { editor.cmdDelete_Click(); });
  On(editor.Form().cmdExit.Click, [&editor] { editor.cmdExit_Click(); });
}

}  // namespace tessel
