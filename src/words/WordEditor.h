// The word list editor's behaviour.
#pragma once

#include <string>
#include <vector>

#include "services/Services.h"
#include "words/ScriptWords.h"
#include "words/frmAddParam.h"

namespace tessel {

class WordEditor {
 public:
  /// What it uses; all of it outlives it.
  struct Services {
    SettingsStore& settings;
    MessageBox& messages;
    ModalForms& forms;
    Focus& focus;
  };
  explicit WordEditor(const Services& services) : services_(services) {}

  /// Opens the dialog with a word in its field; returns when it has been closed.
  void Show(const std::string& word);

  void lstWords_Click();
  void cmdNew_Click();
  void cmdSave_Click();
  void cmdDelete_Click();
  void cmdExit_Click() { form_.Hide(); }

  frmAddParam& Form() { return form_; }

 private:
  void LoadList();
  void ClearFields();
  int FindWord(const std::string& word) const;
  bool Ask(const std::string& question, MessageIcon icon);

  Services services_;
  frmAddParam form_;
  std::vector<std::string> params_;  // parallel to the list
  bool selectingForSave_ = false;
};

}  // namespace tessel
