#include "tools/Search.h"

#include <algorithm>

namespace tessel {
namespace {

constexpr int kLongestHistory = 5;

}  // namespace

int SearchOptions(const SearchState& search) {
  const int wholeWord = search.FindWholeWord ? kFindWholeWord : kFindDefault;
  const int matchCase = search.FindMatchCase ? kFindMatchCase : kFindDefault;
  return search.FindWholeWord && search.FindMatchCase ? wholeWord & matchCase
                                                      : wholeWord + matchCase;
}

void Search::LoadOnce() {
  if (loaded_) return;
  loaded_ = true;
  if (form_.cboFind.Text().empty() && form_.cboFind.ListCount() > 0) form_.cboFind.SetListIndex(0);
  form_.chkFindWholeWord.SetValue(state_.FindWholeWord);
  form_.chkMatchCase.SetValue(state_.FindMatchCase);
}

void Search::Find() {
  LoadOnce();
  form_.cboFind.SetText(documents_.CurrentEditor().SelText());
  forms_.ShowModal(form_);
  if (state_.FindText.empty()) return;
  SearchFrom(0);
  if (state_.FindPos == kNotFound) ReportMiss(MessageIcon::kInformation);
}

void Search::FindNext() {
  const Position next = state_.FindPos + 1;
  if (state_.FindPos != kNotFound && next < documents_.CurrentEditor().Length() &&
      !state_.FindText.empty()) {
    SearchFrom(next);
  }
  if (state_.FindPos == kNotFound) ReportMiss(MessageIcon::kNone);
}

void Search::SearchFrom(Position start) {
  state_.FindPos =
      documents_.CurrentEditor().Find(state_.FindText, start, std::nullopt, SearchOptions(state_));
}

void Search::ReportMiss(MessageIcon icon) {
  messages_.Show(state_.FindText + " not found.", icon, kProgramTitle, MessageButtons::kOk);
}

void Search::cmdFind_Click() {
  state_.FindText = form_.cboFind.Text();
  RememberText();
  state_.FindWholeWord = form_.chkFindWholeWord.Value();
  state_.FindMatchCase = form_.chkMatchCase.Value();
  form_.Hide();
}

void Search::RememberText() {
  ComboBox& history = form_.cboFind;
  if (state_.FindText.empty() || std::ranges::count(history.List(), state_.FindText) > 0) return;
  if (history.ListCount() == kLongestHistory) history.RemoveItem(kLongestHistory - 1);
  history.InsertItem(0, state_.FindText);
}

void Search::cmdCancel_Click() {
  state_.FindText.clear();
  form_.Hide();
}

}  // namespace tessel
