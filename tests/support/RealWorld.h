// The control as a program has it: on the real files and a settings store in a file.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "control/ucTessel.h"
#include "posix/FallbackSettingsStore.h"
#include "posix/PosixFiles.h"
#include "support/FakeServices.h"
#include "support/TempDirectory.h"
#include "surface/CurrentEditor.h"

namespace tessel::test {

/// One running program. Dialogs, boxes and forms are answered by the test.
class Program {
 public:
  explicit Program(const std::string& store) : Program(store, plainFiles) {}
  /// `files` takes the place of the plain ones, and outlives this.
  Program(const std::string& store, Files& files)
      : settings(store, [this](const std::string& text) { reports.push_back(text); }),
        control({fakes.messages, fakes.fileDialogs, fakes.forms, fakes.clipboard, settings,
                 fakes.pointer, files, fakes.random, fakes.focus, fakes.loop, "/nowhere"}) {
    plainFiles.KeepOldBytesBy(
        [this](const std::string&, std::string_view old) { writtenOver.emplace_back(old); });
    control.Initialize();
  }

  HostedControls& Controls() { return control.Controls(); }
  RichTextBox& Editor() { return CurrentEditor(Controls()); }
  const Tab& DocumentTab() { return Controls().tbsRtb.At(Controls().tbsRtb.Selected()); }
  bool Modified() { return DocumentTab().image == kRedDot; }

  void Open(const std::string& path) { control.OpenFile(path); }
  void Choose(const std::string& item) { Controls().mnuRtbPopup.Choose(item); }
  /// Saves where the document lies.
  void Save() { Choose("mnuRtbPopupFileSave"); }
  void SaveAs(const std::string& path) {
    fakes.fileDialogs.answers.push_back({{path}});
    Choose("mnuRtbPopupFileSaveAs");
  }
  /// Puts another text into the document, as a person does.
  void Retype(const std::string& text) {
    Editor().SelectByHand(0, Editor().Length());
    Editor().Type(text);
  }
  /// The texts of the boxes since the last call.
  std::vector<std::string> Told() {
    std::vector<std::string> texts;
    for (const auto& box : fakes.messages.shown) texts.push_back(box.text);
    fakes.messages.shown.clear();
    return texts;
  }
  /// The same, as one line.
  std::string ToldInALine() {
    std::string line;
    for (const std::string& text : Told()) line += (line.empty() ? "" : " | ") + text;
    return line;
  }

  std::vector<std::string> writtenOver;  ///< the old bytes of the plain files written in place
  std::vector<std::string> reports;      ///< of the settings store
  FakeServices fakes;
  PosixFiles plainFiles;
  FallbackSettingsStore settings;
  ucTessel control;
};

}  // namespace tessel::test
