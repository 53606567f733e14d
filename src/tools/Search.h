// Find and Find Next.
#pragma once

#include <string>

#include "services/Services.h"
#include "surface/DocumentList.h"
#include "tools/frmFind.h"

namespace tessel {

/// The last search. It belongs to the control, not to a document.
struct SearchState {
  std::string FindText;  ///< empty when the dialog was cancelled
  bool FindWholeWord = false;
  bool FindMatchCase = false;
  Position FindPos = kNotFound;  ///< of the last match
};

/// The options that a search is made with. Both boxes together give none at all.
int SearchOptions(const SearchState& search);

class Search {
 public:
  /// Everything passed outlives this.
  Search(const DocumentList& documents, ModalForms& forms, MessageBox& messages)
      : documents_(documents), forms_(forms), messages_(messages) {}

  /// Asks for a text and searches it from the top of the current document.
  void Find();
  /// Repeats the last search behind its match.
  void FindNext();

  void cmdFind_Click();
  void cmdCancel_Click();

  frmFind& Form() { return form_; }
  const SearchState& State() const { return state_; }

 private:
  void LoadOnce();
  void RememberText();
  void SearchFrom(Position start);
  void ReportMiss(MessageIcon icon);

  const DocumentList& documents_;
  ModalForms& forms_;
  MessageBox& messages_;
  frmFind form_;
  bool loaded_ = false;
  SearchState state_;
};

}  // namespace tessel
