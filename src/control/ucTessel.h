// The control.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "base/Event.h"
#include "control/Commands.h"
#include "services/Services.h"
#include "settings/PanelWrite.h"
#include "surface/DocumentList.h"
#include "surface/HostedControls.h"

namespace tessel {

class DocumentHost;
class Form;
class Levels;
struct SearchState;

/// ucTessel, the embeddable editor control for CON files. It owns the hosted controls and routes
/// their events to the subsystems; it holds no rule of its own.
///
/// A host creates it, binds its views to Controls(), calls Initialize once and then Resize whenever
/// its size changes. Everything runs on the caller's thread.
class ucTessel {
 public:
  /// What a host may ask for beyond the control's own rules.
  struct Options {
    /// The file dialog always holds the file of the document in front (nothing when that has none),
    /// not the file chosen last: so an in-place save keeps the document's name.
    bool dialogHoldsDocument = false;
    /// Is asked before files are opened and saved; null: nobody is. It outlives the control.
    DocumentHost* host = nullptr;
    /// Is asked before the settings panel writes into the current document. Never empty.
    MayPanelWrite mayPanelWrite = MayAlwaysWrite;
  };

  /// The services outlive the control.
  explicit ucTessel(const Services& services) : ucTessel(services, Options()) {}
  ucTessel(const Services& services, const Options& options);
  ~ucTessel();
  ucTessel(const ucTessel&) = delete;
  ucTessel& operator=(const ucTessel&) = delete;

  /// The start-up sequence. Errors are ignored, step by step.
  void Initialize();
  /// Sets the inner size in twips and lays the parts out.
  void Resize(Twips width, Twips height);
  /// A key pressed anywhere in the control, before the focused part sees it. `shift` adds 1 for
  /// Shift, 2 for Ctrl, 4 for Alt. Returns true when the key is swallowed.
  bool KeyDown(int keyCode, int shift);

  // --- Automation interface
  /// Accepts its arguments and does nothing; the second may be left out.
  void SetTesselVersion(std::string& version);
  void SetTesselVersion(std::string& version, std::string& defaultVersion);
  /// Runs the version converter on the current document. Returns false, with nothing done, while
  /// another command is on its way.
  bool Convert();
  /// A status line for the host.
  Event<const std::string&> SettingTextColor;

  // --- For the program that hosts the control
  HostedControls& Controls() { return controls_; }
  const HostedControls& Controls() const { return controls_; }
  /// The open documents and what happens to them.
  DocumentList& OpenDocuments() { return documentList_; }
  const DocumentList& OpenDocuments() const { return documentList_; }
  /// The modal forms, for views and by name.
  const std::vector<Form*>& Forms() const { return forms_; }
  /// The first directory of the file dialogs.
  const std::string& CONPath() const { return conPath_; }
  const SearchState& LastSearch() const;
  /// A conversion of that document begins; nothing has changed yet, and it may still be refused.
  Event<const Document&> Converting;
  /// A command has ended, with whatever it had to show; another one may begin in a handler.
  Event<> CommandEnded;
  /// True while a command is on its way (not while a modal form waits). A walk of the randomizer
  /// lets timers run in between: that is no time for another command, nor to end the control.
  bool Running() const { return commandDepth_ > 0; }

  // Commands of a host. Each returns false, with nothing done, while another command is on its way.
  /// Opens a file as the recent list does; an empty path shows the open dialog.
  bool OpenFile(const std::string& path);
  /// Takes the current document's text from its file again.
  bool ReloadDocument();
  /// Shows a text as a modified document without a file.
  bool ShowAsUntitled(const std::string& text);
  /// Asks for every modified document, then closes all. Returns false, with nothing closed, also
  /// when one of them was cancelled.
  bool CloseAll();
  /// Runs any other command, as every event of a hosted control is run: a RuntimeError puts the
  /// editor and the pointer back and becomes a message.
  bool Run(const std::function<void()>& command);

 private:
  void RunCommand(const std::function<void()>& command);
  template <class... Args, class Handler>
  void On(Event<Args...>& event, Handler handler);
  void ConnectCommands();
  void ConnectDocuments();
  void ConnectEditor(RichTextBox& editor);
  void ConnectSettingsPanel();
  void ConnectLevels();
  void ConnectWords();
  void ConnectForms();
  void rtbCon_MouseUp(const RichTextBox& editor, MouseButton button);
  void ShowError(const std::string& text);
  void HoldDocument();
  void ApplyColourMode();
  void ConvertDocument();

  class CommandsInForms;

  Options options_;
  int commandDepth_ = 0;
  std::unique_ptr<CommandsInForms> modalForms_;
  Services services_;
  HostedControls controls_;
  DocumentList documentList_{controls_};
  std::string conPath_;
  std::vector<Form*> forms_;
  std::unique_ptr<Levels> levels_;
  std::unique_ptr<SettingsPanel> settings_;
  std::unique_ptr<Documents> documents_;
  std::unique_ptr<WordPanel> words_;
  std::unique_ptr<Search> search_;
  std::unique_ptr<Randomizer> randomizer_;
  Commands commands_;
  std::vector<Subscription> subscriptions_;
};

}  // namespace tessel
