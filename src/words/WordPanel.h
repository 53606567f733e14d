// The "Functions" page: the script words, their search, and Parameter Info.
#pragma once

#include <string>
#include <vector>

#include "services/Services.h"
#include "settings/SettingsPanel.h"
#include "surface/DocumentList.h"
#include "words/WordEditor.h"
#include "words/WordSearch.h"

namespace tessel {

class WordPanel {
 public:
  /// The controls that the page uses. They outlive it, as do the services.
  struct Controls {
    TabStrip& tbsCon;
    TextBox& txtSearch;
    ListBox& lstWords;
    Label& lblParams;
    CommandButton& cmdAddword;
  };
  using Services = WordEditor::Services;

  WordPanel(const DocumentList& documents, const Controls& controls, const Services& services,
            SettingsPanel& settings, MayPanelWrite mayWrite = MayAlwaysWrite);

  /// Fills lstWords from the store. A store that cannot be read leaves the list empty.
  void LoadWordList();

  void txtSearch_Change();
  void lstWords_Click();
  /// Puts the selected word over the current document's selection.
  void InsertWord();
  /// Opens the word list editor with the search text.
  void cmdAddword_Click();
  /// Looks up the word at the caret.
  void ParameterInfo();

  WordEditor& Editor() { return editor_; }

 private:
  void ShowParameters();

  const DocumentList& documents_;
  Controls controls_;
  Services services_;
  SettingsPanel& settings_;
  MayPanelWrite mayWrite_;
  WordEditor editor_;
  std::vector<std::string> wordParams_;  // parallel to lstWords
  WordSearch search_;
  bool wordListBusy_ = false;  // the search box or the list is changing the other
};

}  // namespace tessel
